// The grid that fills a pane of the I/O view: a tree in the first column, texts in the others.
//
// On top of the base control it shows changed rows in red, lets the user hide columns from the header's menu,
// keeps widths, open rows and scroll positions, and writes itself out as text, to a file or a printer.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "component/services/session_store.h"
#include "frame/controls/row_table.h"
#include "frame/controls/tree_list_edit.h"
#include "frame/controls/tree_text_dump.h"
#include "host/workspace_services.h"
#include "platform/gui/tree_ctrl.h"

namespace pvw {

class CTreeGridCtrl : public platform::SECTreeCtrl {
 public:
  CTreeGridCtrl();
  static const platform::MessageTable kMessages;

  // Rows that are drawn red in all their columns. A row that is deleted needn't be taken out, since its
  // handle never comes back; the owner clears all when it deletes all.
  void MarkChanged(platform::HTREEITEM item);
  void ClearChanged();
  bool IsChanged(platform::HTREEITEM item) const {
    const std::uint32_t* const generation = m_changedItems.Find(item);
    return generation != nullptr && *generation == m_changeGeneration;
  }

  // State. Results are always 0; what a store or the host refuses is lost.
  // Session: widths under `key` + "ColWidth" + column, when there is more than one column; then the open rows
  // (see tree_grid_state.h); then "ScrollHorz" and "ScrollVert". A hidden column is stored as the negated
  // width that it had before. One without a stored width comes up hidden, with a width of 1 before. Opening
  // rows asks the owner, who may refuse, and may destroy the window, which ends the load.
  platform::Status SaveState(CSessionStore& store, std::string_view key) const;
  platform::Status LoadState(CSessionStore& store, std::string_view key);
  // User settings: widths as above, by section. Without the service, or with one column, nothing happens; a
  // column that the service has no width for stays as it is.
  platform::Status SaveColumnWidths(IQSettings* settings, std::string_view section) const;
  platform::Status LoadColumnWidths(IQSettings* settings, std::string_view section);

  // The text of a cell of the row at that index among those that aren't under a closed one.
  const std::string& GetCellText(std::size_t index, int column) const;
  // Whether the selected row lies below this one, shown or not.
  bool HasSelectedDescendant(platform::HTREEITEM item) const;
  // False, and `text` is left alone, while no edit is open.
  bool GetEditText(std::string& text) const;
  // Before the window goes with an edit open: neither the edit nor the grid acts on losing the focus then.
  void MarkEditClosing();

  // What shows, as text: titles and rule when the header is on, then a line for each row that isn't under a
  // closed one. The file has CR LF at its line ends and is written whole or not at all; `path` is a drive
  // path. False when it can't be written.
  bool DumpToFile(const std::string& path) override;
  // The same with LF; nothing is remembered of it.
  std::string GetDumpText() override;
  // Asks for a printer and prints the dump by way of a file in the temp directory.
  void Print();

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  platform::COLORREF GetRowTextColour(platform::HTREEITEM item, platform::COLORREF normal) const override;
  void OnHeaderRightClick(platform::POINT point) override;

 private:
  const CTreeListEdit& Edit() const;
  platform::LRESULT OnCommandMessage(const platform::MSG& msg);
  platform::LRESULT OnKillFocus(const platform::MSG& msg);
  void ToggleColumn(int column);

  // The form in which a width is stored, and its way back; `number` greater than 0 is a width.
  std::int32_t StoredWidth(int column) const;
  void HideColumn(int column, std::int32_t number);
  std::uint32_t HiddenWidth(int column) const;
  void SetHiddenWidth(int column, std::uint32_t width);

  DumpHeader LayOutTitles() const;
  std::string DumpText(const DumpHeader& header) const;

  std::string m_headerLine;  // of the last dump to a file that had one
  std::string m_ruleLine;
  CRowTable<std::uint32_t> m_changedItems;  // the generation of marks that a row was marked in last
  std::uint32_t m_changeGeneration = 1;
  bool m_hasChanged = false;
  std::vector<std::uint32_t> m_hiddenWidths;  // by column; 0 for those behind its end
  std::array<std::size_t, kMostColumns> m_dumpWidths{};
};

}  // namespace pvw
