// Memory files: what the simulated memory holds at the start.
//
//   # the port's registers
//   00FF0000: 12 34 0x56
//   FF0010: 80          # one byte
//
// A line gives an address and the bytes from there on, all hexadecimal with or without `0x`: an address of up
// to eight digits, bytes of one or two. `#` starts a comment, blanks and tabs separate, lines end in LF or
// CR LF, a UTF-8 byte order mark at the start is skipped. A later line wins over an earlier one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "ioview/target/simulated_target.h"

namespace ioview {

struct MemoryFileError {
  std::size_t line = 0;  // from 1
  std::string text;
};

// Fills the memory of `target`. Stops at the first bad line; what the lines before it gave stays.
std::optional<MemoryFileError> FillMemory(SimulatedTarget& target, std::string_view text);

// The same from a file by native path. Throws ProgramError `FILE:LINE: TEXT` for a bad line, and one that
// names the file when it can't be read.
void LoadMemoryFile(SimulatedTarget& target, const std::string& native);

}  // namespace ioview
