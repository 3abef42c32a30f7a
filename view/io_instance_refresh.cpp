// What brings a pane's rows up to date with the records, and the records with the file.

#include <limits>
#include <tuple>

#include "frame/controls/row_walk.h"
#include "platform/base/files.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/placeholder_expander.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_ids.h"

namespace pvw {

void CPvwIOInstanceCtrl::RefreshData() {
  // Marks last until the next stop of the target, which shows only what it changed itself.
  if (m_pFrame->IsTargetUpdate()) m_tree.ClearChanged();
  const Watch<CPvwIOInstanceCtrl> rows(this);
  m_itemMap.ForEach([&](HTREEITEM item, CIORec* record) {
    RefreshRow(item, *record, rows);
    return rows.Stands();
  });
}

void CPvwIOInstanceCtrl::RefreshRow(HTREEITEM item, CIORec& record, const Watch<CPvwIOInstanceCtrl>& rows) {
  record.UpdateEnabled();
  if (record.IsMissing()) return;
  const std::string text = record.GetValueText();
  if (!rows.Stands()) return;
  const std::string& old = m_tree.GetItemText(item, kValueColumn);
  if (old == text) return;
  const bool changed = !old.empty();
  m_tree.SetItemText(item, kValueColumn, text);
  if (!changed) return;
  m_tree.MarkChanged(item);
  for (HTREEITEM child = m_tree.GetChildItem(item); child != 0; child = m_tree.GetNextSiblingItem(child)) {
    m_tree.MarkChanged(child);
  }
}

void CPvwIOInstanceCtrl::UpdateRowValues(HTREEITEM item) {
  const Watch<CPvwIOInstanceCtrl> rows(this);
  UpdateRowValue(item, rows);
  if (!rows.Stands()) return;
  for (RowWalk walk(m_tree, std::numeric_limits<int>::max(), item); walk.Row() != 0; walk.Next()) {
    UpdateRowValue(walk.Row(), rows);
    if (!rows.Stands()) return;
  }
}

void CPvwIOInstanceCtrl::UpdateRowValue(HTREEITEM item, const Watch<CPvwIOInstanceCtrl>& rows) {
  CIORec* const record = FindRecord(item);
  if (record == nullptr) return;
  record->UpdateEnabled();
  if (record->IsMissing()) return;
  const std::string text = record->GetValueText();
  if (rows.Stands()) m_tree.SetItemText(item, kValueColumn, text);
}

void CPvwIOInstanceCtrl::OnRefresh() {
  const platform::HWND self = GetHandle();
  std::ignore = m_pIOData->ReadValues(debugger);
  if (!platform::IsWindow(self)) return;
  RefreshData();
  if (platform::IsWindow(self) && m_pOtherPane != nullptr) m_pOtherPane->RefreshData();
}

void CPvwIOInstanceCtrl::OnLockRefresh() {
  m_pFrame->ToggleRefreshLock();
}

void CPvwIOInstanceCtrl::OnUpdateLockRefresh(platform::CCmdUI& ui) {
  ui.SetCheck(m_pFrame->IsRefreshLocked());
}

bool CPvwIOInstanceCtrl::GetFileWriteTime(std::string_view path, std::uint64_t& time) {
  const auto written = platform::GetLastWriteTime(path);
  if (written) time = *written;
  return written.has_value();
}

std::string CPvwIOInstanceCtrl::ExpandedIOFilePath() const {
  return CPlaceholderExpander(host).Expand(m_pFrame->GetIOFilePath());
}

bool CPvwIOInstanceCtrl::CheckIOFile() const {
  std::uint64_t time = 0;
  if (!GetFileWriteTime(ExpandedIOFilePath(), time)) return true;
  if (time == m_pFrame->GetIOFileWriteTime()) return true;
  platform::MessageBox(platform::LoadString(IDS_FILE_MODIFIED), platform::MB_OK);
  return false;
}

}  // namespace pvw
