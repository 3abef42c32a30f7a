// A list to pick from, with an edit above it or, by its style, without. Stands in for the system's combo box.
//
// The parent gets CBN_SELCHANGE when the user picked an entry, by then the text; CBN_EDITUPDATE before a
// typed change shows and CBN_EDITCHANGE after. What the program sets, nobody is told.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/gui/text_edit.h"
#include "platform/gui/window.h"

namespace platform {

class CComboBox : public CWnd {
 public:
  WindowKind GetKind() const override { return WindowKind::ComboBox; }
  bool HasEdit() const { return (GetStyle() & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST; }

  void AddString(std::string_view text);
  const std::vector<std::string>& GetStrings() const { return m_strings; }
  // -1: none is picked, or the text was typed.
  int GetCurSel() const { return m_picked; }
  // The entry becomes the text; -1, or one that isn't there, picks none and leaves an edit's text.
  void SetCurSel(int index);
  // Without an edit, the text is an entry's or nothing changes.
  void SetText(std::string_view text) override;

  // Of the edit, in bytes; (0, 0) without one.
  std::size_t GetEditSelStart() const { return m_selection.Start(); }
  std::size_t GetEditSelEnd() const { return m_selection.End(); }
  void SetEditSel(std::size_t start, std::size_t end);
  void SelectAll() { SetEditSel(0, GetText().size()); }
  // As if the user typed or pasted it.
  void ReplaceEditSel(std::string_view text);

  // The user changed the widget's text, its selection alone, or picked an entry.
  void PeerEdited(std::string_view text, std::size_t start, std::size_t end);
  void PeerSelected(std::size_t start, std::size_t end);
  void PeerPicked(int index);

 protected:
  LRESULT DefWindowProc(const MSG& msg) override;
  void TakeStateFrom(CWnd& from) override;

 private:
  void Change(std::string text, text_edit::Selection selection);
  bool HandleKey(const MSG& msg);
  void Store(std::string text, text_edit::Selection selection);

  std::vector<std::string> m_strings;
  int m_picked = -1;
  text_edit::Selection m_selection;
  unsigned m_changes = 0;
};

}  // namespace platform
