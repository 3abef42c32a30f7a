// IQPageHost: the pages of dockable windows.
#pragma once

#include "host/ui_services.h"
#include "ioview/host/service.h"
#include "ioview/ui/host_ui.h"

namespace ioview {

class PageHost : public Service<pvw::IQPageHost, pvw::IID_IQPageHost> {
 public:
  explicit PageHost(const HostUi& ui) : ui_(ui) {}

  // Fails, with no pages, for a window that isn't one of the host's dockable ones.
  platform::Status GetPageCount(platform::HWND window, std::uint32_t* count) override {
    if (!Enter("GetPageCount", window)) return platform::E_FAIL;
    const DockWindow* dock = ui_.FindDock(window);
    *count = dock != nullptr ? static_cast<std::uint32_t>(dock->Pages().size()) : 0;
    return dock != nullptr ? platform::S_OK : platform::E_FAIL;
  }

 private:
  const HostUi& ui_;
};

}  // namespace ioview
