// The in-place edit of a cell, from the notification that allows it to the one that takes its text.

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/gui/display.h"
#include "platform/gui/list_edit.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/gui/tree_layout.h"

namespace platform {

namespace {

NMLVDISPINFO RecordOf(int row, int column, UINT list_code, UINT tree_code) {
  NMLVDISPINFO record;
  record.hdr.code = column > 0 ? list_code : tree_code;
  record.item.iItem = row;
  record.item.iSubItem = column;
  return record;
}

}  // namespace

void SECTreeCtrl::SetListEdit(std::unique_ptr<SECListEdit> edit) {
  assert(!IsEditing());
  m_edit = std::move(edit);
}

bool SECTreeCtrl::IsEditing() const {
  return m_edit_item != 0 && m_edit->Exists();
}

bool SECTreeCtrl::EditCell(HTREEITEM item, int column) {
  const HWND self = GetHandle();
  StopWaitingForEdit();
  if (m_beginning) return false;
  EndEdit();
  if (IsGone(self) || IsEditing() || GetCellRect(item, column).IsEmpty()) return false;

  NMLVDISPINFO begin = RecordOf(GetRowOfItem(item), column, LVN_BEGINLABELEDIT, TVN_BEGINLABELEDIT);
  begin.item.mask = LVIF_TEXT;
  begin.item.pszText = GetItemText(item, column);
  m_beginning = true;
  const LRESULT refused = NotifyParent(begin.hdr);
  if (IsGone(self)) return false;
  m_beginning = false;
  if (refused != 0 || GetCellRect(item, column).IsEmpty()) return false;

  EnsureVisible(item);
  const RECT cell = GetCellRect(item, column);
  const int client_right = GetClientRect().right;
  if (cell.right > client_right) {
    SetScrollPos(false, m_scroll_x + std::min(cell.right - client_right, cell.left));
  }
  if (cell.left < 0) SetScrollPos(false, m_scroll_x + cell.left);
  m_edit_item = item;
  m_edit_column = column;
  if (!m_edit->Create({WS_CHILD | WS_VISIBLE, 0, {}, self, 0, GetItemText(item, column)})) {
    CloseEdit();
    return false;
  }
  PlaceEdit();
  m_edit->SelectAll();
  Invalidate();
  SetFocus(m_edit->GetHandle());
  return !IsGone(self) && IsEditing() && m_edit_item == item;
}

void SECTreeCtrl::EndEdit(bool keep) {
  if (!IsEditing() || m_ending) return;
  const HWND self = GetHandle();
  const HWND edit = m_edit->GetHandle();
  NMLVDISPINFO end = RecordOf(GetRowOfItem(m_edit_item), m_edit_column, LVN_ENDLABELEDIT, TVN_ENDLABELEDIT);
  if (keep) {
    end.item.mask = LVIF_TEXT;
    end.item.pszText = m_edit->GetText();
  }
  // The edit stays open meanwhile, since the owner asks for its text. A message box takes the focus from it,
  // which must not end it again.
  m_ending = true;
  const LRESULT takes = NotifyParent(end.hdr);
  if (IsGone(self)) return;
  if (keep && takes != 0) SetItemText(m_edit_item, m_edit_column, end.item.pszText);
  if (CWnd* window = CWnd::FromHandle(edit)) window->DestroyWindow();
  if (IsGone(self)) return;
  CloseEdit();
  Invalidate();
}

// No edit is open or on its way any more.
void SECTreeCtrl::CloseEdit() {
  m_edit_item = 0;
  m_edit_column = -1;
  m_beginning = false;
  m_ending = false;
  StopWaitingForEdit();
}

// The edit covers its cell as far as that is in view; of the first column, the label.
void SECTreeCtrl::PlaceEdit() {
  if (!IsEditing()) return;
  RECT place = GetCellRect(m_edit_item, m_edit_column);
  if (m_edit_column == 0 && !place.IsEmpty()) {
    place.left = tree_layout::PartsOf(ShapeOf(RowOf(m_edit_item), place), Origin()).label.left;
  }
  RECT body = GetClientRect();
  body.top = GetHeaderHeight();
  place = place.Intersect(body);
  m_edit->MoveWindow(place.IsEmpty() ? RECT() : place);
}

}  // namespace platform
