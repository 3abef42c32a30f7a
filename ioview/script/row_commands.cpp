// What a user does to the rows and columns of a pane, and what the rows show.

#include <cstdint>
#include <string>

#include "ioview/program_error.h"
#include "ioview/script/command_table.h"
#include "ioview/script/key_names.h"
#include "ioview/script/pane_focus.h"
#include "ioview/script/row_mouse.h"
#include "ioview/script/row_path.h"
#include "ioview/script/row_text.h"
#include "platform/headless/user.h"

namespace ioview {

namespace {

constexpr std::uint32_t kColumns = 4;

int Column(Arguments& arguments) {
  const std::uint32_t column = arguments.Number();
  if (column >= kColumns) throw WrongArgument("COLUMN is 0 to 3");
  return static_cast<int>(column);
}

void Rows(ScriptRun& run, Arguments& arguments) {
  const PaneIndex pane = ScriptRun::PaneOf(arguments);
  arguments.End();
  ForEachRowText(run.Pane(pane).grid, [&](const std::string& line) { run.out.Line(line); });
}

void Select(ScriptRun& run, Arguments& arguments) {
  const ScriptPane pane = run.Pane(ScriptRun::PaneOf(arguments));
  const platform::HTREEITEM item = ScriptRun::Row(pane, arguments.Text());
  arguments.End();
  pane.grid.SelectItem(item);
}

void Selected(ScriptRun& run, Arguments& arguments) {
  const ScriptPane pane = run.Pane(ScriptRun::PaneOf(arguments));
  arguments.End();
  run.out.Line(RowPath(pane.grid, pane.grid.GetSelectedItem()));
}

template <platform::UINT action>
void Expand(ScriptRun& run, Arguments& arguments) {
  const ScriptPane pane = run.Pane(ScriptRun::PaneOf(arguments));
  const platform::HTREEITEM item = ScriptRun::Row(pane, arguments.Text());
  arguments.End();
  pane.grid.Expand(item, action);
}

// Mouse and keys ------------------------------------------------------------------------------------------

platform::POINT PointOf(platform::SECTreeCtrl& grid, platform::HTREEITEM item, Arguments& arguments) {
  RowPart part = RowPart::kLabel;
  if (arguments.HasMore()) {
    part = arguments.Choice<RowPart>({{"label", RowPart::kLabel},
                                      {"icon", RowPart::kIcon},
                                      {"indent", RowPart::kIndent},
                                      {"button", RowPart::kButton},
                                      {"value", RowPart::kValue},
                                      {"nowhere", RowPart::kNowhere}});
  }
  arguments.End();
  return PointOnPart(grid, item, part);
}

template <void (*press)(platform::CWnd&, platform::POINT)>
void Click(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const std::string& path = arguments.Text();
  const ScriptPane pane = ShownPane(run, index);
  const platform::HTREEITEM item = ScriptRun::Row(pane, path);
  press(pane.grid, PointOf(pane.grid, item, arguments));
  // A single click may begin an edit once it can't become a double one.
  run.Display().Advance(run.Display().DoubleClickTime());
}

void Key(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const std::string& name = arguments.Text();
  arguments.End();
  const std::optional<NamedKey> key = ParseKey(name);
  if (!key) throw WrongArgument(Quoted(name) + " is no key");
  const ScriptPane pane = ShownPane(run, index);
  FocusPane(pane);
  const platform::MSG press{platform::GetFocus(), platform::WM_KEYDOWN, key->key, 0, nullptr, key->modifiers};
  // The host looks for its own keys first.
  if (const auto command = run.Host().ui.CommandOfKey(press.hwnd, press)) {
    Instance::RunCommand(command->command, command->target);
  } else {
    platform::user::PressKey(key->key, key->modifiers);
  }
}

void Drag(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const std::string& path = arguments.Text();
  platform::DragAnswer answer = platform::DragAnswer::Drop;
  if (arguments.HasMore()) {
    answer = arguments.Choice<platform::DragAnswer>({{"drop", platform::DragAnswer::Drop},
                                                     {"escape", platform::DragAnswer::Escape},
                                                     {"right", platform::DragAnswer::RightButton},
                                                     {"nowhere", platform::DragAnswer::Nowhere}});
  }
  arguments.End();
  const ScriptPane pane = ShownPane(run, index);
  const platform::POINT at = PointOnPart(pane.grid, ScriptRun::Row(pane, path), RowPart::kLabel);
  const OwnAnswer own(run.Display(), answer);
  DragFrom(pane.grid, at);
}

// Columns -------------------------------------------------------------------------------------------------

void Header(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const int column = Column(arguments);
  arguments.End();
  if (column == 0) throw ScriptError("the header's menu has no entry for column 0");
  const ScriptPane pane = ShownPane(run, index);
  // The menu lists the columns behind the first, with a box each.
  const OwnAnswer own(run.Display(), platform::MenuAnswer{static_cast<std::size_t>(column) - 1});
  run.Display().SetMenuBoxes(true);
  platform::user::RightClick(pane.grid, {1, pane.grid.GetHeaderHeight() / 2});
  run.Display().SetMenuBoxes(false);
}

void Width(ScriptRun& run, Arguments& arguments) {
  const ScriptPane pane = run.Pane(ScriptRun::PaneOf(arguments));
  const int column = Column(arguments);
  if (!arguments.HasMore()) return run.out.Line(std::to_string(pane.grid.GetColumnWidth(column)));
  const std::int32_t width = arguments.SignedNumber();
  arguments.End();
  pane.grid.SetColumnWidth(column, width);
}

void Scroll(ScriptRun& run, Arguments& arguments) {
  const ScriptPane pane = run.Pane(ScriptRun::PaneOf(arguments));
  if (!arguments.HasMore()) {
    return run.out.Line(std::to_string(pane.grid.GetScrollPos(false)) + ' ' +
                        std::to_string(pane.grid.GetScrollPos(true)));
  }
  const std::int32_t horizontal = arguments.SignedNumber();
  const std::int32_t vertical = arguments.SignedNumber();
  arguments.End();
  pane.grid.SetScrollPos(false, horizontal);
  pane.grid.SetScrollPos(true, vertical);
}

constexpr ScriptCommand kCommands[] = {
    {"rows", "PANE", Rows},
    {"select", "PANE ROW", Select},
    {"selected", "PANE", Selected},
    {"expand", "PANE ROW", Expand<platform::TVE_EXPAND>},
    {"collapse", "PANE ROW", Expand<platform::TVE_COLLAPSE>},
    {"click", "PANE ROW [label|icon|indent|button|value|nowhere]", Click<platform::user::Click>},
    {"double-click", "PANE ROW [label|icon|indent|button|value|nowhere]", Click<platform::user::DoubleClick>},
    {"key", "PANE KEY", Key},
    {"drag", "PANE ROW [drop|escape|right|nowhere]", Drag},
    {"header", "PANE COLUMN", Header},
    {"width", "PANE COLUMN [PIXELS]", Width},
    {"scroll", "PANE [HORZ VERT]", Scroll},
};

}  // namespace

std::span<const ScriptCommand> RowCommands() {
  return kCommands;
}

}  // namespace ioview
