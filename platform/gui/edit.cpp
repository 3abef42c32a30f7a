#include "platform/gui/edit.h"

#include <string>
#include <utility>

#include "platform/gui/display.h"

namespace platform {

void CEdit::SetText(std::string_view text) {
  Change(std::string(text), {});
}

void CEdit::SetSel(std::size_t start, std::size_t end) {
  m_selection = {text_edit::Snap(GetText(), start), text_edit::Snap(GetText(), end)};
  UpdatePeer(Part::Selection);
}

void CEdit::ReplaceSel(std::string_view text) {
  if (IsReadOnly()) return;
  text_edit::Line line = text_edit::Insert({GetText(), m_selection}, text);
  Change(std::move(line.text), line.selection);
}

void CEdit::PeerEdited(std::string_view text, std::size_t start, std::size_t end) {
  Change(std::string(text), {start, end});
}

void CEdit::PeerSelected(std::size_t start, std::size_t end) {
  m_selection = {text_edit::Snap(GetText(), start), text_edit::Snap(GetText(), end)};
}

void CEdit::Change(std::string text, text_edit::Selection selection) {
  StoreText(std::move(text));
  m_selection_before = m_selection;
  m_selection = {text_edit::Snap(GetText(), selection.anchor), text_edit::Snap(GetText(), selection.caret)};
  const HWND self = GetHandle();
  const unsigned change = ++m_changes;
  NotifyParentCommand(EN_UPDATE);
  if (!IsWindow(self)) return;
  // A text that a handler put in its place shows already.
  if (change == m_changes) {
    UpdatePeer(Part::Text);
    UpdatePeer(Part::Selection);
  }
  NotifyParentCommand(EN_CHANGE);
}

bool CEdit::HandleKey(const MSG& msg) {
  std::optional<text_edit::Line> line =
      text_edit::ApplyKey({GetText(), m_selection}, static_cast<UINT>(msg.wParam), msg.modifiers);
  if (!line) return false;
  if (line->text == GetText()) {
    SetSel(line->selection.anchor, line->selection.caret);
  } else if (!IsReadOnly()) {
    Change(std::move(line->text), line->selection);
  }
  return true;
}

LRESULT CEdit::DefWindowProc(const MSG& msg) {
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
      if (!PeerDefault(msg)) ReplaceSel(text_edit::CharText(msg.wParam));
      return 0;
    default:
      return CWnd::DefWindowProc(msg);
  }
}

void CEdit::TakeStateFrom(CWnd& from) {
  // The kinds are the same, and this class alone has that kind.
  m_selection = static_cast<CEdit&>(from).m_selection;
}

}  // namespace platform
