#include "ioview/script/command_table.h"

namespace ioview {

const ScriptCommand* FindCommand(std::string_view name) {
  for (const auto group : {TargetCommands(), HostCommands(), FileCommands(), ComponentCommands(),
                           StoreCommands(), FormatCommands(), TestClientCommands(), RowCommands(),
                           EditCommands(), PictureCommands(), AnswerCommands(), CheckCommands()}) {
    for (const ScriptCommand& command : group) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

}  // namespace ioview
