// What the component has registered at the host's menus, toolbars, accelerators and pages, with one call that
// takes all of an owner back.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "component/services/command_ids.h"
#include "component/services/owner_table.h"
#include "host/component_host.h"
#include "host/ui_services.h"

namespace pvw {

// One a data control; it outlives the frame and the panes. Texts are in the ANSI code page.
//
// An Add gives the host's status and keeps a record exactly when that is 0. It looks its resource up in the
// given module to tell the host which commands it holds. Every operation gives E_FAIL where the host lacks
// the service that it needs.
class CUiRegistrar {
 public:
  // Given for a resource that isn't there.
  static constexpr platform::Status kNoResource = 1;

  explicit CUiRegistrar(IQComponentHost* host);
  CUiRegistrar(const CUiRegistrar&) = delete;
  CUiRegistrar& operator=(const CUiRegistrar&) = delete;

  // A toolbar inside the dockable window `parent`; it goes with that, so nothing is kept. A list without ids
  // isn't given to the host.
  virtual platform::Status AddPaneToolbar(platform::HWND parent, platform::HMODULE module,
                                          std::uint32_t toolbar_id, std::uint32_t second_id,
                                          std::uint32_t owner, const platform::GUID& class_id,
                                          const std::array<std::span<const std::uint32_t>, 5>& lists);
  virtual platform::Status CustomizeToolbar(platform::HWND window);
  virtual bool IsToolbarShown(platform::HWND window);
  virtual platform::Status ShowToolbar(platform::HWND window, bool show);
  virtual ~CUiRegistrar() = default;

  // kNoResource for a menu that the module lacks.
  platform::Status AddMenu(platform::HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                           const platform::GUID& class_id);
  platform::Status AddPopupMenu(platform::HWND window, platform::HMODULE module, std::uint32_t menu_id,
                                std::uint32_t owner, const platform::GUID& class_id);
  // `ids` stand in for the commands of the toolbar's resource. E_FAIL for a resource that the module lacks.
  platform::Status AddToolbar(std::string_view identity, std::string_view title, platform::HMODULE module,
                              std::uint32_t toolbar_id, std::uint32_t second_id, std::uint32_t owner,
                              const platform::GUID& class_id, std::span<const std::uint32_t> ids = {});
  // kNoResource for keys that the module lacks.
  platform::Status AddAccelerators(platform::HMODULE module, std::uint32_t accelerator_id,
                                   std::uint32_t owner, const platform::GUID& class_id);
  platform::Status AddCommandSink(std::uint32_t owner, const platform::GUID& class_id, platform::HWND window);
  platform::Status AddCommandStrings(platform::HMODULE module, std::uint32_t owner,
                                     const platform::GUID& class_id);
  // `position` -1 is the last.
  platform::Status AddPage(platform::HWND parent, platform::HWND window, std::int32_t position,
                           std::string_view title, std::uint32_t owner, const platform::GUID& class_id);
  // The owner's accelerators go to `window`.
  platform::Status SetAcceleratorWindow(platform::HWND window, std::uint32_t owner,
                                        const platform::GUID& class_id);

  // Takes back all that stands under an owner id, in the order of the tables below and in each in the order
  // of registration. A parent whose last page goes this way goes too. A window may be an owner besides: its
  // handle is never equal to an owner id. Nothing is asked of the host for an owner that has nothing.
  void ReleaseOwner(std::uint64_t owner);

  // 0 when the host gives none.
  platform::Status AllocOwnerId(std::uint32_t* id);
  platform::Status FreeOwnerId(std::uint32_t* id);

  // A dockable window by its identity. `*window` is 0 when the host gives none. `text`, where it isn't null,
  // goes to the host and comes back as the host leaves it; a call that fails leaves it alone.
  platform::Status FindDockableWindow(std::string_view identity, std::string_view title,
                                      IQUpdateWindowClient* client, std::uint32_t flags,
                                      std::uint32_t dock_position, platform::HWND* window, std::string* text);
  platform::Status GetDockableWindow(std::string_view identity, std::string_view title,
                                     std::uint32_t dock_position, platform::HWND* window, std::string* text);
  // `mode` 1 hides the window, 2 shows it, 32 changes its docking.
  platform::Status SetDockState(platform::HWND window, std::uint32_t mode);
  // 0 when the host gives none.
  platform::Status GetDockState(platform::HWND window, std::uint32_t* state);

 private:
  // What each registration was called with, so that its removal gets the same.
  struct Page {
    platform::HWND parent;
    platform::HWND window;
    platform::GUID class_id;
  };
  struct PopupMenu {
    platform::HWND window;
    platform::HMODULE module;
    std::uint32_t menu_id;
    platform::GUID class_id;
  };
  struct Menu {
    platform::HMODULE module;
    std::uint32_t menu_id;
    platform::GUID class_id;
  };
  struct Toolbar {
    std::string identity;
    platform::GUID class_id;
  };
  struct Accelerators {
    platform::HMODULE module;
    std::uint32_t accelerator_id;
    platform::GUID class_id;
  };
  struct CommandSink {
    platform::GUID class_id;
    platform::HWND window;
  };
  struct CommandStrings {
    platform::HMODULE module;
    platform::GUID class_id;
  };

  void RemovePage(const Page& page, std::uint32_t owner);

  COwnerTable<Page> pages;
  COwnerTable<PopupMenu> popupMenus;
  COwnerTable<Menu> menus;
  COwnerTable<Toolbar> toolbars;
  COwnerTable<Accelerators> accelerators;
  COwnerTable<CommandSink> commandSinks;
  COwnerTable<CommandStrings> commandStrings;

  // Not owned; null where the host doesn't give it.
  IQUiManager* uiManager = nullptr;
  IQToolbarManager* toolbarManager = nullptr;
  IQUiExtra* hostUiExtra = nullptr;
  IQPageHost* pageHost = nullptr;
};

}  // namespace pvw
