// One instance of the component with a host of its own: everything that a desktop or a script does with it.
//
// The clients and servers that the component has registered are asked for anew each time: they go with a
// disconnect.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "host/component_clients.h"
#include "host/events.h"
#include "host/format_view_client.h"
#include "host/ids.h"
#include "host/test_client.h"
#include "host/workspace_client.h"
#include "ioview/component/component_library.h"
#include "ioview/host/host_services.h"
#include "ioview/store/stored_values.h"
#include "ioview/ui/host_ui.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/gui/window.h"

namespace ioview {

// The command of the frame that opens the view.
inline constexpr std::uint32_t kOpenViewCommand = 32770;

enum class PaneIndex : std::size_t { kAll = 0, kSelected = 1 };

class Instance {
 public:
  // Library and settings must outlive the instance. Nothing of the component runs yet.
  Instance(const ComponentLibrary& library, UserSettings& settings);
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;
  // Disconnects and destroys what is still there.
  ~Instance();

  // The host: its target, services, workspace, user interface. Set it up before Start.
  HostServices host;
  // Told of each event that the component fires, before it comes back to the component.
  std::function<void(const pvw::QEventRecord&)> on_fired_event;

  // Creation, connect, the event of a connected target where `target_connected`, the session; then the view's
  // window, if the session brought one, is shown. The status is that of the connect; when it fails the rest
  // is left out.
  platform::Status Start(bool target_connected);
  bool IsCreated() const { return created_; }
  bool IsConnected() const { return connected_; }
  // Creates the instance first where there is none. `flag` is the component's own.
  platform::Status Connect(std::int16_t flag = 1);
  platform::Status Disconnect(std::int16_t flag = 1);
  void Destroy();

  // E_NOINTERFACE when there is no instance.
  platform::Status Query(const platform::GUID& iid, void** out);
  template <typename Interface>
  Interface* Face(const platform::GUID& iid) {
    void* face = nullptr;
    return Query(iid, &face) == platform::S_OK ? static_cast<Interface*>(face) : nullptr;
  }
  // Null where the component has registered none.
  pvw::IQWorkSpaceClient2* Sessions() const {
    return Client<pvw::IQWorkSpaceClient2>(pvw::IID_IQWorkSpaceClient2);
  }
  pvw::IQFormatViewClient2* Format() const {
    return Client<pvw::IQFormatViewClient2>(pvw::IID_IQFormatViewClient2);
  }
  pvw::IQUpdateWindowClient* Update() const {
    return Client<pvw::IQUpdateWindowClient>(pvw::IID_IQUpdateWindowClient);
  }
  pvw::IQSteppingClient* Stepping() const { return Client<pvw::IQSteppingClient>(pvw::IID_IQSteppingClient); }
  pvw::IQTestClient* Test() const { return Client<pvw::IQTestClient>(pvw::IID_IQTestClient); }
  pvw::IQIOServer* Server() const {
    return static_cast<pvw::IQIOServer*>(host.root.Server(pvw::IID_IQIOServer));
  }

  // What the host sends. Nothing when there is no instance.
  void SendEvent(const platform::GUID& event);
  void ConnectTarget() { SendEvent(pvw::EVENT_TARGET_CONNECTED); }
  void DisconnectTarget() { SendEvent(pvw::EVENT_TARGET_DISCONNECTED); }
  // One stop of the target after `steps` single steps, each told of; 0 steps for a stop by itself.
  void Step(std::uint32_t steps, std::uint32_t kind, std::uint32_t times);

  // The session of the workspace that is open. Loading shows the view's window if there is one. False where
  // the component has no client for it.
  bool LoadSession();
  bool SaveSession();
  bool IsSessionDirty();
  // False without a server; the path is a drive path or one with placeholders.
  bool LoadIOFile(const std::string& path, std::uint32_t base);

  // The window that commands of the frame go to; 0 for none.
  platform::HWND Frame() const { return host.ui.SinkOf(kOpenViewCommand); }
  // The dockable window of the view; null when it isn't there.
  DockWindow* View() const;
  // Null for a pane that isn't there.
  platform::CWnd* Pane(PaneIndex pane) const;
  platform::SECTreeCtrl* Grid(PaneIndex pane) const;

  // What the update handler says of a command of `window`; a command that it doesn't have is disabled.
  struct CommandState {
    bool enabled = false;
    bool checked = false;
  };
  static CommandState StateOf(std::uint32_t command, platform::HWND window);
  // Runs the command unless its update handler disables it; false then.
  static bool RunCommand(std::uint32_t command, platform::HWND window);
  // The user closes the view's window: the frame is told of each page, from the last to the first.
  void CloseView();
  // The host's messages to the frame about one pane. Nothing for one that isn't there.
  void ClosePane(PaneIndex pane);
  void HidePane(PaneIndex pane);
  void RefreshPane(PaneIndex pane);

 private:
  template <typename Interface>
  Interface* Client(const platform::GUID& id) const {
    return static_cast<Interface*>(host.root.Client(id));
  }
  void TellFrame(platform::UINT message, PaneIndex pane);

  const ComponentLibrary& library_;
  bool created_ = false;
  bool connected_ = false;
};

}  // namespace ioview
