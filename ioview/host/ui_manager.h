// IQUiManager: menus, accelerators, command sinks, pages and the state of dockable windows.
#pragma once

#include "host/ui_services.h"
#include "ioview/host/service.h"
#include "ioview/ui/host_ui.h"

namespace ioview {

// A removal fails without its addition; an operation about a dockable window fails for any other. Lists
// behind the ids, the two texts of a menu and its flag have no meaning here.
class UiManager : public Service<pvw::IQUiManager, pvw::IID_IQUiManager> {
 public:
  explicit UiManager(HostUi& ui) : ui_(ui) {}

  platform::Status AddAccelerators(platform::HMODULE module, std::uint32_t accelerator_id,
                                   std::uint32_t owner, const platform::GUID* class_id,
                                   const platform::VARIANT* ids, const platform::VARIANT* list2,
                                   const platform::VARIANT* list3) override;
  platform::Status RemoveAccelerators(platform::HMODULE module, std::uint32_t accelerator_id,
                                      std::uint32_t owner, const platform::GUID* class_id) override;
  platform::Status AddPopupMenu(platform::HWND window, platform::HMODULE module, std::uint32_t menu_id,
                                std::uint32_t owner, const platform::GUID* class_id,
                                const platform::VARIANT* ids) override;
  platform::Status RemovePopupMenu(platform::HWND window, platform::HMODULE module, std::uint32_t menu_id,
                                   std::uint32_t owner, const platform::GUID* class_id) override;
  platform::Status SetDockState(platform::HWND window, std::uint32_t mode) override;
  platform::Status GetDockState(platform::HWND window, std::uint32_t* state) override;
  platform::Status RemoveParentWindow(platform::HWND parent) override;
  platform::Status AddPage(platform::HWND parent, platform::HWND window, std::int32_t position,
                           platform::BSTR title, std::uint32_t number1, std::uint32_t number2,
                           std::uint32_t owner, const platform::GUID* class_id) override;
  platform::Status RemovePage(platform::HWND parent, platform::HWND window, std::uint32_t owner,
                              const platform::GUID* class_id) override;
  platform::Status RemoveToolbar(platform::BSTR identity, std::uint32_t owner,
                                 const platform::GUID* class_id) override;
  platform::Status AddMenu(platform::HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                           const platform::GUID* class_id, const platform::VARIANT* ids,
                           const platform::VARIANT* list2, const platform::VARIANT* list3,
                           platform::BSTR text1, platform::BSTR text2, std::uint32_t flag) override;
  platform::Status RemoveMenu(platform::HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                              const platform::GUID* class_id) override;
  platform::Status AddCommandSink(std::uint32_t owner, const platform::GUID* class_id,
                                  platform::HWND window) override;
  platform::Status AddCommandStrings(platform::HMODULE module, std::uint32_t owner,
                                     const platform::GUID* class_id) override;
  platform::Status RemoveCommandStrings(platform::HMODULE module, std::uint32_t owner,
                                        const platform::GUID* class_id) override;
  platform::Status RemoveCommandSink(std::uint32_t owner, const platform::GUID* class_id,
                                     platform::HWND window) override;
  platform::Status AllocOwnerId(std::uint32_t* owner) override;
  // Fails for an id that isn't in use.
  platform::Status FreeOwnerId(std::uint32_t* owner) override;
  // Gives a window that is shown, else fails. The text comes back as it went in.
  platform::Status GetDockableWindow(platform::BSTR identity, platform::BSTR title, std::uint32_t number,
                                     std::uint32_t dock_position, platform::HWND* window,
                                     platform::BSTR* text) override;

 private:
  platform::Status Add(Registration registration, const platform::VARIANT* ids = nullptr);
  platform::Status Remove(const Registration& registration);

  HostUi& ui_;
};

}  // namespace ioview
