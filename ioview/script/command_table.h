// Every command of the script language: its name, its form, and what carries it out.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "ioview/script/arguments.h"
#include "ioview/script/script_run.h"

namespace ioview {

struct ScriptCommand {
  std::string_view name;
  std::string_view form;  // of its arguments, for complaints
  // Throws ScriptError or ProgramError.
  void (*run)(ScriptRun& run, Arguments& arguments);

  // Before the component runs: its lines prepare the host. kWithSet: those whose first argument is `set`.
  enum class Prepares { kNo, kYes, kWithSet };
  Prepares prepares = Prepares::kNo;
  // Looks at what the command before printed.
  bool checks = false;
  // The answers that wait are for the command behind it.
  bool keeps_answers = false;
};

// Each group in a file of its own.
std::span<const ScriptCommand> TargetCommands();
std::span<const ScriptCommand> HostCommands();
std::span<const ScriptCommand> FileCommands();
std::span<const ScriptCommand> ComponentCommands();
std::span<const ScriptCommand> StoreCommands();
std::span<const ScriptCommand> FormatCommands();
std::span<const ScriptCommand> TestClientCommands();
std::span<const ScriptCommand> RowCommands();
std::span<const ScriptCommand> EditCommands();
std::span<const ScriptCommand> PictureCommands();
std::span<const ScriptCommand> AnswerCommands();
std::span<const ScriptCommand> CheckCommands();

std::array<std::span<const ScriptCommand>, 12> AllCommands();

// Null for a name that isn't known.
const ScriptCommand* FindCommand(std::string_view name);

}  // namespace ioview
