// Standard output, where a loss is an error: a full disk must not pass for success.
#pragma once

#include <string_view>

namespace ioview {

// Writes byte for byte, buffered. Throws ProgramError when the text can't be written.
void WriteOutput(std::string_view text);
// Has all that was written arrive; throws ProgramError when it can't. Every command that writes ends with it.
void FlushOutput();

}  // namespace ioview
