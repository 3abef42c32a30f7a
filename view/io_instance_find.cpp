// Searching the rows of a pane by name or by address.
//
// Rows are looked at in the order of the screen, open or not, down to bit fields. What is compared is what
// they show, without regard to case. A hit opens what is above it as the user would, with the reads that
// come with it.

#include <utility>

#include "component/services/module_state.h"
#include "frame/controls/row_walk.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "platform/gui/common_dialogs.h"
#include "resources/ids.h"
#include "support/text_search.h"
#include "view/dlg_find.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_ids.h"

namespace pvw {

namespace {

// Depths of rows; below bit fields nothing is looked at.
constexpr int kRegisterDepth = 1;
constexpr int kBitfieldDepth = 2;

}  // namespace

void CPvwIOInstanceCtrl::OnFind() {
  const CModuleState state;
  const platform::HWND self = GetHandle();
  CDlgFind dialog(nullptr);
  const auto result = dialog.DoModal();
  if (!platform::IsWindow(self)) return;
  if (result != static_cast<int>(platform::IDOK)) {
    m_findText.clear();
    return;
  }
  m_findText = dialog.GetSearchText();
  m_bFindWholeWord = dialog.GetWholeWord();
  m_findColumn = dialog.GetColumn();
  FindFirst(m_findText, m_bFindWholeWord);
}

void CPvwIOInstanceCtrl::OnFindNext() {
  FindNextMatch(m_findText, m_bFindWholeWord);
}

void CPvwIOInstanceCtrl::OnUpdateFindNext(platform::CCmdUI& ui) {
  ui.Enable(!m_findText.empty());
}

void CPvwIOInstanceCtrl::FindFirst(std::string text, bool wholeWord) {
  if (!LoadAllRows()) return;
  const Watch<CPvwIOInstanceCtrl> rows(this);
  if (const HTREEITEM hit = SearchRows(0, std::move(text), wholeWord)) {
    ShowHit(hit);
  } else if (rows.Stands()) {
    EndSearch(IDS_NAME_NOT_FOUND, IDS_ADDRESS_NOT_FOUND);
  }
}

void CPvwIOInstanceCtrl::FindNextMatch(std::string text, bool wholeWord) {
  const HTREEITEM last = m_lastFoundItem;
  const Watch<CPvwIOInstanceCtrl> rows(this);
  const HTREEITEM hit = m_tree.HasItem(last) ? SearchRows(last, std::move(text), wholeWord) : 0;
  if (hit != 0) {
    ShowHit(hit);
  } else if (rows.Stands()) {
    EndSearch(IDS_NO_MORE_NAME, IDS_NO_MORE_ADDRESS);
  }
}

// Makes the rows of every module, closed as they are, so that all registers of the device can be found. The
// target isn't touched. False when the rows have gone meanwhile: faults of the file are told to the user.
bool CPvwIOInstanceCtrl::LoadAllRows() {
  const platform::WaitCursor wait;
  const CIODataFile::Reading reading(*m_pIOFile);
  const Watch<CPvwIOInstanceCtrl> rows(this);
  HTREEITEM row = m_tree.GetRootItem();
  while (row != 0) {
    const HTREEITEM next = m_tree.GetNextSiblingItem(row);
    CIORec* const record = FindRecord(row);
    if (record != nullptr && !(record->AreChildrenKnown() && HasRealChildren(row))) {
      LoadRowsOf(row, *record);
      if (!rows.Stands()) return false;
    }
    row = next;
  }
  return true;
}

void CPvwIOInstanceCtrl::LoadRowsOf(HTREEITEM row, CIORec& record) {
  const Watch<CPvwIOInstanceCtrl> rows(this);
  if (const HTREEITEM child = m_tree.GetChildItem(row)) m_tree.DeleteItem(child);
  const bool loaded = record.AreChildrenKnown() || record.LoadChildren(m_pIOFile, nullptr);
  if (!rows.Stands()) return;
  if (loaded) {
    ApplySelectionToRow(row, record);
    AddChildRows(record, row);
    if (!rows.Stands() || !record.GetChildren().empty()) return;
  }
  SetLeafImage(row, record);
}

// The first row strictly behind `behind` that has the text; from the top with 0. 0 for none, and when the
// rows have gone meanwhile: addresses are the host's texts.
platform::HTREEITEM CPvwIOInstanceCtrl::SearchRows(HTREEITEM behind, std::string text, bool wholeWord) const {
  const bool by_name = m_findColumn == CDlgFind::kNameColumn;
  const auto shown = [&](HTREEITEM row, const CIORec& record) {
    return platform::LowerCase(by_name ? m_tree.GetItemText(row, kNameColumn) : record.GetAddressText(0));
  };
  text = platform::LowerCase(text);
  const Watch<CPvwIOInstanceCtrl> rows(this);
  RowWalk walk(m_tree, by_name ? kBitfieldDepth : kRegisterDepth);
  if (behind != 0) walk.StartBehind(behind);
  for (; walk.Row() != 0; walk.Next()) {
    const CIORec* const record = FindRecord(walk.Row());
    if (record == nullptr || (!by_name && walk.Depth() != kRegisterDepth)) continue;
    const std::string found = shown(walk.Row(), *record);
    if (!rows.Stands()) return 0;
    if (wholeWord ? found == text : ContainsText(found, text)) return walk.Row();
  }
  return 0;
}

void CPvwIOInstanceCtrl::ShowHit(HTREEITEM row) {
  const Watch<CPvwIOInstanceCtrl> rows(this);
  const HTREEITEM parent = m_tree.GetParentItem(row);
  for (const HTREEITEM above : {m_tree.GetParentItem(parent), parent}) {
    if (above != 0) m_tree.Expand(above, platform::TVE_EXPAND);
    if (!rows.Stands()) return;
  }
  m_tree.SelectItem(row);
  if (!rows.Stands()) return;
  platform::SetFocus(m_tree.GetHandle());
  if (rows.Stands()) m_lastFoundItem = row;
}

void CPvwIOInstanceCtrl::EndSearch(std::uint32_t name_message, std::uint32_t address_message) {
  const bool by_name = m_findColumn == CDlgFind::kNameColumn;
  const platform::HWND self = GetHandle();
  platform::MessageBox(platform::LoadString(by_name ? name_message : address_message), platform::MB_OK);
  if (platform::IsWindow(self)) m_findText.clear();
}

}  // namespace pvw
