// Typing into the cells of a pane.

#include <string>

#include "ioview/script/command_table.h"
#include "ioview/script/pane_focus.h"
#include "ioview/script/row_mouse.h"
#include "platform/base/app.h"
#include "platform/gui/list_edit.h"
#include "platform/headless/user.h"

namespace ioview {

namespace {

constexpr std::uint32_t kColumns = 4;

enum class End { kEnter, kClick, kEscape, kLeave, kOpen };

End ParseEnd(Arguments& arguments) {
  return arguments.Choice<End>(
      {{"enter", End::kEnter}, {"click", End::kClick}, {"escape", End::kEscape}, {"leave", End::kLeave}});
}

// On the label of the row above, of the first row the one below; with a single row, beside it.
void ClickElsewhere(platform::SECTreeCtrl& grid) {
  const int row = grid.GetRowOfItem(grid.GetEditItem());
  const int other = row > 0 ? row - 1 : row + 1;
  const platform::HTREEITEM item = grid.GetItemAtRow(static_cast<std::size_t>(other));
  const platform::POINT at = item != 0 ? PointOnPart(grid, item, RowPart::kLabel)
                                       : PointOnPart(grid, grid.GetEditItem(), RowPart::kNowhere);
  platform::user::Click(grid, at);
}

void EndEdit(ScriptRun& run, const ScriptPane& pane, End end) {
  switch (end) {
    case End::kEnter:
      FocusPane(pane);
      platform::user::PressKey(platform::VK_RETURN);
      break;
    case End::kEscape:
      FocusPane(pane);
      platform::user::PressKey(platform::VK_ESCAPE);
      break;
    case End::kClick:
      ClickElsewhere(pane.grid);
      run.Display().Advance(run.Display().DoubleClickTime());
      break;
    case End::kLeave:
      platform::SetFocus(platform::GetMainWindow());
      break;
    case End::kOpen:
      break;
  }
}

ScriptPane EditedPane(ScriptRun& run, PaneIndex index) {
  const ScriptPane pane = ShownPane(run, index);
  if (!pane.grid.IsEditing()) throw ScriptError("no edit is open in the pane");
  return pane;
}

int EditColumn(Arguments& arguments) {
  constexpr std::size_t kWithColumn = 4;
  if (arguments.Left() != kWithColumn || arguments.Peek() != "column") return kValueColumn;
  arguments.Text();
  const std::uint32_t column = arguments.Number();
  if (column >= kColumns) throw WrongArgument("COLUMN is 0 to 3");
  return static_cast<int>(column);
}

void Edit(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const std::string& path = arguments.Text();
  const int column = EditColumn(arguments);
  const std::string& text = arguments.Text();
  const bool stays_open = arguments.Peek() == "open";
  if (stays_open) arguments.Text();
  const End end = stays_open ? End::kOpen : ParseEnd(arguments);
  arguments.End();

  ScriptPane pane = ShownPane(run, index);
  const platform::HTREEITEM item = ScriptRun::Row(pane, path);
  pane.grid.SelectItem(item);
  // The handlers of what happens may do anything to the pane, so it is asked for anew.
  platform::POINT at;
  if (PointOnCell(run.Pane(index).grid, item, column, at)) {
    platform::user::Click(run.Pane(index).grid, at);
    run.Display().Advance(run.Display().DoubleClickTime());
  }
  const ScriptPane clicked = run.Pane(index);
  if (!clicked.grid.IsEditing() || clicked.grid.GetEditItem() != item) return run.out.Line("refused");
  clicked.grid.GetListEdit()->SelectAll();
  clicked.grid.GetListEdit()->ReplaceSel(text);
  EndEdit(run, clicked, end);
}

void Type(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const std::string& text = arguments.Text();
  arguments.End();
  FocusPane(EditedPane(run, index));
  platform::user::TypeText(text);
}

void EndOpenEdit(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const End end = ParseEnd(arguments);
  arguments.End();
  EndEdit(run, EditedPane(run, index), end);
}

constexpr ScriptCommand kCommands[] = {
    {"edit", "PANE ROW [column N] TEXT enter|click|escape|leave|open", Edit},
    {"type", "PANE TEXT", Type},
    {"end", "PANE enter|click|escape|leave", EndOpenEdit},
};

}  // namespace

std::span<const ScriptCommand> EditCommands() {
  return kCommands;
}

}  // namespace ioview
