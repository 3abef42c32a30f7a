// The host's menus, toolbars, accelerators, pages and dockable windows.
//
// A component names what it adds by module and resource id, under an owner id that the host hands out and a
// class id; a removal takes the values of the addition. A list of command ids is of type VT_ARRAY | VT_UINT,
// each element a VARIANT of VT_UINT, or it is empty.
#pragma once

#include "host/component_clients.h"
#include "platform/base/module.h"

namespace pvw {

class IQUiManager : public IQUnknown {
 public:
  // The two lists behind `ids` are empty in every call of the component.
  virtual platform::Status AddAccelerators(platform::HMODULE module, std::uint32_t accelerator_id,
                                           std::uint32_t owner, const platform::GUID* class_id,
                                           const platform::VARIANT* ids, const platform::VARIANT* list2,
                                           const platform::VARIANT* list3) = 0;
  virtual platform::Status RemoveAccelerators(platform::HMODULE module, std::uint32_t accelerator_id,
                                              std::uint32_t owner, const platform::GUID* class_id) = 0;
  // A popup menu that the host shows for `window`.
  virtual platform::Status AddPopupMenu(platform::HWND window, platform::HMODULE module,
                                        std::uint32_t menu_id, std::uint32_t owner,
                                        const platform::GUID* class_id, const platform::VARIANT* ids) = 0;
  virtual platform::Status RemovePopupMenu(platform::HWND window, platform::HMODULE module,
                                           std::uint32_t menu_id, std::uint32_t owner,
                                           const platform::GUID* class_id) = 0;
  // `mode` 1 hides the window, 2 shows it, 32 changes its docking.
  virtual platform::Status SetDockState(platform::HWND window, std::uint32_t mode) = 0;
  virtual platform::Status GetDockState(platform::HWND window, std::uint32_t* state) = 0;
  // Takes away a dockable window that has no page left.
  virtual platform::Status RemoveParentWindow(platform::HWND parent) = 0;
  // `window` becomes a tab page of `parent` at `position`, -1 for the last. Without a parent, with position 0
  // and an empty title, it becomes the window that the owner's accelerators go to. The two numbers are 0.
  virtual platform::Status AddPage(platform::HWND parent, platform::HWND window, std::int32_t position,
                                   platform::BSTR title, std::uint32_t number1, std::uint32_t number2,
                                   std::uint32_t owner, const platform::GUID* class_id) = 0;
  virtual platform::Status RemovePage(platform::HWND parent, platform::HWND window, std::uint32_t owner,
                                      const platform::GUID* class_id) = 0;
  virtual platform::Status RemoveToolbar(platform::BSTR identity, std::uint32_t owner,
                                         const platform::GUID* class_id) = 0;
  // The two lists behind `ids` are empty, the two texts too unless the component gives some; `flag` is 1.
  virtual platform::Status AddMenu(platform::HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                   const platform::GUID* class_id, const platform::VARIANT* ids,
                                   const platform::VARIANT* list2, const platform::VARIANT* list3,
                                   platform::BSTR text1, platform::BSTR text2, std::uint32_t flag) = 0;
  virtual platform::Status RemoveMenu(platform::HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                      const platform::GUID* class_id) = 0;
  // Commands of the owner go to `window`.
  virtual platform::Status AddCommandSink(std::uint32_t owner, const platform::GUID* class_id,
                                          platform::HWND window) = 0;
  // The host takes status line and tool tip of a command from the module's string of the same id.
  virtual platform::Status AddCommandStrings(platform::HMODULE module, std::uint32_t owner,
                                             const platform::GUID* class_id) = 0;
  virtual platform::Status RemoveCommandStrings(platform::HMODULE module, std::uint32_t owner,
                                                const platform::GUID* class_id) = 0;
  virtual platform::Status RemoveCommandSink(std::uint32_t owner, const platform::GUID* class_id,
                                             platform::HWND window) = 0;
  virtual platform::Status AllocOwnerId(std::uint32_t* owner) = 0;
  virtual platform::Status FreeOwnerId(std::uint32_t* owner) = 0;
  // A dockable window that is on the screen, by its identity; `number` is 0. `text` goes in and comes back
  // changed; it may be null.
  virtual platform::Status GetDockableWindow(platform::BSTR identity, platform::BSTR title,
                                             std::uint32_t number, std::uint32_t dock_position,
                                             platform::HWND* window, platform::BSTR* text) = 0;

 protected:
  ~IQUiManager() = default;
};

class IQToolbarManager : public IQUnknown {
 public:
  // A dockable window by its identity: `flags` 0x10 finds one that exists but is hidden, 0x1086 makes one.
  // `text` as in GetDockableWindow.
  virtual platform::Status FindDockableWindow(platform::BSTR identity, platform::BSTR title,
                                              IQUpdateWindowClient* client, std::uint32_t flags,
                                              std::uint32_t dock_position, platform::HWND* window,
                                              platform::BSTR* text) = 0;
  // A toolbar inside the dockable window `parent`; `second_id` is 0, and each list may be empty.
  virtual platform::Status AddPaneToolbar(platform::HWND parent, platform::HMODULE module,
                                          std::uint32_t toolbar_id, std::uint32_t second_id,
                                          std::uint32_t owner, const platform::GUID* class_id,
                                          const platform::VARIANT* list1, const platform::VARIANT* list2,
                                          const platform::VARIANT* list3, const platform::VARIANT* list4,
                                          const platform::VARIANT* list5) = 0;
  virtual platform::Status CustomizeToolbar(platform::HWND window) = 0;
  // Exactly the status 0 means yes.
  virtual platform::Status IsToolbarShown(platform::HWND window) = 0;
  // `show` is -1 or 0.
  virtual platform::Status ShowToolbar(platform::HWND window, std::int32_t show) = 0;
  virtual platform::Status AddToolbar(platform::BSTR identity, platform::BSTR title, platform::HMODULE module,
                                      std::uint32_t toolbar_id, std::uint32_t second_id, std::uint32_t owner,
                                      const platform::GUID* class_id, const platform::VARIANT* ids) = 0;

 protected:
  ~IQToolbarManager() = default;
};

class IQPageHost : public IQUnknown {
 public:
  virtual platform::Status GetPageCount(platform::HWND window, std::uint32_t* count) = 0;

 protected:
  ~IQPageHost() = default;
};

// Asked for and kept; no operation is called. IQHostFrame comes from the host's QueryInterface.
class IQHostFrame : public IQUnknown {
 protected:
  ~IQHostFrame() = default;
};
class IQHostCommon : public IQUnknown {
 protected:
  ~IQHostCommon() = default;
};
class IQHostExtra : public IQUnknown {
 protected:
  ~IQHostExtra() = default;
};
class IQUiExtra : public IQUnknown {
 protected:
  ~IQUiExtra() = default;
};

}  // namespace pvw
