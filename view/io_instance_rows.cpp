// How a pane's rows come from the records.
//
// A faulty file is told to the user in the midst of it, and a read calls the host: either may close the view,
// and with it the pane. What goes on after one looks at the window first.

#include <tuple>
#include <vector>

#include "platform/gui/common_dialogs.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_ids.h"

namespace pvw {

namespace {

// Stands in a closed module for children that haven't been read, so that it has an expand box.
constexpr std::string_view kPlaceholderName = "null";

bool HasNoChildren(const CIORec& record) {
  return record.GetChildren().empty();
}

// 0 is a pane that had no window any more to begin with.
bool IsGone(platform::HWND pane) {
  return pane != 0 && !platform::IsWindow(pane);
}

int LeafImage(const CIORec& record) {
  return record.IsMissing() ? kCrossedOutPage : kPage;
}

int FirstImage(const CIORec& record) {
  if (record.IsMissing()) return kCrossedOutPage;
  return record.AreChildrenKnown() && HasNoChildren(record) ? kPage : kClosedFolder;
}

}  // namespace

CIORec* CPvwIOInstanceCtrl::FindRecord(HTREEITEM item) const {
  const auto found = m_itemMap.find(item);
  return found != m_itemMap.end() ? found->second : nullptr;
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
  m_itemMap[item] = &record;
  return item;
}

void CPvwIOInstanceCtrl::SetLeafImage(HTREEITEM item, const CIORec& record) {
  m_tree.SetItemImage(item, LeafImage(record));
}

void CPvwIOInstanceCtrl::FillTree(bool openAll) {
  const platform::HWND self = GetHandle();
  for (std::size_t i = 0; CIORec* const module = m_pIOData->GetModule(i); ++i) {
    if (!IsVisibleHere(*module)) continue;
    const HTREEITEM row = InsertRow(*module, platform::kTreeRoot);
    if (m_paneIndex != 0) continue;
    if (module->AreChildrenKnown()) {
      AddChildRows(*module, row);
      if (IsGone(self)) return;
    } else {
      m_tree.SetItemFlag(m_tree.InsertItem(kPlaceholderName, kPage, row), true);
    }
  }
  if (m_paneIndex == 1) OpenSelectedRows(openAll);
}

bool CPvwIOInstanceCtrl::AddChildRows(CIORec& record, HTREEITEM parent) {
  // The rows of a module are made in one go, against one state of the file. Selections nest as deep as their
  // text says, so the walk keeps its own stack.
  const CIODataFile::Reading reading(*m_pIOFile);
  const platform::HWND self = GetHandle();
  struct Level {
    CIORec* record;
    HTREEITEM row;
    std::size_t next;
  };
  bool added = false;
  record.SetChildrenKnown(true);
  std::vector<Level> levels{{&record, parent, 0}};
  while (!levels.empty()) {
    Level& level = levels.back();
    const CIORec::Records& children = level.record->GetChildren();
    if (level.next == children.size()) {
      levels.pop_back();
      continue;
    }
    CIORec& child = *children[level.next++];
    if (!IsVisibleHere(child)) continue;
    added = true;
    const HTREEITEM row = AddChildRow(child, level.row);
    if (!child.AreChildrenKnown()) {
      // A fault of the file has been told to the user; the row shows what could be read.
      std::ignore = child.LoadChildren(m_pIOFile, nullptr);
      if (IsGone(self)) return added;
      ApplySelectionToRow(row, child);
      if (HasNoChildren(child)) {
        SetLeafImage(row, child);
        continue;
      }
    }
    child.SetChildrenKnown(true);
    levels.push_back({&child, row, 0});
  }
  return added;
}

platform::HTREEITEM CPvwIOInstanceCtrl::AddChildRow(CIORec& child, HTREEITEM parent) {
  const HTREEITEM row = InsertRow(child, parent);
  child.UpdateEnabled();
  if (!child.IsMissing()) {
    m_tree.SetItemText(row, kAddressColumn, child.GetAddressText(0));
    m_tree.SetItemText(row, kValueColumn, child.GetValueText());
    m_tree.SetItemText(row, kAccessColumn, child.GetAccessText());
  }
  return row;
}

void CPvwIOInstanceCtrl::ApplySelectionToRow(HTREEITEM item, CIORec& record) {
  std::vector<std::string> path;
  for (HTREEITEM row = item; row != 0; row = m_tree.GetParentItem(row)) {
    path.push_back(m_tree.GetItemText(row, kNameColumn));
  }
  m_pIOData->ApplyChildSelection(&record, path);
}

void CPvwIOInstanceCtrl::OpenSelectedRows(bool openAll) {
  const platform::WaitCursor wait;
  const platform::HWND self = GetHandle();
  HTREEITEM row = m_tree.GetRootItem();
  while (row != 0) {
    const HTREEITEM next = m_tree.GetNextSiblingItem(row);
    if (CIORec* const record = FindRecord(row)) FillSelectedRow(row, *record);
    if (IsGone(self)) return;
    row = next;
  }
  if (openAll && !IsTargetRunning()) OpenRows();
}

void CPvwIOInstanceCtrl::FillSelectedRow(HTREEITEM item, CIORec& record) {
  const platform::HWND self = GetHandle();
  if (!record.AreChildrenKnown()) {
    const bool loaded = record.LoadChildren(m_pIOFile, nullptr);
    if (IsGone(self)) return;
    if (!loaded) {
      SetLeafImage(item, record);
      return;
    }
    ApplySelectionToRow(item, record);
    AddChildRows(record, item);
    if (!IsGone(self) && HasNoChildren(record)) SetLeafImage(item, record);
    return;
  }
  if (AddChildRows(record, item) || IsGone(self)) return;
  // Nothing of the module is selected any more.
  m_itemMap.erase(item);
  m_tree.DeleteItem(item);
  record.SetSelected(false);
}

void CPvwIOInstanceCtrl::OpenRows() {
  const platform::HWND self = GetHandle();
  for (HTREEITEM row = m_tree.GetRootItem(); row != 0; row = m_tree.GetNextSiblingItem(row)) {
    m_tree.Expand(row, platform::TVE_EXPAND);
    if (IsGone(self)) return;
    for (HTREEITEM child = m_tree.GetChildItem(row); child != 0; child = m_tree.GetNextSiblingItem(child)) {
      m_tree.Expand(child, platform::TVE_EXPAND);
      if (IsGone(self)) return;
    }
  }
}

void CPvwIOInstanceCtrl::RebuildTree() {
  DeleteRows();
  FillTree(true);
}

void CPvwIOInstanceCtrl::ReleaseExpandCounts() {
  for (const auto& [item, record] : m_itemMap) {
    if (record->IsExpanded() && m_tree.IsExpanded(item)) record->SetExpanded(false);
  }
  m_itemMap.clear();
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
  const platform::HWND self = GetHandle();
  if (notification.action == platform::TVE_EXPAND) OpenRow(notification.item, *record);
  if (IsGone(self)) return 1;
  if (notification.action == platform::TVE_COLLAPSE) CloseRow(notification.item, *record);
  m_pFrame->SetSessionDirty();
  return 0;
}

void CPvwIOInstanceCtrl::OpenRow(HTREEITEM item, CIORec& record) {
  const platform::HWND self = GetHandle();
  if (!record.IsMissing()) m_tree.SetItemImage(item, kOpenFolder);
  if (record.AreChildrenKnown() && HasRealChildren(item)) {
    record.SetExpanded(true);
    std::ignore = record.ReadValue(debugger);
    if (IsGone(self)) {
      record.SetExpanded(false);
    } else {
      UpdateRowValues(item);
    }
    return;
  }
  ReadChildren(item, record);
  if (IsGone(self)) return;
  // A row that has nothing below it doesn't open, so it mustn't count as open either.
  if (!m_tree.ItemHasChildren(item)) record.SetExpanded(false);
}

void CPvwIOInstanceCtrl::ReadChildren(HTREEITEM item, CIORec& record) {
  if (const HTREEITEM placeholder = m_tree.GetChildItem(item)) m_tree.DeleteItem(placeholder);
  const platform::HWND self = GetHandle();
  bool loaded = true;
  if (record.AreChildrenKnown()) {
    std::ignore = record.ReadValue(debugger);
  } else {
    loaded = record.LoadChildren(m_pIOFile, debugger);
    if (IsGone(self)) return;
    ApplySelectionToRow(item, record);
  }
  if (IsGone(self)) return;
  record.SetExpanded(true);
  if (loaded) AddChildRows(record, item);
  if (IsGone(self)) {
    record.SetExpanded(false);
    return;
  }
  if (!loaded || HasNoChildren(record)) SetLeafImage(item, record);
}

void CPvwIOInstanceCtrl::CloseRow(HTREEITEM item, CIORec& record) {
  if (!record.IsMissing()) m_tree.SetItemImage(item, kClosedFolder);
  record.SetExpanded(false);
}

}  // namespace pvw
