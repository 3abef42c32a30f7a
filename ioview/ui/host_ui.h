// The host's user interface as components see it, whatever the display: what they have registered, and the
// dockable windows that they live in.
//
// The three services IQUiManager, IQToolbarManager and IQPageHost change it; a desktop observes it and draws
// it, a script asks it where a command goes.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "ioview/ui/dock_window.h"
#include "platform/base/guid.h"
#include "platform/base/module.h"
#include "platform/base/resources.h"

namespace ioview {

// Who registers: an owner id of the host's, and a class id.
struct Registrant {
  std::uint32_t owner = 0;
  platform::GUID class_id = {};
  friend bool operator==(const Registrant&, const Registrant&) = default;
};

enum class RegistrationKind { kMenu, kPopupMenu, kToolbar, kAccelerators, kSink, kStrings, kKeyWindow };

// One thing registered and not taken back. What doesn't apply to its kind is empty.
struct Registration {
  RegistrationKind kind;
  Registrant by;
  platform::HMODULE module = nullptr;
  std::uint32_t resource = 0;                // menu, toolbar or accelerator table
  platform::HWND window = 0;                 // that has the popup menu, that gets the commands, or the keys
  std::string identity = {};                 // of a toolbar
  std::string title = {};                    // of a toolbar
  std::vector<std::uint32_t> commands = {};  // those that the component wants to have handled
};

// Hears of changes after they are made. Must not change anything itself while it is told.
class UiObserver {
 public:
  virtual void MenusChanged() {}  // menus, toolbars of the main window, accelerators, sinks
  virtual void DockMade(DockWindow&) {}
  virtual void DockChanged(DockWindow&) {}  // shown, docking, pages, active page, its toolbar
  // Just before its window goes.
  virtual void DockGone(DockWindow&) {}
  // The component asks for the host's dialog about the dock's toolbar.
  virtual void CustomizeToolbar(DockWindow&) {}

 protected:
  ~UiObserver() = default;
};

class HostUi {
 public:
  HostUi() = default;
  HostUi(const HostUi&) = delete;
  HostUi& operator=(const HostUi&) = delete;
  // Destroys the dock windows that are left.
  ~HostUi();

  // Not owned; null for none.
  void SetObserver(UiObserver* observer) { observer_ = observer; }

  // In order of registration.
  const std::vector<Registration>& Registrations() const { return registered_; }
  void Add(Registration registration);
  // Takes back the first registration of that kind, registrant and content; false when there is none.
  bool Remove(const Registration& registration);

  std::uint32_t NewOwner();
  // False for an id that wasn't handed out.
  bool FreeOwner(std::uint32_t owner) { return owners_.erase(owner) != 0; }

  // Where a command goes that no pane has the focus for: the sink of the registrant that has it in the list
  // of a menu, toolbar or accelerator table; 0 for none.
  platform::HWND SinkOf(std::uint32_t command) const;
  // The command of a key: asked of the accelerators whose key window is `focus` or a parent of it, and then
  // of those whose registrant has a sink. Nothing when no table has the key.
  struct KeyCommand {
    std::uint32_t command;
    platform::HWND target;
  };
  std::optional<KeyCommand> CommandOfKey(platform::HWND focus, const platform::MSG& key) const;
  // The popup menu of a window: the registration for it; null for none.
  const Registration* PopupMenuOf(platform::HWND window) const;
  // Shows it at a point of the window's client area, as its update handlers say, and sends what is picked.
  void ShowPopupMenu(platform::HWND window, platform::POINT at) const;
  // Status line and tool tip of a command, in the code page, from the module that registered its strings for
  // it; both empty when there are none.
  struct CommandTexts {
    std::string status_line;
    std::string tool_tip;
  };
  CommandTexts TextsOf(std::uint32_t command) const;

  const std::vector<std::unique_ptr<DockWindow>>& Docks() const { return docks_; }
  // Null when there is none.
  DockWindow* FindDock(std::string_view identity) const;
  DockWindow* FindDock(platform::HWND window) const;
  // Hidden, docked, without pages.
  DockWindow& MakeDock(std::string identity, std::string title);
  // False when there is no such window.
  bool DestroyDock(platform::HWND window);

  // These tell the observer. `mode` is that of IQUiManager::SetDockState: 1 hides, 2 shows, 32 changes the
  // docking.
  void SetDockState(DockWindow& dock, std::uint32_t mode);
  void InsertPage(DockWindow& dock, DockWindow::Page page, std::int32_t position);
  bool RemovePage(DockWindow& dock, platform::HWND window);
  void ActivatePage(DockWindow& dock, std::size_t index);
  void SetPaneToolbar(DockWindow& dock, platform::HMODULE module, std::uint32_t toolbar_id);
  void ShowToolbar(DockWindow& dock, bool show);
  void CustomizeToolbar(DockWindow& dock);

 private:
  UiObserver* observer_ = nullptr;
  std::vector<Registration> registered_;
  std::set<std::uint32_t> owners_;
  std::uint32_t last_owner_ = 0;
  std::vector<std::unique_ptr<DockWindow>> docks_;
};

}  // namespace ioview
