// What the mouse does on rows and header.

#include <algorithm>
#include <cstdlib>

#include "platform/gui/display.h"
#include "platform/gui/modal.h"
#include "platform/gui/tree_ctrl.h"

namespace platform {

namespace {

constexpr int kDragStep = 4;      // a pressed button that moves further drags
constexpr int kDividerReach = 4;  // from the edge between two titles
constexpr int kNarrowest = 8;     // dragging hides no column
constexpr UINT kSelectingParts = TVHT_ONITEMICON | TVHT_ONITEMLABEL | TVHT_ONCOLUMN;

}  // namespace

LRESULT SECTreeCtrl::OnLButtonDown(const MSG& msg) {
  const POINT at = ParamPoint(msg.lParam);
  const HWND self = msg.hwnd;
  ForgetPresses();
  if (IsOnHeader(at)) {
    PressHeader(at);
    return 0;
  }
  const HitTestInfo hit = HitTest(at);
  const bool was_here = GetFocus() == self && m_selected == hit.item;
  const unsigned openings = modal::Openings();
  NotifyCode(NM_CLICK);
  if (IsGone(self)) return 0;
  SetFocus(self);
  if (IsGone(self) || !HasItem(hit.item)) return 0;

  if (hit.flags & TVHT_ONITEMBUTTON) {
    Expand(hit.item, IsExpanded(hit.item) ? TVE_COLLAPSE : TVE_EXPAND);
    return 0;
  }
  if (hit.flags & TVHT_ONITEMCHECK) {
    ToggleCheck(hit.item);
    return 0;
  }
  const bool on_full_row = (m_grid_style & kFullRow) != 0 && (hit.flags & TVHT_ONITEMINDENT) != 0;
  if ((hit.flags & kSelectingParts) == 0 && !on_full_row) return 0;
  Select(hit.item, false);
  // A modal thing that ran meanwhile has the rest of the press.
  if (IsGone(self) || openings != modal::Openings() || !HasItem(hit.item)) return 0;
  m_press = Press{hit.item, at, -1};
  if (hit.column > 0 || (was_here && (hit.flags & TVHT_ONITEMLABEL) != 0)) m_press->edits_column = hit.column;
  return 0;
}

LRESULT SECTreeCtrl::OnLButtonDblClk(const MSG& msg) {
  const POINT at = ParamPoint(msg.lParam);
  const HWND self = msg.hwnd;
  ForgetPresses();
  if (IsOnHeader(at)) {
    PressHeader(at);
    return 0;
  }
  const HitTestInfo hit = HitTest(at);
  const bool handled = NotifyCode(NM_DBLCLK) != 0;
  if (IsGone(self)) return 0;
  if (hit.flags & TVHT_ONITEMCHECK) {
    ToggleCheck(hit.item);
  } else if (!handled && (hit.flags & (TVHT_ONITEMICON | TVHT_ONITEMLABEL)) != 0) {
    Expand(hit.item, IsExpanded(hit.item) ? TVE_COLLAPSE : TVE_EXPAND);
  }
  return 0;
}

LRESULT SECTreeCtrl::OnLButtonUp(const MSG& msg) {
  if (m_column_drag || m_header_press >= 0) {
    ReleaseHeader(ParamPoint(msg.lParam));
    return 0;
  }
  const std::optional<Press> press = m_press;
  m_press.reset();
  Display* display = GetDisplay();
  if (press && press->edits_column >= 0 && display != nullptr) {
    m_next_edit_item = press->item;
    m_next_edit_column = press->edits_column;
    SetTimer(msg.hwnd, kBeginEditTimer, display->DoubleClickTime());
  }
  return 0;
}

void SECTreeCtrl::ForgetPresses() {
  StopWaitingForEdit();
  m_press.reset();
  m_column_drag.reset();
  m_header_press = -1;
}

void SECTreeCtrl::StopWaitingForEdit() {
  if (m_next_edit_item == 0) return;
  m_next_edit_item = 0;
  KillTimer(GetHandle(), kBeginEditTimer);
}

LRESULT SECTreeCtrl::OnTimer(const MSG& msg) {
  if (msg.wParam == kForgetLettersTimer) {
    KillTimer(msg.hwnd, kForgetLettersTimer);
    m_typed.clear();
    return 0;
  }
  if (msg.wParam != kBeginEditTimer) return Default(msg, kMessages);
  const HTREEITEM item = m_next_edit_item;
  StopWaitingForEdit();
  if (item != 0 && item == m_selected && GetFocus() == msg.hwnd) EditCell(item, m_next_edit_column);
  return 0;
}

LRESULT SECTreeCtrl::OnMouseMove(const MSG& msg) {
  const POINT at = ParamPoint(msg.lParam);
  if (m_column_drag) {
    const ColumnDrag drag = *m_column_drag;
    SetColumnWidth(drag.column, std::max(drag.width + at.x - drag.from_x, kNarrowest));
    return 0;
  }
  if (!m_press) return Default(msg, kMessages);
  const Press press = *m_press;
  if (std::abs(at.x - press.at.x) <= kDragStep && std::abs(at.y - press.at.y) <= kDragStep) return 0;
  m_press.reset();
  if (!HasItem(press.item)) return 0;
  NMTREEVIEW record;
  record.hdr.code = TVN_BEGINDRAG;
  record.item = press.item;
  record.point = press.at;
  NotifyParent(record.hdr);
  return 0;
}

LRESULT SECTreeCtrl::OnRButtonDown(const MSG& msg) {
  const POINT at = ParamPoint(msg.lParam);
  const HWND self = msg.hwnd;
  ForgetPresses();
  if (IsOnHeader(at)) return 0;
  const HTREEITEM item = HitTest(at).item;
  SetFocus(self);
  if (!IsGone(self) && HasItem(item)) Select(item, false);
  return 0;
}

LRESULT SECTreeCtrl::OnRButtonUp(const MSG& msg) {
  if (!IsOnHeader(ParamPoint(msg.lParam))) NotifyCode(NM_RCLICK);
  return 0;
}

LRESULT SECTreeCtrl::OnContextMenu(const MSG& msg) {
  const POINT at = ParamPoint(msg.lParam);
  if (!IsOnHeader(at) || (m_tree_style & kHeaderMenu) == 0) return Default(msg, kMessages);
  OnHeaderRightClick(at);
  return 0;
}

// Header -------------------------------------------------------------------------------------------------

void SECTreeCtrl::OnHeaderRightClick(POINT) {}

bool SECTreeCtrl::IsOnHeader(POINT point) const {
  return point.y >= 0 && point.y < GetHeaderHeight();
}

void SECTreeCtrl::PressHeader(POINT point) {
  int right = ColumnLeft(GetColumnCount());
  for (int column = GetColumnCount() - 1; column >= 0; --column) {
    const int width = WidthOf(column);
    if (width > 0 && std::abs(point.x - right) <= kDividerReach) {
      m_column_drag = ColumnDrag{column, point.x, width};
      return;
    }
    right -= width;
  }
  m_header_press = ColumnAt(point.x);
}

void SECTreeCtrl::ReleaseHeader(POINT point) {
  const int column = m_header_press;
  m_header_press = -1;
  if (m_column_drag) {
    m_column_drag.reset();
  } else if (IsOnHeader(point) && ColumnAt(point.x) == column) {
    NMLVDISPINFO record;
    record.hdr.code = LVN_COLUMNCLICK;
    record.item.iItem = -1;
    record.item.iSubItem = column;
    NotifyParent(record.hdr);
  }
}

}  // namespace platform
