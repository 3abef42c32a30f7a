// What the view keeps in a session: whether it is open, its file, the folder of saved texts, the selection
// and the look of each pane.

#include "frame/io_data_command_sink.h"
#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/files.h"
#include "support/path_text.h"
#include "support/placeholder_expander.h"

namespace pvw {

using platform::BSTR;
using platform::Failed;
using platform::S_OK;
using platform::ScopedBstr;
using platform::Status;

namespace {

constexpr const char* kViewsKey = "IOCtrlViews";
constexpr const char* kIOFileKey = "IOCtrlIOFile";
constexpr const char* kSaveFileDirKey = "IOCtrlSaveFileDir";
constexpr const char* kSaveFileNameKey = "IOCtrlSaveFileName";
constexpr const char* kSelectionKey = "IOSelection IOWnd0";
constexpr const char* kPaneKey = "IOWnd";

std::string PaneKey(std::size_t pane) {
  return kPaneKey + std::to_string(pane);
}

// The host's key of the project and that of the configuration.
std::string ConfigurationIdentity(IQComponentHost* host, BSTR workspace, BSTR project, BSTR configuration) {
  auto* const info = GetService<IQWorkspaceInfo>(host, IID_IQWorkspaceInfo);
  if (info == nullptr) return {};
  ScopedBstr configuration_key;
  ScopedBstr project_key;
  if (Failed(info->GetConfigurationKey(workspace, project, configuration, configuration_key.Receive()))) {
    configuration_key.Receive();
  }
  if (Failed(info->GetProjectKey(workspace, project, project_key.Receive()))) project_key.Receive();
  return project_key.Text() + configuration_key.Text();
}

}  // namespace

Status CPvwIODataCommandSink::LoadSessionData(BSTR workspace, BSTR project, BSTR name, BSTR configuration) {
  m_windowId = kWindowIdentity + ConfigurationIdentity(m_pHost, workspace, project, configuration);
  CSessionStore store(m_pSessionData, workspace, project, name, configuration, ID_SessionStore);

  ReadIOFileKey(store);
  m_bSavePathName = !m_ioFilePath.empty();
  ReadSaveFileKeys(store);
  std::int32_t views = 0;
  store.ReadInt(kViewsKey, 0, &views);

  // Rows that are made or opened tell the user of a faulty file, and the host may disconnect meanwhile.
  const Watch<CPvwIODataCommandSink> watch(this);
  m_bRestoring = true;
  store.ReadString(kSelectionKey, "", m_selectionText);
  // One open makes all panes, so that a count beyond the panes that are there asks for one open, no more.
  if (m_panes.empty() && views > 0) OnOpenIOWindow();
  if (!watch.Stands()) return S_OK;
  m_bRestoring = false;

  LoadPanes(store);
  if (!watch.Stands()) return S_OK;
  m_bSessionDirty = false;
  m_sessionName = platform::BstrText(name);
  return S_OK;
}

// A file that no longer exists is dropped.
void CPvwIODataCommandSink::ReadIOFileKey(CSessionStore& store) {
  m_ioFilePath.clear();
  std::string path;
  store.ReadString(kIOFileKey, "", path);
  if (FileExistsAt(CPlaceholderExpander(m_pHost).Expand(path), nullptr)) m_ioFilePath = path;
}

void CPvwIODataCommandSink::ReadSaveFileKeys(CSessionStore& store) {
  const CPlaceholderExpander expander(m_pHost);
  std::string directory;
  store.ReadString(kSaveFileDirKey, "", directory);
  m_saveFileDir = expander.Expand(directory);
  store.ReadString(kSaveFileNameKey, "", m_saveFileName);
  if (m_saveFileDir.empty() || !platform::GetFileAttributes(m_saveFileDir)) {
    m_saveFileDir = expander.Expand("$(CONFIGDIR)");
  }
}

// The second pane's rows neither open nor close by it: it gets widths and positions. Without a state of its
// own it takes the first pane's.
void CPvwIODataCommandSink::LoadPanes(CSessionStore& store) {
  const Watch<CPvwIODataCommandSink> watch(this);
  const bool user_lock = m_bRefreshLocked;
  if (!m_panes.empty()) {
    if (m_paneByIndex[0] != nullptr) m_paneByIndex[0]->LoadState(store, PaneKey(0));
    if (!watch.Stands()) return;
    std::string width;
    store.ReadString(PaneKey(1) + "ColWidth0", "", width);
    m_bRefreshLocked = true;
    if (m_paneByIndex[1] != nullptr) m_paneByIndex[1]->LoadState(store, PaneKey(width.empty() ? 0 : 1));
    if (!watch.Stands()) return;
    m_bRefreshLocked = user_lock;
  }
  if (user_lock) ToggleRefreshLock();
}

Status CPvwIODataCommandSink::SaveSessionData(BSTR workspace, BSTR project, BSTR configuration) {
  const ScopedBstr name(m_sessionName);
  CSessionStore store(m_pSessionData, workspace, project, name.Get(), configuration, ID_SessionStore);
  store.WriteInt(kViewsKey, static_cast<std::int32_t>(m_panes.size() / 2));
  for (std::size_t i = 0; i < m_paneByIndex.size(); ++i) {
    if (m_paneByIndex[i] != nullptr) m_paneByIndex[i]->SaveState(store, PaneKey(i));
  }
  store.WriteString(kIOFileKey, m_bSavePathName ? ToPlaceholderForm(m_pHost, m_ioFilePath) : std::string());
  store.WriteString(kSaveFileDirKey, ToPlaceholderForm(m_pHost, m_saveFileDir));
  store.WriteString(kSaveFileNameKey, m_saveFileName);
  m_bSessionDirty = false;
  return S_OK;
}

Status CPvwIODataCommandSink::IsSessionDataDirty(BSTR, BSTR, BSTR, std::uint32_t* dirty) {
  *dirty = m_bSessionDirty ? 1 : 0;
  return S_OK;
}

}  // namespace pvw
