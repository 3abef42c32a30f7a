#include "ioview/script/script_output.h"

#include <exception>

#include "ioview/program_error.h"
#include "ioview/standard_output.h"

namespace ioview {

void ScriptOutput::Line(std::string_view line) noexcept {
  try {
    std::string text(line);
    text += '\n';
    of_command_ += text;
    if (!failure_.empty()) return;
    WriteOutput(text);
    FlushOutput();
  } catch (const std::exception& error) {
    failure_ = error.what();
  }
}

void ScriptOutput::Text(std::string_view text) noexcept {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    Line(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
}

void ScriptOutput::Check() const {
  if (!failure_.empty()) throw ProgramError(failure_);
}

}  // namespace ioview
