#include "ioview/host/host_services.h"

namespace ioview {

HostServices::HostServices() {
  root.Provide<pvw::IQErrorService>(pvw::IID_IQErrorService, &errors);
  root.Provide<pvw::IQNumberFormat>(pvw::IID_IQNumberFormat, &numbers);
  root.Provide<pvw::IQAddressFormat>(pvw::IID_IQAddressFormat, &addresses);
  root.Provide<pvw::IQDebugSession>(pvw::IID_IQDebugSession, &session);
  root.Provide<pvw::IQDebugger>(pvw::IID_IQDebugger, &debugger);
  root.Provide<pvw::IQTargetMemory>(pvw::IID_IQTargetMemory, &memory);
  root.Provide<pvw::IQBlockMemory>(pvw::IID_IQBlockMemory, &blocks);
  root.Provide<pvw::IQMemoryMap>(pvw::IID_IQMemoryMap, &map);
  root.Provide<pvw::IQPathService>(pvw::IID_IQPathService, &paths);
  root.Provide<pvw::IQWorkspaceInfo>(pvw::IID_IQWorkspaceInfo, &workspace_info);
  root.Provide<pvw::IQCustomPlaceholders>(pvw::IID_IQCustomPlaceholders, &placeholders);
  root.Provide<pvw::IQDeviceInfo>(pvw::IID_IQDeviceInfo, &device);
  root.Provide<pvw::IQCommandRecorder>(pvw::IID_IQCommandRecorder, &recorder);
}

}  // namespace ioview
