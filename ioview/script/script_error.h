// What ends a script before its last line.
#pragma once

#include <stdexcept>
#include <string>

namespace ioview {

// Ends the run with the line `ioview: FILE:LINE: TEXT` and this exit status: 1 for a check that came out
// negative or an answer that nobody took, 2 for a script that is wrong.
class ScriptError : public std::runtime_error {
 public:
  static constexpr int kNegative = 1;
  static constexpr int kWrong = 2;

  ScriptError(int exit_status, const std::string& text) : std::runtime_error(text), status(exit_status) {}
  explicit ScriptError(const std::string& text) : ScriptError(kWrong, text) {}

  const int status;
};

inline constexpr const char* kLostInput = "the script can't be read on";

}  // namespace ioview
