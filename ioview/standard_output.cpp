#include "ioview/standard_output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "ioview/program_error.h"

namespace ioview {

namespace {

[[noreturn]] void Fail() {
  throw ProgramError(std::string("Standard output can't be written: ") + std::strerror(errno));
}

}  // namespace

void WriteOutput(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) Fail();
}

void FlushOutput() {
  if (std::fflush(stdout) != 0) Fail();
}

}  // namespace ioview
