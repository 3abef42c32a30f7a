#include "frame/ui_command_sink.h"

#include <algorithm>
#include <utility>

#include "component/services/module_state.h"
#include "host/host_ptr.h"
#include "model/watch.h"
#include "platform/base/app.h"

namespace pvw {

namespace {

// Messages of the host's window manager.
constexpr platform::UINT kClosePane = platform::WM_USER + 1;
constexpr platform::UINT kHidePane = platform::WM_USER + 3;
constexpr platform::UINT kRefreshPane = platform::WM_USER + 4;

constexpr platform::LRESULT kServed = 1;

constexpr std::uint32_t kSinkId = 1;

}  // namespace

const platform::MessageTable CUiCommandSink::kMessages{
    &CWnd::kMessages,
    {
        // Lifetime.
        platform::OnMessage<&CUiCommandSink::OnDestroy>(platform::WM_DESTROY),
        // From the host's window manager.
        platform::OnMessage<&CUiCommandSink::OnClosePane>(kClosePane),
        platform::OnMessage<&CUiCommandSink::OnHidePane>(kHidePane),
        platform::OnMessage<&CUiCommandSink::OnRefreshPane>(kRefreshPane),
    }};

CUiCommandSink::CUiCommandSink(IQComponentHost* host, CUiRegistrar* registrar)
    : m_pHost(host), m_pUiRegistrar(registrar) {
  m_pNumberFormat = GetService<IQNumberFormat>(m_pHost, IID_IQNumberFormat);
  m_pHostCommon = GetService<IQHostCommon>(m_pHost, IID_IQHostCommon);
  m_pPathService = GetService<IQPathService>(m_pHost, IID_IQPathService);
  m_pSettings = GetService<IQSettings>(m_pHost, IID_IQSettings);
  m_pSessionData = GetService<IQDataManager>(m_pHost, IID_IQDataManager);
  m_pHostExtra = GetService<IQHostExtra>(m_pHost, IID_IQHostExtra);
  if (m_pUiRegistrar != nullptr) {
    m_pUiRegistrar->AllocOwnerId(&m_menuOwnerId);
    m_pUiRegistrar->AllocOwnerId(&m_acceleratorOwnerId);
  }
}

CUiCommandSink::~CUiCommandSink() {
  Watch<CUiCommandSink>::OnGone(this);
  CUiCommandSink::DestroyPanes();
  {
    const CModuleState state;
    DestroyWindow();
  }
  if (m_menuOwnerId != 0) m_pUiRegistrar->FreeOwnerId(&m_menuOwnerId);
  if (m_acceleratorOwnerId != 0) m_pUiRegistrar->FreeOwnerId(&m_acceleratorOwnerId);
}

bool CUiCommandSink::CreateSink() {
  const CModuleState state;
  platform::CreateParams params;
  params.style = platform::WS_CHILD;
  params.parent = platform::GetMainWindow();
  params.id = kSinkId;
  return Create(params);
}

void CUiCommandSink::DestroySink() {
  DestroyPanes();
  const CModuleState state;
  DestroyWindow();
}

void CUiCommandSink::DestroyPanes() {
  while (!m_panes.empty()) DestroyPaneAt(m_panes.begin());
}

void CUiCommandSink::UpdatePanes() {
  // By index: a pane may go while one before it shows its data, and the view with all of them while one asks
  // the host for texts.
  const Watch<CUiCommandSink> watch(this);
  for (std::size_t i = 0; watch.Stands() && i < m_panes.size(); ++i) m_panes[i]->RefreshData();
}

platform::LRESULT CUiCommandSink::ClosePane(platform::HWND pane_window, platform::LPARAM) {
  if (const auto place = FindPane(pane_window); place != m_panes.end()) DestroyPaneAt(place);
  return kServed;
}

platform::LRESULT CUiCommandSink::HidePane(platform::HWND pane_window, platform::LPARAM) {
  if (const auto place = FindPane(pane_window); place != m_panes.end()) (*place)->OnHideWindow();
  return kServed;
}

CUiCommandSink::PaneList::iterator CUiCommandSink::FindPane(platform::HWND window) {
  // A pane whose window the host has destroyed has the handle 0.
  if (window == 0) return m_panes.end();
  return std::ranges::find_if(m_panes, [&](const auto& pane) { return pane->GetHandle() == window; });
}

void CUiCommandSink::DestroyPaneAt(PaneList::iterator place) {
  const std::unique_ptr<CPvwDebugInstanceDataCtrl> pane = std::move(*place);
  m_panes.erase(place);
  OnPaneLeaving(*pane);
  pane->ReleaseHostUi();
  pane->DestroyPane();
}

platform::LRESULT CUiCommandSink::OnClosePane(const platform::MSG& msg) {
  return ClosePane(msg.wParam, msg.lParam);
}

platform::LRESULT CUiCommandSink::OnHidePane(const platform::MSG& msg) {
  return HidePane(msg.wParam, msg.lParam);
}

platform::LRESULT CUiCommandSink::OnRefreshPane(const platform::MSG& msg) {
  if (const auto place = FindPane(msg.wParam); place != m_panes.end()) (*place)->RefreshData();
  return kServed;
}

platform::LRESULT CUiCommandSink::OnDestroy(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  if (m_pUiRegistrar != nullptr) {
    m_pUiRegistrar->ReleaseOwner(GetHandle());
    m_pUiRegistrar->ReleaseOwner(m_menuOwnerId);
    m_pUiRegistrar->ReleaseOwner(m_acceleratorOwnerId);
  }
  return result;
}

}  // namespace pvw
