// One host with all its services: what a component is connected to.
#pragma once

#include "ioview/host/address_format.h"
#include "ioview/host/command_recorder.h"
#include "ioview/host/component_host.h"
#include "ioview/host/custom_placeholders.h"
#include "ioview/host/debug_session.h"
#include "ioview/host/device_info.h"
#include "ioview/host/error_texts.h"
#include "ioview/host/memory_map.h"
#include "ioview/host/number_format.h"
#include "ioview/host/path_service.h"
#include "ioview/host/target_memory.h"
#include "ioview/host/workspace.h"
#include "ioview/host/workspace_info.h"
#include "ioview/target/simulated_target.h"

namespace ioview {

// `root` provides every service below it. Must outlive the component's connection.
struct HostServices {
  HostServices();

  SimulatedTarget target;
  Workspace workspace;

  ErrorService errors;
  NumberFormat numbers;
  AddressFormat addresses;
  DebugSession session;
  Debugger debugger;
  TargetMemory memory{target};
  BlockMemory blocks{target};
  MemoryMap map{target};
  PathService paths{workspace};
  WorkspaceInfo workspace_info{workspace};
  CustomPlaceholders placeholders{workspace};
  DeviceInfo device;
  CommandRecorder recorder;
  ComponentHost root;
};

}  // namespace ioview
