// What a script prints, in the order in which it happens, and what its latest command printed.
#pragma once

#include <string>
#include <string_view>

namespace ioview {

class ScriptOutput {
 public:
  // A line with its line end, flushed. Throws nothing: it is called from inside the component.
  void Line(std::string_view line) noexcept;
  // Line by line; the last line may have its line end or not. Nothing for an empty text.
  void Text(std::string_view text) noexcept;

  // What is printed from now on belongs to another command.
  void BeginCommand() { of_command_.clear(); }
  const std::string& OfCommand() const { return of_command_; }

  // Throws ProgramError when something that was printed has been lost.
  void Check() const;

 private:
  std::string of_command_;
  std::string failure_;  // why output was lost, empty while none was
};

}  // namespace ioview
