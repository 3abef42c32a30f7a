// The commands of a pane that reach beyond its rows.

#include <tuple>

#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/gui/common_dialogs.h"
#include "resources/ids.h"
#include "support/path_text.h"
#include "support/placeholder_expander.h"
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

// Another definition -------------------------------------------------------------------------------------

void CPvwIOInstanceCtrl::LoadIOFile(std::string_view path, std::uint32_t baseAddress) {
  if (m_paneIndex == 1) return;
  const platform::HWND self = GetHandle();
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
  // A fault of the file is told to the user, and the host may close the view meanwhile.
  const auto is_gone = [self] { return self != 0 && !platform::IsWindow(self); };
  CIOData& data = *m_pIOData;
  std::ignore = data.LoadModules(m_pIOFile);
  if (is_gone()) {
    data.ApplySelection();
    return;
  }
  std::uint64_t time = 0;
  if (GetFileWriteTime(file, time)) m_pFrame->SetIOFileWriteTime(time);
  m_pIOData->ApplySelection();
  FillTree(true);
  if (is_gone()) return;

  if (m_pFrame->IsRefreshLocked()) {
    // The selection is saved from the other pane's rows, so they come back, closed.
    if (m_pOtherPane != nullptr) m_pOtherPane->FillTree(false);
    return;
  }
  std::ignore = m_pIOData->ReadValues(debugger);
  if (is_gone()) return;
  platform::SetFocus(m_tree.GetHandle());
  if (const HTREEITEM first = m_tree.GetItemAtRow(0)) m_tree.SelectItem(first);
  if (m_pOtherPane != nullptr) m_pOtherPane->RebuildTree();
}

void CPvwIOInstanceCtrl::OnLoadIOFile() {
  if (m_paneIndex == 1 && m_pOtherPane != nullptr) m_pOtherPane->OnLoadIOFile();
}

// Selection and search -----------------------------------------------------------------------------------

void CPvwIOInstanceCtrl::OnSelectRegister() {
  std::ignore = CheckIOFile();
}

void CPvwIOInstanceCtrl::OnUpdateSelectRegister(platform::CCmdUI& ui) {
  ui.Enable(!IsTargetRunning());
}

void CPvwIOInstanceCtrl::OnFind() {}

void CPvwIOInstanceCtrl::OnFindNext() {}

void CPvwIOInstanceCtrl::OnUpdateFindNext(platform::CCmdUI& ui) {
  ui.Enable(!m_findText.empty());
}

// Save and print -----------------------------------------------------------------------------------------

void CPvwIOInstanceCtrl::OnPrint() {
  m_tree.Print();
}

void CPvwIOInstanceCtrl::OnSaveToFile() {
  platform::FileDialogRequest request;
  request.save = true;
  request.default_extension = "txt";
  request.filter = "Text File (*.txt)|*.txt|All Files (*.*)|*.*||";
  request.directory = m_pFrame->GetSaveFileDir();
  request.name = m_pFrame->GetSaveFileName();
  request.overwrite_prompt = true;
  request.path_must_exist = true;
  const platform::HWND self = GetHandle();
  const auto path = platform::RunFileDialog(request);
  if (!path || !platform::IsWindow(self)) return;
  if (!m_tree.DumpToFile(*path)) {
    platform::MessageBox(platform::LoadString(IDS_SAVE_FAILED), platform::MB_OK);
    return;
  }
  const std::string name = GetFileNameOf(*path);
  const std::size_t behind = name.size() + 1;  // with the last backslash
  m_pFrame->SetSaveFileDir(path->substr(0, path->size() > behind ? path->size() - behind : 0));
  m_pFrame->SetSaveFileName(name);
}

// The host's toolbar -------------------------------------------------------------------------------------

bool CPvwIOInstanceCtrl::IsToolbarShown() const {
  return uiRegistrar != nullptr && uiRegistrar->IsToolbarShown(GetParentHandle());
}

void CPvwIOInstanceCtrl::OnShowToolbar() {
  if (uiRegistrar != nullptr) uiRegistrar->ShowToolbar(GetParentHandle(), !IsToolbarShown());
}

void CPvwIOInstanceCtrl::OnUpdateShowToolbar(platform::CCmdUI& ui) {
  ui.SetCheck(IsToolbarShown());
}

void CPvwIOInstanceCtrl::OnCustomizeToolbar() {
  if (uiRegistrar != nullptr) uiRegistrar->CustomizeToolbar(GetParentHandle());
}

void CPvwIOInstanceCtrl::OnUpdateCustomizeToolbar(platform::CCmdUI& ui) {
  ui.Enable(IsToolbarShown());
}

}  // namespace pvw
