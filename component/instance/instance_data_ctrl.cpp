#include "component/instance/instance_data_ctrl.h"

#include <utility>

#include "component/services/module_state.h"
#include "frame/controls/html_help.h"
#include "host/host_ptr.h"
#include "platform/gui/graphics.h"
#include "resources/ids.h"

namespace pvw {

namespace {

// Window control of the host.
constexpr std::uint32_t kHide = 1;
constexpr std::uint32_t kChangeDocking = 32;
constexpr std::uint32_t kDocked = 8;
constexpr std::uint32_t kDockingOff = 16;

constexpr std::uint32_t kPaneId = 1;
constexpr std::uint32_t kHelpContext = 15;

int g_liveCount = 0;

}  // namespace

const platform::MessageTable CPvwInstanceDataCtrl::kMessages{
    &CWnd::kMessages,
    {
        // Painting and layout.
        platform::OnMessage<&CPvwInstanceDataCtrl::OnEraseBackground>(platform::WM_ERASEBKGND),
        platform::OnMessage<&CPvwInstanceDataCtrl::OnSize>(platform::WM_SIZE),
        // Input.
        platform::OnMessage<&CPvwInstanceDataCtrl::OnHelp>(platform::WM_HELP),
        // Commands.
        platform::OnCommand<&CPvwInstanceDataCtrl::OnAllowDocking>(ID_PANE_ALLOW_DOCKING),
        platform::OnUpdate<&CPvwInstanceDataCtrl::OnUpdateAllowDocking>(ID_PANE_ALLOW_DOCKING),
        platform::OnCommand<&CPvwInstanceDataCtrl::OnHideWindow>(ID_PANE_HIDE),
    }};

CPvwInstanceDataCtrl::CPvwInstanceDataCtrl(IQComponentHost* component_host, CUiRegistrar* registrar,
                                           std::uint32_t option_flags)
    : flags(option_flags), host(component_host), uiRegistrar(registrar) {
  if (host != nullptr) {
    void* frame = nullptr;
    if (!platform::Failed(host->QueryInterface(&IID_IQHostFrame, &frame))) {
      hostFrame = static_cast<IQHostFrame*>(frame);
    }
    numberFormat = GetService<IQNumberFormat>(host, IID_IQNumberFormat);
    hostCommon = GetService<IQHostCommon>(host, IID_IQHostCommon);
    settings = GetService<IQSettings>(host, IID_IQSettings);
    hostExtra = GetService<IQHostExtra>(host, IID_IQHostExtra);
  }
  if (uiRegistrar != nullptr) {
    uiRegistrar->AllocOwnerId(&menuOwnerId);
    uiRegistrar->AllocOwnerId(&acceleratorOwnerId);
  }
  ++g_liveCount;
}

CPvwInstanceDataCtrl::~CPvwInstanceDataCtrl() {
  FreeOwnerIds();
  --g_liveCount;
}

void CPvwInstanceDataCtrl::FreeOwnerIds() {
  for (std::uint32_t* const owner : {&menuOwnerId, &acceleratorOwnerId}) {
    std::uint32_t id = std::exchange(*owner, 0);
    if (id != 0) uiRegistrar->FreeOwnerId(&id);
  }
}

int CPvwInstanceDataCtrl::GetLiveCount() {
  return g_liveCount;
}

void CPvwInstanceDataCtrl::ChangeFlags(std::uint32_t mask, bool set) {
  if (set) {
    flags |= mask;
  } else {
    flags &= ~mask;
  }
}

void CPvwInstanceDataCtrl::ReleaseHostUi() {
  if (uiRegistrar == nullptr) return;
  if (Exists()) uiRegistrar->ReleaseOwner(GetHandle());
  uiRegistrar->ReleaseOwner(menuOwnerId);
  uiRegistrar->ReleaseOwner(acceleratorOwnerId);
}

bool CPvwInstanceDataCtrl::CreatePane(platform::HWND parent, platform::HWND owner) {
  const CModuleState state;
  platform::CreateParams params;
  params.style = platform::WS_CHILD | platform::WS_VISIBLE;
  params.parent = parent;
  params.id = kPaneId;
  if (!Create(params)) return false;
  SetOwner(owner);
  return true;
}

void CPvwInstanceDataCtrl::DestroyPane() {
  const CModuleState state;
  DestroyWindow();
}

platform::HWND CPvwInstanceDataCtrl::GetParentHandle() const {
  const CWnd* parent = GetParent();
  return parent != nullptr ? parent->GetHandle() : 0;
}

void CPvwInstanceDataCtrl::OnAllowDocking() {
  if (uiRegistrar != nullptr) uiRegistrar->SetDockState(GetParentHandle(), kChangeDocking);
}

void CPvwInstanceDataCtrl::OnUpdateAllowDocking(platform::CCmdUI& ui) {
  std::uint32_t state = 0;
  if (uiRegistrar != nullptr) uiRegistrar->GetDockState(GetParentHandle(), &state);
  ui.SetCheck((state & kDocked) == 0 || (state & kDockingOff) != 0);
}

void CPvwInstanceDataCtrl::OnHideWindow() {
  if (uiRegistrar != nullptr) uiRegistrar->SetDockState(GetParentHandle(), kHide);
}

platform::LRESULT CPvwInstanceDataCtrl::OnEraseBackground(const platform::MSG& msg) {
  auto& dc = *reinterpret_cast<platform::CDC*>(msg.lParam);
  dc.Fill(dc.GetClip(), platform::GetSysColour(platform::SystemColour::Window));
  return 1;
}

platform::LRESULT CPvwInstanceDataCtrl::OnSize(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  if (!GetChildren().empty()) {
    const platform::HWND child = GetChildren().front()->GetHandle();
    GetChildren().front()->MoveWindow(GetClientRect());
    // Its own answer to the new size may be its end.
    if (CWnd* placed = FromHandle(child)) placed->ShowWindow(true);
  }
  return result;
}

platform::LRESULT CPvwInstanceDataCtrl::OnHelp(const platform::MSG&) {
  if (platform::IsKeyDown(platform::VK_F1) && platform::IsKeyDown(platform::VK_SHIFT)) {
    platform::PostMessage(GetHandle(), platform::WM_SYSCOMMAND, platform::SC_CONTEXTHELP);
    return 1;
  }
  const CModuleState state;
  return ShowHelpTopic(GetHandle(), GetHelpTopic(), kHelpContext, GetHelpContext()) != 0 ? 1 : 0;
}

}  // namespace pvw
