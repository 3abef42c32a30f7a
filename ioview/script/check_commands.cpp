// Comparing what a command printed, and printing.

#include <string>
#include <string_view>

#include "ioview/native_file.h"
#include "ioview/script/command_table.h"

namespace ioview {

namespace {

std::string_view WithoutLastLineEnd(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  return text;
}

// A few lines of a long text are enough to see what is wrong.
std::string Shown(std::string_view text) {
  constexpr std::size_t kMost = 2000;
  return '"' + std::string(text.substr(0, kMost)) + (text.size() > kMost ? "..." : "") + '"';
}

void Expect(ScriptRun& run, Arguments& arguments) {
  std::string expected;
  if (arguments.Left() == 2 && arguments.Peek() == "file") {
    arguments.Text();
    expected = WithoutLastLineEnd(ReadWholeFile(run.places.Native(arguments.Text())));
  } else {
    expected = arguments.Text();
  }
  arguments.End();
  const std::string_view printed = WithoutLastLineEnd(run.out.OfCommand());
  if (printed == expected) return;
  throw ScriptError(ScriptError::kNegative, "expected " + Shown(expected) + ", got " + Shown(printed));
}

void Echo(ScriptRun& run, Arguments& arguments) {
  const std::string& text = arguments.Text();
  arguments.End();
  run.out.Line(text);
}

constexpr ScriptCommand kCommands[] = {
    {.name = "expect", .form = "TEXT, or file FILE", .run = Expect, .checks = true},
    {.name = "echo", .form = "TEXT", .run = Echo},
};

}  // namespace

std::span<const ScriptCommand> CheckCommands() {
  return kCommands;
}

}  // namespace ioview
