#include "ioview/script/command_table.h"

namespace ioview {

std::array<std::span<const ScriptCommand>, 12> AllCommands() {
  return {TargetCommands(), HostCommands(),    FileCommands(),       ComponentCommands(),
          StoreCommands(),  FormatCommands(),  TestClientCommands(), RowCommands(),
          EditCommands(),   PictureCommands(), AnswerCommands(),     CheckCommands()};
}

const ScriptCommand* FindCommand(std::string_view name) {
  for (const auto group : AllCommands()) {
    for (const ScriptCommand& command : group) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

}  // namespace ioview
