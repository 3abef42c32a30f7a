// A line of text that the user edits. Stands in for the system's edit control.
//
// After a change, by the user or by SetText, the parent gets EN_UPDATE before it shows and EN_CHANGE after.
// Positions are bytes of the code page between whole characters; others fall back to the character's start.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/gui/text_edit.h"
#include "platform/gui/window.h"

namespace platform {

class CEdit : public CWnd {
 public:
  WindowKind GetKind() const override { return WindowKind::Edit; }
  bool IsReadOnly() const { return (GetStyle() & ES_READONLY) != 0; }
  // The caret goes to the start.
  void SetText(std::string_view text) override;
  std::size_t GetSelStart() const { return m_selection.Start(); }
  std::size_t GetSelEnd() const { return m_selection.End(); }
  // While a change is told of, what was selected before it.
  const text_edit::Selection& GetSelBeforeChange() const { return m_selection_before; }
  // The caret is at `end`. Tells nobody but the peer.
  void SetSel(std::size_t start, std::size_t end);
  void SelectAll() { SetSel(0, GetText().size()); }
  // As if the user typed or pasted it; not into a read-only edit.
  void ReplaceSel(std::string_view text);

  // The user changed the widget's text, with the selection that goes with it; the selection alone.
  void PeerEdited(std::string_view text, std::size_t start, std::size_t end);
  void PeerSelected(std::size_t start, std::size_t end);

 protected:
  LRESULT DefWindowProc(const MSG& msg) override;
  void TakeStateFrom(CWnd& from) override;

 private:
  void Change(std::string text, text_edit::Selection selection);
  bool HandleKey(const MSG& msg);

  text_edit::Selection m_selection;
  text_edit::Selection m_selection_before;
  unsigned m_changes = 0;
};

}  // namespace platform
