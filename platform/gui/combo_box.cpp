#include "platform/gui/combo_box.h"

#include <algorithm>

#include "platform/gui/display.h"

namespace platform {

void CComboBox::AddString(std::string_view text) {
  m_strings.emplace_back(text);
  UpdatePeer(Part::Items);
}

void CComboBox::Store(std::string text, text_edit::Selection selection) {
  StoreText(std::move(text));
  m_selection = {text_edit::Snap(GetText(), selection.anchor), text_edit::Snap(GetText(), selection.caret)};
  ++m_changes;
}

void CComboBox::SetCurSel(int index) {
  const bool there = index >= 0 && static_cast<std::size_t>(index) < m_strings.size();
  m_picked = there ? index : -1;
  if (there) {
    const std::string& text = m_strings[static_cast<std::size_t>(index)];
    Store(text, {0, HasEdit() ? text.size() : 0});
  } else if (!HasEdit()) {
    Store({}, {});
  }
  UpdatePeer(Part::Text);
  UpdatePeer(Part::Selection);
}

void CComboBox::SetText(std::string_view text) {
  if (!HasEdit()) {
    const auto found = std::find(m_strings.begin(), m_strings.end(), text);
    if (found != m_strings.end()) SetCurSel(static_cast<int>(found - m_strings.begin()));
    return;
  }
  m_picked = -1;
  Store(std::string(text), {});
  UpdatePeer(Part::Text);
  UpdatePeer(Part::Selection);
}

void CComboBox::SetEditSel(std::size_t start, std::size_t end) {
  if (!HasEdit()) return;
  m_selection = {text_edit::Snap(GetText(), start), text_edit::Snap(GetText(), end)};
  UpdatePeer(Part::Selection);
}

void CComboBox::ReplaceEditSel(std::string_view text) {
  if (!HasEdit()) return;
  text_edit::Line line = text_edit::Insert({GetText(), m_selection}, text);
  Change(std::move(line.text), line.selection);
}

void CComboBox::PeerEdited(std::string_view text, std::size_t start, std::size_t end) {
  if (HasEdit()) Change(std::string(text), {start, end});
}

void CComboBox::PeerSelected(std::size_t start, std::size_t end) {
  if (!HasEdit()) return;
  m_selection = {text_edit::Snap(GetText(), start), text_edit::Snap(GetText(), end)};
}

void CComboBox::PeerPicked(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= m_strings.size()) return;
  SetCurSel(index);
  NotifyParentCommand(CBN_SELCHANGE);
}

void CComboBox::Change(std::string text, text_edit::Selection selection) {
  m_picked = -1;
  Store(std::move(text), selection);
  const HWND self = GetHandle();
  const unsigned change = m_changes;
  NotifyParentCommand(CBN_EDITUPDATE);
  if (!IsWindow(self)) return;
  // A text that a handler put in its place shows already.
  if (change == m_changes) {
    UpdatePeer(Part::Text);
    UpdatePeer(Part::Selection);
  }
  NotifyParentCommand(CBN_EDITCHANGE);
}

bool CComboBox::HandleKey(const MSG& msg) {
  if (msg.modifiers & (MK_CONTROL | MK_ALT)) return false;
  if (msg.wParam == VK_UP || msg.wParam == VK_DOWN) {
    const int index = m_picked + (msg.wParam == VK_UP ? -1 : 1);
    PeerPicked(index);
    return true;
  }
  if (!HasEdit()) return false;
  std::optional<text_edit::Line> line =
      text_edit::ApplyKey({GetText(), m_selection}, static_cast<UINT>(msg.wParam), msg.modifiers);
  if (!line) return false;
  if (line->text == GetText()) {
    SetEditSel(line->selection.anchor, line->selection.caret);
  } else {
    Change(std::move(line->text), line->selection);
  }
  return true;
}

LRESULT CComboBox::DefWindowProc(const MSG& msg) {
  switch (msg.message) {
    case WM_LBUTTONDOWN: {
      const HWND self = msg.hwnd;
      SetFocus(self);
      if (IsWindow(self)) PeerDefault(msg);
      return 0;
    }
    case WM_KEYDOWN:
      if (PeerDefault(msg) || HandleKey(msg)) return 0;
      return CWnd::DefWindowProc(msg);
    case WM_CHAR:
      if (!PeerDefault(msg)) ReplaceEditSel(text_edit::CharText(msg.wParam));
      return 0;
    default:
      return CWnd::DefWindowProc(msg);
  }
}

void CComboBox::TakeStateFrom(CWnd& from) {
  // The kinds are the same, and this class alone has that kind.
  auto& combo = static_cast<CComboBox&>(from);
  m_strings = std::move(combo.m_strings);
  m_picked = combo.m_picked;
  m_selection = combo.m_selection;
}

}  // namespace platform
