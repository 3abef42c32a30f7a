// Another definition file: by the user's dialog or at the host's word, with the selection kept.

#include <tuple>
#include <utility>

#include "platform/gui/window.h"
#include "support/path_text.h"
#include "support/placeholder_expander.h"
#include "view/dlg_set_io_file.h"
#include "view/host_dialog.h"
#include "view/io_instance_ctrl.h"

namespace pvw {

namespace {

constexpr std::string_view kDefinitionExtension = ".io";

std::string WithDefinitionExtension(std::string path) {
  const std::size_t length = kDefinitionExtension.size();
  const std::string end = path.size() < length ? path : path.substr(path.size() - length);
  if (LowerCaseText(end) != kDefinitionExtension) path += kDefinitionExtension;
  return path;
}

}  // namespace

void CPvwIOInstanceCtrl::OnLoadIOFile() {
  if (m_paneIndex == 1) {
    if (m_pOtherPane != nullptr) m_pOtherPane->OnLoadIOFile();
    return;
  }
  const platform::HWND self = GetHandle();
  CDlgSetIOFile dialog(m_pFrame->GetIOFilePath(), host, nullptr);
  dialog.SetSavePath(m_pFrame->GetSavePathName());
  if (RunHostDialog(dialog, host) != static_cast<int>(platform::IDOK) || !platform::IsWindow(self)) return;
  m_pFrame->SetIOFilePath(dialog.GetPath());
  m_pFrame->SetSavePathName(dialog.GetSavePath());
  m_pFrame->SetSessionDirty();
  LoadIOFile(dialog.GetPath(), 0);
  if (platform::IsWindow(self)) RefreshData();
}

void CPvwIOInstanceCtrl::LoadIOFile(std::string_view path, std::uint32_t baseAddress) {
  if (m_paneIndex == 1) return;
  // Before the records go, no row refers to one, locked or not.
  DeleteRows();
  if (m_pOtherPane != nullptr) m_pOtherPane->DeleteRows();

  const std::string file = WithDefinitionExtension(CPlaceholderExpander(host).Expand(path));
  if (m_pIOFile->IsOpen()) {
    m_pIOData->CollectSelection();
    m_pIOData->DeleteModules();
    m_pIOFile->Close();
  }
  m_pIOFile->Open(file, baseAddress);
  m_pIOData->SetHost(host);
  // A fault of the file is told to the user, and the host may close the view meanwhile, or load another file.
  CIOData& data = *m_pIOData;
  const Watch<CIOData> modules(&data);
  const Watch<CPvwIOInstanceCtrl> rows(this);
  std::ignore = data.LoadModules(m_pIOFile);
  if (!modules.Stands()) return;
  if (!rows.Stands()) {
    data.ApplySelection();
    return;
  }
  std::uint64_t time = 0;
  if (GetFileWriteTime(file, time)) m_pFrame->SetIOFileWriteTime(time);
  m_pIOData->ApplySelection();
  FillTree(true);
  if (!rows.Stands()) return;

  if (m_pFrame->IsRefreshLocked()) {
    // Rows don't open in a locked view, so the other pane waits, empty, for the lock to end.
    if (m_pOtherPane != nullptr) m_pOtherPane->m_bRebuildDue = true;
    return;
  }
  std::ignore = m_pIOData->ReadValues(debugger);
  if (!rows.Stands()) return;
  platform::SetFocus(m_tree.GetHandle());
  if (!rows.Stands()) return;
  if (const HTREEITEM first = m_tree.GetItemAtRow(0)) m_tree.SelectItem(first);
  if (rows.Stands() && m_pOtherPane != nullptr) m_pOtherPane->RebuildTree();
}

void CPvwIOInstanceCtrl::OnLockEnded() {
  if (std::exchange(m_bRebuildDue, false)) RebuildTree();
}

}  // namespace pvw
