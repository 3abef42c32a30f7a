// Every service of this host, with the name that logs and scripts know it by.
#pragma once

#include <array>
#include <stdexcept>
#include <string_view>

#include "host/ids.h"

namespace ioview {

struct ServiceEntry {
  std::string_view name;
  platform::GUID id;
};

inline constexpr std::array kServices = {
    ServiceEntry{"IQErrorService", pvw::IID_IQErrorService},
    ServiceEntry{"IQPathService", pvw::IID_IQPathService},
    ServiceEntry{"IQWorkspaceInfo", pvw::IID_IQWorkspaceInfo},
    ServiceEntry{"IQDataManager", pvw::IID_IQDataManager},
    ServiceEntry{"IQSettings", pvw::IID_IQSettings},
    ServiceEntry{"IQCustomPlaceholders", pvw::IID_IQCustomPlaceholders},
    ServiceEntry{"IQDeviceInfo", pvw::IID_IQDeviceInfo},
    ServiceEntry{"IQNumberFormat", pvw::IID_IQNumberFormat},
    ServiceEntry{"IQAddressFormat", pvw::IID_IQAddressFormat},
    ServiceEntry{"IQCommandRecorder", pvw::IID_IQCommandRecorder},
    ServiceEntry{"IQDebugSession", pvw::IID_IQDebugSession},
    ServiceEntry{"IQDebugger", pvw::IID_IQDebugger},
    ServiceEntry{"IQTargetMemory", pvw::IID_IQTargetMemory},
    ServiceEntry{"IQBlockMemory", pvw::IID_IQBlockMemory},
    ServiceEntry{"IQMemoryMap", pvw::IID_IQMemoryMap},
    ServiceEntry{"IQDebugLibrary", pvw::IID_IQDebugLibrary},
    ServiceEntry{"IQDebugPlatform", pvw::IID_IQDebugPlatform},
    ServiceEntry{"IQUiManager", pvw::IID_IQUiManager},
    ServiceEntry{"IQToolbarManager", pvw::IID_IQToolbarManager},
    ServiceEntry{"IQPageHost", pvw::IID_IQPageHost},
    ServiceEntry{"IQHostFrame", pvw::IID_IQHostFrame},
    ServiceEntry{"IQHostCommon", pvw::IID_IQHostCommon},
    ServiceEntry{"IQHostExtra", pvw::IID_IQHostExtra},
    ServiceEntry{"IQUiExtra", pvw::IID_IQUiExtra},
    ServiceEntry{"IQDebugExtra", pvw::IID_IQDebugExtra},
    ServiceEntry{"IQDebugExtra2", pvw::IID_IQDebugExtra2},
    ServiceEntry{"IQBreakpoints", pvw::IID_IQBreakpoints},
    ServiceEntry{"IQCpuRegisters", pvw::IID_IQCpuRegisters},
    ServiceEntry{"IQRegisterInfo", pvw::IID_IQRegisterInfo},
    ServiceEntry{"IQDebugTargetInfo", pvw::IID_IQDebugTargetInfo},
    ServiceEntry{"IQDebugMemoryOptions", pvw::IID_IQDebugMemoryOptions},
};

// The root's own name, under which its operations are logged.
inline constexpr std::string_view kRootName = "IQComponentHost";

// The name that the operations of an interface are logged under; an id without one doesn't compile.
constexpr std::string_view NameOfInterface(const platform::GUID& id) {
  // Not a service by itself: others answer to it.
  if (id == pvw::IID_IQErrorReporter) return "IQErrorReporter";
  for (const ServiceEntry& entry : kServices) {
    if (entry.id == id) return entry.name;
  }
  throw std::logic_error("an interface without a name");
}

// By its name, or by its id in braces; null when this host has no such service.
const ServiceEntry* FindService(std::string_view name_or_id);

}  // namespace ioview
