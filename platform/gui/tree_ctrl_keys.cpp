// What the keyboard does: moving, opening, and finding a row by the first letters of its name.

#include <algorithm>

#include "platform/base/text.h"
#include "platform/gui/text_edit.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/gui/tree_rows.h"

namespace platform {

namespace {

constexpr UINT kLettersTime = 1000;  // milliseconds without a letter, after which a new name begins

}  // namespace

LRESULT SECTreeCtrl::OnKeyDown(const MSG& msg) {
  const HWND self = msg.hwnd;
  const auto key = static_cast<UINT>(msg.wParam);
  StopWaitingForEdit();
  NMTREEVIEW record;
  record.hdr.code = TVN_KEYDOWN;
  record.item = m_selected;
  record.key = key;
  NotifyParent(record.hdr);
  if (IsGone(self)) return 0;
  if ((msg.modifiers & (MK_CONTROL | MK_ALT)) != 0) return Default(msg, kMessages);
  switch (key) {
    case VK_RETURN:
      NotifyCode(NM_RETURN);
      return 0;
    case VK_F2:
      EditCell(m_selected, 0);
      return 0;
    case VK_SPACE:
      if (m_typed.empty()) ToggleCheck(m_selected);
      return 0;
    default:
      return MoveSelection(key) || OpenByKey(key) ? 0 : Default(msg, kMessages);
  }
}

bool SECTreeCtrl::MoveSelection(UINT key) {
  const int last = static_cast<int>(GetRowCount()) - 1;
  const int row = GetRowOfItem(m_selected);
  const int page = std::max(GetPageRows() - 1, 1);
  int to = 0;
  switch (key) {
    case VK_UP:
      to = row - 1;
      break;
    case VK_DOWN:
      to = row + 1;
      break;
    case VK_PRIOR:
      to = row - page;
      break;
    case VK_NEXT:
      to = row + page;
      break;
    case VK_HOME:
      break;
    case VK_END:
      to = last;
      break;
    default:
      return false;
  }
  if (row < 0 && key != VK_END) to = 0;
  if (last >= 0) SelectItem(GetItemAtRow(static_cast<std::size_t>(std::clamp(to, 0, last))));
  return true;
}

bool SECTreeCtrl::OpenByKey(UINT key) {
  const HTREEITEM item = m_selected;
  switch (key) {
    case VK_LEFT:
      if (IsExpanded(item)) {
        Expand(item, TVE_COLLAPSE);
      } else if (GetParentItem(item) != 0) {
        SelectItem(GetParentItem(item));
      }
      return true;
    case VK_RIGHT:
      if (IsExpanded(item)) {
        SelectItem(GetChildItem(item));
      } else {
        Expand(item, TVE_EXPAND);
      }
      return true;
    case VK_SUBTRACT:
      Expand(item, TVE_COLLAPSE);
      return true;
    case VK_ADD:
      Expand(item, TVE_EXPAND);
      return true;
    case VK_MULTIPLY:
      ExpandAllBelow(item);
      return true;
    default:
      return false;
  }
}

// Row by row in the order in which they show, since each opening may bring in, or take away, the next ones.
void SECTreeCtrl::ExpandAllBelow(HTREEITEM item) {
  const HWND self = GetHandle();
  if (GetRowOfItem(item) < 0) return;
  HTREEITEM at = item;
  while (true) {
    Expand(at, TVE_EXPAND);
    if (IsGone(self)) return;
    const int row = GetRowOfItem(at);
    if (row < 0) return;
    at = GetItemAtRow(static_cast<std::size_t>(row) + 1);
    if (at == 0 || !IsBelow(at, item)) return;
  }
}

LRESULT SECTreeCtrl::OnChar(const MSG& msg) {
  // What a key has done already isn't the beginning of a name.
  constexpr std::string_view kKeys = " +-*";
  const std::string typed = text_edit::CharText(msg.wParam);
  if (typed.empty() || (m_typed.empty() && kKeys.find(typed) != std::string_view::npos)) return 0;
  m_typed += typed;
  SetTimer(msg.hwnd, kForgetLettersTimer, kLettersTime);
  SelectByLetters();
  return 0;
}

// A first letter leads to the next row that begins with it, further ones stay on a row that still fits.
void SECTreeCtrl::SelectByLetters() {
  const std::size_t count = GetRowCount();
  if (count == 0) return;
  const int selected = GetRowOfItem(m_selected);
  const bool goes_on = CharCount(m_typed) > 1 && selected >= 0;
  std::size_t row = static_cast<std::size_t>(selected + (goes_on ? 0 : 1)) % count;
  const RowSequence& order = m_rows->Order();
  RowSequence::Row at = order.At(row);
  for (std::size_t seen = 0; seen < count; ++seen) {
    if (StartsWithNoCase(m_rows->Text(at, 0), m_typed)) {
      SelectItem(m_rows->HandleOf(at));
      return;
    }
    at = order.Next(at);
    if (at == RowSequence::kRoot) at = order.At(0);
  }
}

}  // namespace platform
