// IQDeviceInfo: the device's own definition file and base address.
#pragma once

#include <string>
#include <utility>

#include "host/workspace_services.h"
#include "ioview/host/service.h"

namespace ioview {

class DeviceInfo : public Service<pvw::IQDeviceInfo, pvw::IID_IQDeviceInfo> {
 public:
  // `path` is a drive path without its ".io", which the component adds; it need not exist.
  void SetDefaultIOPath(std::string path) { path_ = std::move(path); }
  // 0 stands for the base that the definition file gives.
  void SetBaseAddress(std::uint32_t address) { base_ = address; }

  platform::Status GetDefaultIOPath(platform::BSTR* path) override {
    return Enter("GetDefaultIOPath") ? GiveText(path_, path) : platform::E_FAIL;
  }
  platform::Status GetBaseAddress(std::uint32_t* address) override {
    if (!Enter("GetBaseAddress")) return platform::E_FAIL;
    *address = base_;
    return platform::S_OK;
  }

 private:
  std::string path_ = "c:\\demo\\device";
  std::uint32_t base_ = 0;
};

}  // namespace ioview
