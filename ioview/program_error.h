// Errors of the program itself, which end it with one line on standard error.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace ioview {

// Ends the program with status 2 and the line `ioview: TEXT`.
class ProgramError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// `text` on one line: control characters become \n, \r, \t or \xHH, bytes above 7F stay.
std::string OneLine(std::string_view text);

// The name of a file at the start of a complaint, on one line; '' for an empty one.
std::string FileWord(std::string_view name);

// A word that the user wrote, in quotes and on one line, cut when it is long.
std::string Quoted(std::string_view word);

}  // namespace ioview
