// IQToolbarManager: toolbars of the main window and in dockable windows, and the making of the latter.
#pragma once

#include "host/ui_services.h"
#include "ioview/host/service.h"
#include "ioview/ui/host_ui.h"

namespace ioview {

// An operation about a dockable window fails for any other.
class ToolbarManager : public Service<pvw::IQToolbarManager, pvw::IID_IQToolbarManager> {
 public:
  explicit ToolbarManager(HostUi& ui) : ui_(ui) {}

  // With the flags 0x10 gives the window only while it is hidden, else fails. With any others gives it as it
  // is, and makes it, hidden, where there is none. Where it is docked is the user's matter, so the position
  // isn't looked at; the text comes back as it went in.
  platform::Status FindDockableWindow(platform::BSTR identity, platform::BSTR title,
                                      pvw::IQUpdateWindowClient* client, std::uint32_t flags,
                                      std::uint32_t dock_position, platform::HWND* window,
                                      platform::BSTR* text) override;
  // In place of the toolbar that the window had. The lists have no meaning here.
  platform::Status AddPaneToolbar(platform::HWND parent, platform::HMODULE module, std::uint32_t toolbar_id,
                                  std::uint32_t second_id, std::uint32_t owner,
                                  const platform::GUID* class_id, const platform::VARIANT* list1,
                                  const platform::VARIANT* list2, const platform::VARIANT* list3,
                                  const platform::VARIANT* list4, const platform::VARIANT* list5) override;
  platform::Status CustomizeToolbar(platform::HWND window) override;
  // 1 for a hidden toolbar, and for a window that isn't a dockable one.
  platform::Status IsToolbarShown(platform::HWND window) override;
  platform::Status ShowToolbar(platform::HWND window, std::int32_t show) override;
  platform::Status AddToolbar(platform::BSTR identity, platform::BSTR title, platform::HMODULE module,
                              std::uint32_t toolbar_id, std::uint32_t second_id, std::uint32_t owner,
                              const platform::GUID* class_id, const platform::VARIANT* ids) override;

 private:
  HostUi& ui_;
};

}  // namespace ioview
