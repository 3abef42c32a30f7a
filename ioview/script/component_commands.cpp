// Instances, the commands of the view, and what the host tells its frame.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "ioview/number_text.h"
#include "ioview/program_error.h"
#include "ioview/script/command_table.h"

namespace ioview {

namespace {

void PrintStatus(ScriptRun& run, platform::Status status) {
  run.out.Line(DigitsText(static_cast<std::uint32_t>(status), 16, 8));
}

// 1 is what a host means by it.
std::int16_t ConnectFlag(Arguments& arguments) {
  const std::int32_t flag = arguments.HasMore() ? arguments.SignedNumber() : 1;
  arguments.End();
  if (flag < std::numeric_limits<std::int16_t>::min() || flag > std::numeric_limits<std::int16_t>::max()) {
    throw WrongArgument("the flag has 16 bits");
  }
  return static_cast<std::int16_t>(flag);
}

void Connect(ScriptRun& run, Arguments& arguments) {
  const platform::Status status = run.Component().Connect(ConnectFlag(arguments));
  if (status != platform::S_OK) PrintStatus(run, status);
}

void Disconnect(ScriptRun& run, Arguments& arguments) {
  const platform::Status status = run.Component().Disconnect(ConnectFlag(arguments));
  if (status != platform::S_OK) PrintStatus(run, status);
}

void SelectInstance(ScriptRun& run, Arguments& arguments) {
  const std::string& name = arguments.Text();
  if (!arguments.HasMore()) return run.Select(name);
  arguments.Choice<bool>({{"destroy", true}});
  arguments.End();
  if (!run.Destroy(name)) throw ScriptError("there is no instance " + Quoted(name));
}

void Query(ScriptRun& run, Arguments& arguments) {
  const std::string& word = arguments.Text();
  arguments.End();
  const std::optional<platform::GUID> id = platform::ParseGuid(word);
  if (!id) throw WrongArgument(Quoted(word) + " is no GUID");
  void* face = nullptr;
  const platform::Status status = run.Component().Query(*id, &face);
  if (status == platform::S_OK) {
    run.out.Line("yes");
  } else {
    PrintStatus(run, status);
  }
}

// Where a command without a pane goes: what the frame handles to the frame, anything else to the pane of all
// registers.
platform::HWND TargetOf(ScriptRun& run, std::uint32_t command, Arguments& arguments) {
  if (arguments.HasMore()) {
    const PaneIndex pane = ScriptRun::PaneOf(arguments);
    arguments.End();
    return run.Pane(pane).window.GetHandle();
  }
  const platform::HWND frame = run.Component().Frame();
  const platform::CWnd* const window = platform::CWnd::FromHandle(frame);
  if (window != nullptr && window->HandlesCommand(command)) return frame;
  if (command == kOpenViewCommand) throw ScriptError("the component has no frame");
  return run.Pane(PaneIndex::kAll).window.GetHandle();
}

void RunOrSay(ScriptRun& run, std::uint32_t command, platform::HWND window) {
  if (!Instance::RunCommand(command, window)) run.out.Line("disabled");
}

void Open(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  RunOrSay(run, kOpenViewCommand, TargetOf(run, kOpenViewCommand, arguments));
}

void Command(ScriptRun& run, Arguments& arguments) {
  const std::uint32_t command = arguments.Number();
  RunOrSay(run, command, TargetOf(run, command, arguments));
}

void State(ScriptRun& run, Arguments& arguments) {
  const std::uint32_t command = arguments.Number();
  const Instance::CommandState state = Instance::StateOf(command, TargetOf(run, command, arguments));
  run.out.Line(std::string(state.enabled ? "enabled" : "disabled") + (state.checked ? " checked" : ""));
}

void Load(ScriptRun& run, Arguments& arguments) {
  const std::string path = run.places.ForComponent(arguments.Text());
  const std::uint32_t base = arguments.HasMore() ? arguments.Address() : 0;
  arguments.End();
  if (!run.Component().LoadIOFile(path, base)) throw ScriptError("the component has no I/O server");
}

void Visible(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  const DockWindow* const view = run.Component().View();
  run.out.Line(view != nullptr && view->is_shown ? "1" : "0");
}

// The host's messages about a pane.
template <void (Instance::*message)(PaneIndex)>
void TellOfPane(ScriptRun& run, Arguments& arguments) {
  const PaneIndex pane = ScriptRun::PaneOf(arguments);
  arguments.End();
  run.Pane(pane);
  (run.Component().*message)(pane);
}

constexpr ScriptCommand kCommands[] = {
    {"connect", "[FLAG]", Connect},
    {"disconnect", "[FLAG]", Disconnect},
    {"instance", "NAME [destroy]", SelectInstance},
    {"query", "GUID", Query},
    {"open", "", Open},
    {"command", "ID [PANE]", Command},
    {"state", "ID [PANE]", State},
    {"load", "FILE [BASE]", Load},
    {"visible", "", Visible},
    {"close", "PANE", TellOfPane<&Instance::ClosePane>},
    {"hide", "PANE", TellOfPane<&Instance::HidePane>},
    {"refresh-data", "PANE", TellOfPane<&Instance::RefreshPane>},
};

}  // namespace

std::span<const ScriptCommand> ComponentCommands() {
  return kCommands;
}

}  // namespace ioview
