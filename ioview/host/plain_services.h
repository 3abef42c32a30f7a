// The services that a component asks for and calls no operation of: that the host gives them is all.
#pragma once

#include <tuple>

#include "host/debug_services.h"
#include "host/ui_services.h"
#include "ioview/host/service.h"

namespace ioview {

template <typename Interface, const platform::GUID& id>
class PlainService : public Service<Interface, id> {};

// This host's answers to memory accesses are its own, no debugger library has them.
class DebugLibrary : public Service<pvw::IQDebugLibrary, pvw::IID_IQDebugLibrary> {
 public:
  platform::Status GetLibraryHandle(platform::HMODULE* handle) override {
    if (Enter("GetLibraryHandle")) *handle = nullptr;
    return platform::E_FAIL;
  }
};

using PlainServices =
    std::tuple<WithFailing<PlainService<pvw::IQHostFrame, pvw::IID_IQHostFrame>>,
               WithFailing<PlainService<pvw::IQHostCommon, pvw::IID_IQHostCommon>>,
               WithFailing<PlainService<pvw::IQHostExtra, pvw::IID_IQHostExtra>>,
               WithFailing<PlainService<pvw::IQUiExtra, pvw::IID_IQUiExtra>>,
               WithFailing<PlainService<pvw::IQDebugExtra, pvw::IID_IQDebugExtra>>,
               WithFailing<PlainService<pvw::IQDebugExtra2, pvw::IID_IQDebugExtra2>>,
               WithFailing<PlainService<pvw::IQBreakpoints, pvw::IID_IQBreakpoints>>,
               WithFailing<PlainService<pvw::IQCpuRegisters, pvw::IID_IQCpuRegisters>>,
               WithFailing<PlainService<pvw::IQRegisterInfo, pvw::IID_IQRegisterInfo>>,
               WithFailing<PlainService<pvw::IQDebugTargetInfo, pvw::IID_IQDebugTargetInfo>>,
               WithFailing<PlainService<pvw::IQDebugMemoryOptions, pvw::IID_IQDebugMemoryOptions>>,
               WithFailing<PlainService<pvw::IQDebugPlatform, pvw::IID_IQDebugPlatform>>>;

}  // namespace ioview
