#include "ioview/component/instance.h"

#include <utility>

#include "platform/base/bstr.h"
#include "platform/gui/messages.h"

namespace ioview {

namespace {

using platform::CWnd;
using platform::HWND;
using platform::ScopedBstr;

// What a host's window manager sends the frame, with a pane's handle.
constexpr platform::UINT kClosePane = 0x401;
constexpr platform::UINT kHidePane = 0x403;
constexpr platform::UINT kRefreshPane = 0x404;

constexpr std::uint32_t kShowDock = 2;

}  // namespace

Instance::Instance(const ComponentLibrary& library, UserSettings& settings)
    : host(settings), library_(library) {
  host.root.OnFiredEvent([this](const pvw::QEventRecord& event) {
    if (on_fired_event) on_fired_event(event);
    if (auto* component = Face<pvw::IQComponent>(pvw::IID_IQComponent)) component->OnEvent(&event);
  });
}

Instance::~Instance() {
  Destroy();
}

platform::Status Instance::Start(bool target_connected) {
  const platform::Status status = Connect();
  if (platform::Failed(status)) return status;
  if (target_connected) ConnectTarget();
  LoadSession();
  return status;
}

platform::Status Instance::Connect(std::int16_t flag) {
  if (!created_) {
    const platform::Status status = library_.CreateInstance(this);
    if (platform::Failed(status)) return status;
    created_ = true;
  }
  auto* component = Face<pvw::IQComponent>(pvw::IID_IQComponent);
  if (component == nullptr) return platform::E_NOINTERFACE;
  const platform::Status status = component->Connect(&host.root, flag);
  if (flag != 0 && !platform::Failed(status)) connected_ = true;
  return status;
}

platform::Status Instance::Disconnect(std::int16_t flag) {
  auto* component = Face<pvw::IQComponent>(pvw::IID_IQComponent);
  if (component == nullptr) return platform::E_NOINTERFACE;
  const platform::Status status = component->Disconnect(flag);
  if (flag != 0) connected_ = false;
  return status;
}

void Instance::Destroy() {
  if (!created_) return;
  if (connected_) Disconnect();
  created_ = false;
  library_.DestroyInstance(this);
}

platform::Status Instance::Query(const platform::GUID& iid, void** out) {
  *out = nullptr;
  return created_ ? library_.QueryInterface2(this, &iid, out) : platform::E_NOINTERFACE;
}

void Instance::SendEvent(const platform::GUID& event) {
  const pvw::QEventRecord record{event, 0};
  if (auto* component = Face<pvw::IQComponent>(pvw::IID_IQComponent)) component->OnEvent(&record);
}

// Asked for anew at each call: the component may disconnect inside one.
void Instance::Step(std::uint32_t steps, std::uint32_t kind, std::uint32_t times) {
  if (auto* client = Stepping()) client->OnStepBegin(steps, kind);
  for (std::uint32_t i = 0; i < times; ++i) {
    if (auto* client = Stepping()) client->OnStep();
  }
  if (auto* client = Stepping()) client->OnStepEnd();
}

bool Instance::LoadSession() {
  pvw::IQWorkSpaceClient2* const client = Sessions();
  if (client == nullptr) return false;
  const ScopedBstr workspace(host.workspace.name), project(host.workspace.project), name(""),
      configuration(host.workspace.configuration);
  client->LoadSessionData(workspace.Get(), project.Get(), name.Get(), configuration.Get());
  // The component leaves it to the host whether a view that the session has brought back shows.
  if (DockWindow* const view = View(); view != nullptr && !view->is_shown) {
    host.ui.SetDockState(*view, kShowDock);
  }
  return true;
}

bool Instance::SaveSession() {
  pvw::IQWorkSpaceClient2* const client = Sessions();
  if (client == nullptr) return false;
  const ScopedBstr workspace(host.workspace.name), project(host.workspace.project),
      configuration(host.workspace.configuration);
  client->SaveSessionData(workspace.Get(), project.Get(), configuration.Get());
  return true;
}

bool Instance::IsSessionDirty() {
  pvw::IQWorkSpaceClient2* const client = Sessions();
  if (client == nullptr) return false;
  const ScopedBstr workspace(host.workspace.name), project(host.workspace.project),
      configuration(host.workspace.configuration);
  std::uint32_t dirty = 0;
  client->IsSessionDataDirty(workspace.Get(), project.Get(), configuration.Get(), &dirty);
  return dirty != 0;
}

bool Instance::LoadIOFile(const std::string& path, std::uint32_t base) {
  pvw::IQIOServer* const server = Server();
  if (server == nullptr) return false;
  const ScopedBstr text(path);
  server->LoadIOFile(text.Get(), base);
  return true;
}

DockWindow* Instance::View() const {
  return host.ui.Docks().empty() ? nullptr : host.ui.Docks().front().get();
}

// By number: the second pane stays the second when the first has been closed.
CWnd* Instance::Pane(PaneIndex pane) const {
  const DockWindow* const view = View();
  if (view == nullptr) return nullptr;
  for (const DockWindow::Page& page : view->Pages()) {
    if (page.number == static_cast<std::size_t>(pane)) return CWnd::FromHandle(page.window);
  }
  return nullptr;
}

platform::SECTreeCtrl* Instance::Grid(PaneIndex pane) const {
  const CWnd* const window = Pane(pane);
  if (window == nullptr) return nullptr;
  for (CWnd* const child : window->GetChildren()) {
    if (auto* grid = dynamic_cast<platform::SECTreeCtrl*>(child)) return grid;
  }
  return nullptr;
}

Instance::CommandState Instance::StateOf(std::uint32_t command, HWND window) {
  CWnd* const target = CWnd::FromHandle(window);
  platform::CCmdUI ui(command);
  if (target == nullptr || !target->UpdateCommand(ui)) return {};
  return {ui.IsEnabled(), ui.IsChecked()};
}

bool Instance::RunCommand(std::uint32_t command, HWND window) {
  if (!StateOf(command, window).enabled) return false;
  platform::SendMessage(window, platform::WM_COMMAND, command);
  return true;
}

void Instance::CloseView() {
  ClosePane(PaneIndex::kSelected);
  ClosePane(PaneIndex::kAll);
}

void Instance::ClosePane(PaneIndex pane) {
  TellFrame(kClosePane, pane);
}

void Instance::HidePane(PaneIndex pane) {
  TellFrame(kHidePane, pane);
}

void Instance::RefreshPane(PaneIndex pane) {
  TellFrame(kRefreshPane, pane);
}

void Instance::TellFrame(platform::UINT message, PaneIndex pane) {
  if (const CWnd* window = Pane(pane)) platform::SendMessage(Frame(), message, window->GetHandle());
}

}  // namespace ioview
