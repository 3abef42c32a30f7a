#include "frame/io_data_command_sink.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "component/services/module_state.h"
#include "frame/controls/logical_colour.h"
#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/path_text.h"
#include "support/placeholder_expander.h"
#include "view/host_dialog.h"

namespace pvw {

using platform::BSTR;
using platform::Failed;
using platform::HWND;
using platform::S_OK;
using platform::ScopedBstr;
using platform::Status;

namespace {

constexpr const char* kToolbarIdentity = "{WK_TB00000011_CPU}";
constexpr const char* kPaneTitles[] = {"All Register", "Selected Register"};

constexpr const char* kIOExtension = ".io";

constexpr const char* kFontNameKey = "PVW_IO_FONT_NAME";
constexpr const char* kFontSizeKey = "PVW_IO_FONT_SIZE";
constexpr const char* kForegroundKey = "PVW_IO_FGCOLOUR";
constexpr const char* kBackgroundKey = "PVW_IO_BKCOLOUR";

// How the host is asked for the view's window: for one that is hidden, or for one in any case.
constexpr std::uint32_t kFindHidden = 0x10;
constexpr std::uint32_t kMakeWindow = 0x1086;
constexpr std::uint32_t kShowWindow = 2;
constexpr std::uint32_t kBottomDockBar = 0xE81E;
constexpr std::uint32_t kLeftDockBar = 0xE81C;

bool EndsInIO(const std::string& path) {
  return LowerCaseText(path).ends_with(kIOExtension);
}

bool ReadInt(IQSettings& settings, const char* key, std::int32_t* value) {
  const ScopedBstr name(key);
  return !Failed(settings.ReadInt(name.Get(), value));
}

void WriteInt(IQSettings& settings, const char* key, std::int32_t value) {
  const ScopedBstr name(key);
  settings.WriteInt(name.Get(), value);
}

std::u16string Copy(BSTR text) {
  return std::u16string(text != nullptr ? text : u"", platform::SysStringLen(text));
}

}  // namespace

const platform::MessageTable CPvwIODataCommandSink::kMessages{
    &CUiDebugCommandSink::kMessages,
    {
        // Lifetime.
        platform::OnMessage<&CPvwIODataCommandSink::OnCreate>(platform::WM_CREATE),
        // Commands.
        platform::OnCommand<&CPvwIODataCommandSink::OnOpenIOWindow>(ID_OPEN_IO_VIEW),
        platform::OnUpdate<&CPvwIODataCommandSink::OnUpdateOpenIOWindow>(ID_OPEN_IO_VIEW),
    }};

// Lifetime ------------------------------------------------------------------------------------------------

CPvwIODataCommandSink::CPvwIODataCommandSink(CIODataFile* file, CIOData* data, IQComponentHost* host,
                                             CUiRegistrar* registrar)
    : CUiDebugCommandSink(host, registrar),
      m_savedTextFg(m_textFg),
      m_pIOFile(file),
      m_pIOData(data),
      m_windowId(kWindowIdentity) {
  m_pDeviceInfo = GetService<IQDeviceInfo>(m_pHost, IID_IQDeviceInfo);
  AddClients();
  if (m_pSettings != nullptr) ReadUserSettings();
  if (m_pHost != nullptr) m_pHost->AddServer(&IID_IQIOServer, static_cast<IQIOServer*>(this));
  m_paneTitles.assign(std::begin(kPaneTitles), std::end(kPaneTitles));
  m_paneByIndex.resize(m_paneTitles.size());
}

CPvwIODataCommandSink::~CPvwIODataCommandSink() {
  Watch<CPvwIODataCommandSink>::OnGone(this);
  EndHostDialogs(m_pHost);
  if (m_pPaneInMaking != nullptr) {
    m_pPaneInMaking->ReleaseHostUi();
    m_pPaneInMaking->DestroyPane();
    m_pPaneInMaking->FreeOwnerIds();
  }
  DestroySink();
  RemoveClients();
}

void CPvwIODataCommandSink::AddClients() {
  if (m_pHost == nullptr) return;
  m_pHost->AddClient(&IID_IQWorkSpaceClient2, static_cast<IQWorkSpaceClient2*>(this));
  m_pHost->AddClient(&IID_IQFormatViewClient2, static_cast<IQFormatViewClient2*>(this));
  m_pHost->AddClient(&IID_IQUpdateWindowClient, static_cast<IQUpdateWindowClient*>(this));
}

void CPvwIODataCommandSink::RemoveClients() {
  if (m_pHost == nullptr) return;
  m_pHost->RemoveClient(&IID_IQWorkSpaceClient2, static_cast<IQWorkSpaceClient2*>(this));
  m_pHost->RemoveClient(&IID_IQFormatViewClient2, static_cast<IQFormatViewClient2*>(this));
  m_pHost->RemoveServer(&IID_IQIOServer, static_cast<IQIOServer*>(this));
  m_pHost->RemoveClient(&IID_IQUpdateWindowClient, static_cast<IQUpdateWindowClient*>(this));
}

void CPvwIODataCommandSink::ReadUserSettings() {
  const ScopedBstr name_key(kFontNameKey);
  ScopedBstr name;
  std::int32_t size = 0;
  if (!Failed(m_pSettings->ReadString(name_key.Get(), name.Receive())) &&
      ReadInt(*m_pSettings, kFontSizeKey, &size)) {
    m_fontName = Copy(name.Get());
    m_fontSize = size;
  }
  std::int32_t fg = 0;
  std::int32_t bk = 0;
  const bool has_fg = ReadInt(*m_pSettings, kForegroundKey, &fg);
  const bool has_bk = ReadInt(*m_pSettings, kBackgroundKey, &bk);
  if (has_fg && has_bk) {
    m_textFg = fg;
    m_textBk = bk;
  }
}

platform::LRESULT CPvwIODataCommandSink::OnCreate(const platform::MSG& msg) {
  if (Default(msg, kMessages) == -1) return -1;
  if (m_pUiRegistrar == nullptr) return 0;
  const platform::HMODULE module = ComponentModule();
  m_pUiRegistrar->AddMenu(module, IDM_FRAME, m_menuOwnerId, CLSID_PvwIO);
  m_pUiRegistrar->AddCommandSink(m_menuOwnerId, CLSID_PvwIO, GetHandle());
  m_pUiRegistrar->AddCommandStrings(module, m_menuOwnerId, CLSID_PvwIO);
  m_pUiRegistrar->AddToolbar(kToolbarIdentity, platform::LoadString(IDS_TOOLBAR_TITLE), module, IDT_FRAME, 0,
                             m_menuOwnerId, CLSID_PvwIO);
  m_pUiRegistrar->AddAccelerators(module, IDA_FRAME, m_menuOwnerId, CLSID_PvwIO);
  return 0;
}

Status CPvwIODataCommandSink::QueryInterface(const platform::GUID* iid, void** out) {
  *out = nullptr;
  if (*iid == IID_IUnknown || *iid == IID_IQWorkSpaceClient || *iid == IID_IQWorkSpaceClient2) {
    *out = static_cast<IQWorkSpaceClient2*>(this);
  } else if (*iid == IID_IQUpdateWindowClient) {
    *out = static_cast<IQUpdateWindowClient*>(this);
  }
  return *out != nullptr ? S_OK : platform::E_NOINTERFACE;
}

// The view's window and its panes -------------------------------------------------------------------------

std::string CPvwIODataCommandSink::GetPaneTitle(std::size_t index) const {
  return index < m_paneTitles.size() ? m_paneTitles[index] : std::string();
}

bool CPvwIODataCommandSink::IsViewOpen() {
  if (m_pUiRegistrar == nullptr) return false;
  const std::string title = platform::LoadString(IDS_VIEW_TITLE);
  const Watch<CPvwIODataCommandSink> watch(this);
  HWND window = 0;
  m_pUiRegistrar->FindDockableWindow(m_windowId, title, this, kFindHidden, kLeftDockBar, &window, nullptr);
  if (window != 0 || !watch.Stands()) return false;
  m_pUiRegistrar->GetDockableWindow(m_windowId, title, kLeftDockBar, &window, nullptr);
  return window != 0 && watch.Stands();
}

void CPvwIODataCommandSink::OnUpdateOpenIOWindow(platform::CCmdUI& ui) {
  ui.Enable(!IsViewOpen());
}

void CPvwIODataCommandSink::OnOpenIOWindow() {
  m_bSessionDirty = true;
  const Watch<CPvwIODataCommandSink> watch(this);
  const bool file_found = m_pIOFile->IsOpen() || OpenFile();
  if (!watch.Stands()) return;
  if (m_pUiRegistrar != nullptr) {
    const std::string title = platform::LoadString(IDS_VIEW_TITLE);
    HWND window = 0;
    std::string text;
    m_pUiRegistrar->FindDockableWindow(m_windowId, title, this, kFindHidden, kBottomDockBar, &window,
                                       nullptr);
    if (!watch.Stands()) return;
    bool shows = window != 0;
    if (window == 0) {
      m_pUiRegistrar->FindDockableWindow(m_windowId, title, this, kMakeWindow, kBottomDockBar, &window,
                                         &text);
      if (!watch.Stands()) return;
      shows = window != 0 && !m_bRestoring;
    }
    if (shows) m_pUiRegistrar->SetDockState(window, kShowWindow);
    if (!watch.Stands()) return;
    if (window != 0) MakePanes(window, file_found);
  }
  if (watch.Stands()) UpdateWindow();
}

bool CPvwIODataCommandSink::OpenFile() {
  std::string path = CPlaceholderExpander(m_pHost).Expand(m_ioFilePath);
  bool found = FileExistsAt(path, nullptr);
  if (!found) {
    ScopedBstr device_path;
    if (m_pDeviceInfo != nullptr && Failed(m_pDeviceInfo->GetDefaultIOPath(device_path.Receive()))) {
      device_path.Receive();
    }
    m_ioFilePath = path = device_path.Text() + kIOExtension;
    found = FileExistsAt(path, nullptr);
  }
  std::uint32_t base = 0;
  if (m_pDeviceInfo != nullptr && Failed(m_pDeviceInfo->GetBaseAddress(&base))) base = 0;
  m_pIOFile->Open(path, base);
  CIOData& data = *m_pIOData;
  data.SetHost(m_pHost);
  data.ParseSelection(m_selectionText);
  // A fault of the file is told to the user, and what could be read is shown. The host may disconnect
  // meanwhile.
  const Watch<CIOData> modules(&data);
  static_cast<void>(data.LoadModules(m_pIOFile));
  if (modules.Stands()) data.ApplySelection();
  return found;
}

void CPvwIODataCommandSink::MakePanes(HWND window, bool file_found) {
  if (m_pPaneInMaking != nullptr) return;
  if (!m_panes.empty()) {
    const CWnd* const parent = m_panes.front()->GetParent();
    if (parent != nullptr && parent->GetHandle() == window) return;
    // Another session's window, or one that the host has destroyed with the panes' windows in it.
    DestroyPanes();
  }
  const Watch<CPvwIODataCommandSink> watch(this);
  for (std::size_t i = 0; watch.Stands() && i < m_paneTitles.size(); ++i) {
    if (!AddPane(window, i, file_found)) return;
  }
}

bool CPvwIODataCommandSink::AddPane(HWND window, std::size_t index, bool file_found) {
  // The host is asked for owner ids, then for the texts of the rows, and a faulty file is told to the user:
  // the host may disconnect meanwhile.
  const Watch<CPvwIODataCommandSink> watch(this);
  auto made = std::make_unique<CPvwIOInstanceCtrl>(m_pIOFile, m_pIOData, index, m_pHost, m_pUiRegistrar, 0);
  if (!watch.Stands()) return false;
  CPvwIOInstanceCtrl& pane = *made;
  pane.SetFrame(this);
  // Before there are rows: what the host has loaded while they are made goes for them as well.
  if (CPvwIOInstanceCtrl* const first = m_paneByIndex[0]; index == 1 && first != nullptr) {
    first->LinkOtherPane(&pane);
    pane.LinkOtherPane(first);
  }
  m_pPaneInMaking = &pane;
  const bool created = pane.CreatePane(window, GetHandle());
  if (!watch.Stands()) return false;
  if (!created) {
    m_pPaneInMaking = nullptr;
    if (m_paneByIndex[0] != nullptr) m_paneByIndex[0]->LinkOtherPane(nullptr);
    pane.ReleaseHostUi();
    return false;
  }
  pane.SetStateValid(file_found);
  const ScopedBstr face{std::u16string_view(m_fontName)};
  pane.SetFont(face.Text(), m_fontSize);
  pane.SetItemColours(m_currentItem, m_textFg, m_textBk);
  pane.RefreshData();
  if (!watch.Stands()) return false;
  m_pPaneInMaking = nullptr;
  m_panes.push_back(std::move(made));
  m_paneByIndex[index] = &pane;
  return true;
}

void CPvwIODataCommandSink::OnPaneLeaving(CPvwDebugInstanceDataCtrl& pane) {
  for (CPvwIOInstanceCtrl*& known : m_paneByIndex) {
    if (known == &pane) {
      known->ReleaseExpandCounts();
      known = nullptr;
    } else if (known != nullptr) {
      known->LinkOtherPane(nullptr);
    }
  }
}

platform::LRESULT CPvwIODataCommandSink::HidePane(HWND pane_window, platform::LPARAM unused) {
  m_bSessionDirty = true;
  return CUiDebugCommandSink::HidePane(pane_window, unused);
}

// Refresh -------------------------------------------------------------------------------------------------

Status CPvwIODataCommandSink::UpdateWindow() {
  if (m_bRefreshLocked) return S_OK;
  const Watch<CPvwIODataCommandSink> watch(this);
  // A failed read is silent: the panes show what the records hold.
  static_cast<void>(m_pIOData->ReadValues(debugger));
  if (watch.Stands()) UpdatePanes();
  return S_OK;
}

void CPvwIODataCommandSink::ToggleRefreshLock() {
  m_bRefreshLocked = !m_bRefreshLocked;
  const ScopedBstr item(m_currentItem);
  if (m_bRefreshLocked) {
    m_savedTextFg = m_textFg;
    SetItemColours(item.Get(), kColourGrey, m_textBk);
    return;
  }
  m_textFg = m_savedTextFg;
  SetItemColours(item.Get(), m_textFg, m_textBk);
  const Watch<CPvwIODataCommandSink> watch(this);
  for (std::size_t i = 0; i < m_paneByIndex.size(); ++i) {
    if (m_paneByIndex[i] != nullptr) m_paneByIndex[i]->OnLockEnded();
    // Rows that open show dialogs, and the host may close the view or disconnect meanwhile.
    if (!watch.Stands()) return;
  }
  UpdateWindow();
}

Status CPvwIODataCommandSink::LoadIOFile(BSTR path, std::uint32_t base_address) {
  // The pane of the selection takes no load.
  CPvwIOInstanceCtrl* const pane = m_paneByIndex[0];
  if (pane == nullptr) return S_OK;
  // The name of the file that the pane opens, so that a later check of its time looks at the same one.
  std::string name = platform::BstrText(path);
  if (!EndsInIO(CPlaceholderExpander(m_pHost).Expand(name))) name += kIOExtension;
  m_ioFilePath = name;
  pane->LoadIOFile(name, base_address);
  return S_OK;
}

// Font and colours ----------------------------------------------------------------------------------------

Status CPvwIODataCommandSink::GetFormatName(BSTR* name) {
  *name = platform::NewBstr(platform::LoadString(IDS_VIEW_TITLE));
  return S_OK;
}

Status CPvwIODataCommandSink::GetFont(BSTR* face, std::int32_t* size) {
  *face = platform::SysAllocString(m_fontName);
  *size = m_fontSize;
  return S_OK;
}

Status CPvwIODataCommandSink::SetFont(BSTR face, std::int32_t size) {
  m_fontName = Copy(face);
  for (CPvwIOInstanceCtrl* pane : m_paneByIndex) {
    if (pane != nullptr) pane->SetFont(platform::BstrText(face), size);
  }
  m_fontSize = size;
  if (m_pSettings != nullptr) {
    const ScopedBstr key(kFontNameKey);
    m_pSettings->WriteString(key.Get(), face);
    WriteInt(*m_pSettings, kFontSizeKey, m_fontSize);
  }
  return S_OK;
}

Status CPvwIODataCommandSink::SetItemColours(BSTR item, std::int32_t fg, std::int32_t bk) {
  const std::string item_name = platform::BstrText(item);
  for (CPvwIOInstanceCtrl* pane : m_paneByIndex) {
    if (pane == nullptr) continue;
    if (!m_bRefreshLocked || fg == kColourGrey) {
      pane->SetItemColours(item_name, fg, bk);
    } else {
      m_savedTextFg = fg;
    }
  }
  if (item_name != platform::LoadString(IDS_ITEM_TEXT)) return S_OK;
  if (m_bRefreshLocked) return S_OK;
  CUiDebugCommandSink::SetItemColours(item, fg, bk);
  if (m_pSettings != nullptr) {
    WriteInt(*m_pSettings, kBackgroundKey, m_textBk);
    WriteInt(*m_pSettings, kForegroundKey, m_textFg);
  }
  return S_OK;
}

}  // namespace pvw
