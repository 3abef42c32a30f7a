// How a pane's rows come from the records.
//
// A faulty file is told to the user in the midst of it, and the host is called for reads and for texts of
// addresses and bit fields: either may close the view, load another file or disconnect. What goes on after
// one asks whether the pane's rows still stand.

#include <tuple>
#include <utility>

#include "frame/controls/tree_grid_state.h"
#include "platform/gui/common_dialogs.h"
#include "view/dlg_progress.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_ids.h"

namespace pvw {

namespace {

// Stands in a closed module for children that haven't been read, so that it has an expand box.
constexpr std::string_view kPlaceholderName = "null";

}  // namespace

CIORec* CPvwIOInstanceCtrl::FindRecord(HTREEITEM item) const {
  CIORec* const* const record = m_itemMap.Find(item);
  return record != nullptr ? *record : nullptr;
}

bool CPvwIOInstanceCtrl::HasRealChildren(HTREEITEM item) const {
  if (m_tree.GetParentItem(item) != 0) return true;
  const HTREEITEM child = m_tree.GetChildItem(item);
  return child == 0 || !m_tree.GetItemFlag(child);
}

bool CPvwIOInstanceCtrl::IsVisibleHere(const CIORec& record) const {
  return m_paneIndex == 0 ? !record.IsMissing() : record.IsSelected();
}

platform::HTREEITEM CPvwIOInstanceCtrl::InsertRow(CIORec& record, HTREEITEM parent) {
  const HTREEITEM item = m_tree.InsertItem(record.GetName(), FirstImage(record), parent);
  m_itemMap.Set(item, &record);
  return item;
}

void CPvwIOInstanceCtrl::SetLeafImage(HTREEITEM item, const CIORec& record) {
  m_tree.SetItemImage(item, LeafImage(record));
}

void CPvwIOInstanceCtrl::FillTree(bool openAll) {
  const Watch<CPvwIOInstanceCtrl> rows(this);
  for (std::size_t i = 0; CIORec* const module = m_pIOData->GetModule(i); ++i) {
    if (!IsVisibleHere(*module)) continue;
    const HTREEITEM row = InsertRow(*module, platform::kTreeRoot);
    if (m_paneIndex != 0) continue;
    if (module->AreChildrenKnown()) {
      AddChildRows(*module, row);
      if (!rows.Stands()) return;
    } else {
      m_tree.SetItemFlag(m_tree.InsertItem(kPlaceholderName, kPage, row), true);
    }
  }
  if (m_paneIndex == 1) OpenSelectedRows(openAll);
}

RecordRows CPvwIOInstanceCtrl::Records() {
  return {m_tree, *m_pIOFile, *m_pIOData};
}

bool CPvwIOInstanceCtrl::AddChildRows(CIORec& record, HTREEITEM parent) {
  return Records().AddBelow(record, parent, [this](CIORec& child, HTREEITEM row) {
    return IsVisibleHere(child) ? AddChildRow(child, row) : 0;
  });
}

platform::HTREEITEM CPvwIOInstanceCtrl::AddChildRow(CIORec& child, HTREEITEM parent) {
  const HTREEITEM row = InsertRow(child, parent);
  child.UpdateEnabled();
  if (child.IsMissing()) return row;
  const Watch<CPvwIOInstanceCtrl> rows(this);
  const std::string address = child.GetAddressText(0);
  if (!rows.Stands()) return kRowsGone;
  const std::string value = child.GetValueText();
  if (!rows.Stands()) return kRowsGone;
  m_tree.SetItemText(row, kAddressColumn, address);
  m_tree.SetItemText(row, kValueColumn, value);
  m_tree.SetItemText(row, kAccessColumn, child.GetAccessText());
  return row;
}

void CPvwIOInstanceCtrl::ApplySelectionToRow(HTREEITEM item, CIORec& record) {
  Records().ApplySelection(item, record);
}

void CPvwIOInstanceCtrl::OpenSelectedRows(bool openAll) {
  const platform::WaitCursor wait;
  const Watch<CPvwIOInstanceCtrl> rows(this);
  HTREEITEM row = m_tree.GetRootItem();
  while (row != 0) {
    const HTREEITEM next = m_tree.GetNextSiblingItem(row);
    if (CIORec* const record = FindRecord(row)) FillSelectedRow(row, *record);
    if (!rows.Stands()) return;
    row = next;
  }
  if (openAll && !IsTargetRunning() && rows.Stands()) OpenRows();
}

void CPvwIOInstanceCtrl::FillSelectedRow(HTREEITEM item, CIORec& record) {
  const Watch<CPvwIOInstanceCtrl> rows(this);
  if (!record.AreChildrenKnown()) {
    const bool loaded = record.LoadChildren(m_pIOFile, nullptr);
    if (!rows.Stands()) return;
    if (!loaded) {
      SetLeafImage(item, record);
      return;
    }
    ApplySelectionToRow(item, record);
    AddChildRows(record, item);
    if (rows.Stands() && HasNoChildren(record)) SetLeafImage(item, record);
    return;
  }
  if (AddChildRows(record, item) || !rows.Stands()) return;
  // Nothing of the module is selected any more.
  m_itemMap.Erase(item);
  m_tree.DeleteItem(item);
  record.SetSelected(false);
}

void CPvwIOInstanceCtrl::OpenRows() {
  std::int32_t count = 0;
  for (HTREEITEM row = m_tree.GetRootItem(); row != 0; row = NextRow(m_tree, row, true)) {
    if (m_tree.ItemHasChildren(row)) ++count;
  }
  if (count == 0) return;
  CDlgProgress dialog(count, *this);
  RunDialog(dialog);
}

void CPvwIOInstanceCtrl::RebuildTree() {
  DeleteRows();
  FillTree(true);
}

void CPvwIOInstanceCtrl::ReleaseExpandCounts() {
  Watch<CPvwIOInstanceCtrl>::OnGone(this);
  EndDialogs();
  m_itemMap.ForEach([this](HTREEITEM item, CIORec* record) {
    if (record->IsExpanded() && m_tree.IsExpanded(item)) record->SetExpanded(false);
  });
  // A row that is being opened counts, and doesn't look open yet.
  for (CIORec* const record : std::exchange(m_opening, {})) record->SetExpanded(false);
  m_itemMap.Clear();
}

void CPvwIOInstanceCtrl::DeleteRows() {
  ReleaseExpandCounts();
  m_tree.DeleteAllItems();
  m_tree.ClearChanged();
}

// Opening and closing ------------------------------------------------------------------------------------

platform::LRESULT CPvwIOInstanceCtrl::OnItemExpanding(platform::NMHDR& header) {
  if (m_pFrame->IsRefreshLocked()) return 1;
  const auto& notification = reinterpret_cast<const platform::NMTREEVIEW&>(header);
  CIORec* const record = FindRecord(notification.item);
  if (record == nullptr) return 1;
  const Watch<CPvwIOInstanceCtrl> rows(this);
  if (notification.action == platform::TVE_EXPAND) OpenRow(notification.item, *record);
  if (!rows.Stands()) return 1;
  if (notification.action == platform::TVE_COLLAPSE) CloseRow(notification.item, *record);
  m_pFrame->SetSessionDirty();
  return 0;
}

void CPvwIOInstanceCtrl::OpenRow(HTREEITEM item, CIORec& record) {
  const Watch<CPvwIOInstanceCtrl> rows(this);
  if (!record.IsMissing()) m_tree.SetItemImage(item, kOpenFolder);
  bool loaded = true;
  if (record.AreChildrenKnown() && HasRealChildren(item)) {
    CountOpening(record);
    std::ignore = record.ReadValue(debugger);
    if (rows.Stands()) UpdateRowValues(item);
  } else {
    loaded = ReadChildren(item, record);
  }
  if (!rows.Stands()) return;
  m_opening.pop_back();
  // A row that has nothing below it doesn't open, and one that the host has opened in the midst of a read
  // doesn't open twice, so they mustn't count. A module with a fault does count: that tells who loads it next
  // to take what there is.
  if ((loaded && !m_tree.ItemHasChildren(item)) || m_tree.IsExpanded(item)) record.SetExpanded(false);
}

void CPvwIOInstanceCtrl::CountOpening(CIORec& record) {
  record.SetExpanded(true);
  m_opening.push_back(&record);
}

bool CPvwIOInstanceCtrl::ReadChildren(HTREEITEM item, CIORec& record) {
  if (const HTREEITEM placeholder = m_tree.GetChildItem(item)) m_tree.DeleteItem(placeholder);
  const Watch<CPvwIOInstanceCtrl> rows(this);
  bool loaded = true;
  if (record.AreChildrenKnown()) {
    std::ignore = record.ReadValue(debugger);
  } else {
    loaded = record.LoadChildren(m_pIOFile, debugger);
    if (rows.Stands()) ApplySelectionToRow(item, record);
  }
  if (!rows.Stands()) return false;
  CountOpening(record);
  if (loaded) AddChildRows(record, item);
  if (!rows.Stands()) return false;
  if (!loaded || HasNoChildren(record)) SetLeafImage(item, record);
  return loaded;
}

void CPvwIOInstanceCtrl::CloseRow(HTREEITEM item, CIORec& record) {
  if (!record.IsMissing()) m_tree.SetItemImage(item, kClosedFolder);
  record.SetExpanded(false);
}

}  // namespace pvw
