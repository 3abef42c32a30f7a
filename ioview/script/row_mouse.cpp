#include "ioview/script/row_mouse.h"

#include <algorithm>

#include "ioview/script/script_error.h"
#include "platform/gui/display.h"
#include "platform/gui/messages.h"

namespace ioview {

namespace {

using platform::HTREEITEM;
using platform::POINT;
using platform::RECT;
using platform::SECTreeCtrl;
using platform::UINT;

constexpr int kDragWay = 20;  // pixels

UINT HitFlag(RowPart part) {
  switch (part) {
    case RowPart::kLabel:
      return platform::TVHT_ONITEMLABEL;
    case RowPart::kIcon:
      return platform::TVHT_ONITEMICON;
    case RowPart::kIndent:
      return platform::TVHT_ONITEMINDENT;
    case RowPart::kButton:
      return platform::TVHT_ONITEMBUTTON;
    case RowPart::kCheck:
      return platform::TVHT_ONITEMCHECK;
    case RowPart::kValue:
      return platform::TVHT_ONCOLUMN;
    case RowPart::kNowhere:
      return platform::TVHT_NOWHERE;
  }
  return platform::TVHT_NOWHERE;
}

void Mouse(const SECTreeCtrl& grid, UINT message, POINT at) {
  platform::gui::Input({grid.GetHandle(), message, 0, platform::PointParam(at)});
}

}  // namespace

POINT PointOnPart(SECTreeCtrl& grid, HTREEITEM item, RowPart part) {
  if (grid.GetRowOfItem(item) < 0) throw ScriptError("the row lies under a closed one");
  if (part == RowPart::kValue) {
    POINT at;
    if (!PointOnCell(grid, item, kValueColumn, at)) throw ScriptError("the row's value doesn't show");
    return at;
  }
  grid.EnsureVisible(item);
  const UINT flag = HitFlag(part);
  // To the left end, where all parts of the first column are, before it counts as missing.
  for (const bool scroll : {false, true}) {
    if (scroll) grid.SetScrollPos(false, 0);
    const POINT at = grid.GetPartPoint(item, flag);
    if (at.x < 0 || !grid.GetClientRect().Contains(at)) continue;
    if ((grid.HitTest(at).flags & flag) != 0) return at;
  }
  throw ScriptError("the row has no such part");
}

bool PointOnCell(SECTreeCtrl& grid, HTREEITEM item, int column, POINT& at) {
  if (grid.GetRowOfItem(item) < 0 || grid.GetCellRect(item, column).IsEmpty()) return false;
  if (column == 0) {
    at = PointOnPart(grid, item, RowPart::kLabel);
    return true;
  }
  grid.EnsureVisible(item);
  const int width = grid.GetClientRect().Width();
  RECT cell = grid.GetCellRect(item, column);
  if (cell.left < 0 || cell.right > width) {
    grid.SetScrollPos(false, grid.GetScrollPos(false) + cell.left);
    cell = grid.GetCellRect(item, column);
  }
  at = {(std::max(cell.left, 0) + std::min(cell.right, width)) / 2, cell.top + cell.Height() / 2};
  return grid.HitTest(at).item == item;
}

void DragFrom(SECTreeCtrl& grid, POINT at) {
  const platform::HWND window = grid.GetHandle();
  const POINT to{at.x + kDragWay, at.y};
  Mouse(grid, platform::WM_LBUTTONDOWN, at);
  if (platform::IsWindow(window)) Mouse(grid, platform::WM_MOUSEMOVE, to);
  if (platform::IsWindow(window)) Mouse(grid, platform::WM_LBUTTONUP, to);
}

}  // namespace ioview
