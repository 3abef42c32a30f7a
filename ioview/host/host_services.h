// One host with all its services: what a component is connected to.
#pragma once

#include <string_view>

#include "ioview/host/address_format.h"
#include "ioview/host/call_log.h"
#include "ioview/host/command_recorder.h"
#include "ioview/host/component_host.h"
#include "ioview/host/custom_placeholders.h"
#include "ioview/host/data_manager.h"
#include "ioview/host/debug_session.h"
#include "ioview/host/device_info.h"
#include "ioview/host/error_texts.h"
#include "ioview/host/memory_map.h"
#include "ioview/host/number_format.h"
#include "ioview/host/page_host.h"
#include "ioview/host/path_service.h"
#include "ioview/host/plain_services.h"
#include "ioview/host/settings_service.h"
#include "ioview/host/target_memory.h"
#include "ioview/host/toolbar_manager.h"
#include "ioview/host/ui_manager.h"
#include "ioview/host/workspace.h"
#include "ioview/host/workspace_info.h"
#include "ioview/store/stored_values.h"
#include "ioview/target/simulated_target.h"
#include "ioview/ui/host_ui.h"

namespace ioview {

// `root` provides every service. Must outlive the component's connection; the settings outlive the host.
struct HostServices {
  explicit HostServices(UserSettings& user_settings);

  // What the services speak of.
  CallLog calls;
  SimulatedTarget target;
  Workspace workspace;
  SessionValues session_values;
  UserSettings& settings;
  HostUi ui;

  // The services whose state a user of this host sets.
  WithFailing<DebugSession> session;
  WithFailing<CustomPlaceholders> placeholders{workspace};
  WithFailing<DeviceInfo> device;
  WithFailing<CommandRecorder> recorder;

  WithFailing<ErrorService> errors;
  WithFailing<NumberFormat> numbers;
  WithFailing<AddressFormat> addresses;
  WithFailing<Debugger> debugger;
  WithFailing<TargetMemory> memory{target};
  WithFailing<BlockMemory> blocks{target};
  WithFailing<MemoryMap> map{target};
  WithFailing<DebugLibrary> library;
  WithFailing<PathService> paths{workspace};
  WithFailing<WorkspaceInfo> workspace_info{workspace};
  WithFailing<DataManager> data_manager{session_values};
  WithFailing<SettingsService> settings_service{settings};
  WithFailing<UiManager> ui_manager{ui};
  WithFailing<ToolbarManager> toolbars{ui};
  WithFailing<PageHost> pages{ui};
  PlainServices plain;
  ComponentHost root{calls};

  // How `root` answers from the next GetService on; a pointer that was given before goes on working. False
  // for a name (or {GUID}) that this host doesn't know. All are on at first but IQDebugPlatform.
  bool SetAvailability(std::string_view service, Availability availability);

 private:
  template <typename Real>
  void Provide(WithFailing<Real>& service);
};

}  // namespace ioview
