// The window side of FakeHost: dockable windows with pages, menus, toolbars, keys and command sinks.
//
// In the transcript a window goes by the name that NameWindow gave it, a dockable one by "dock1", "dock2" as
// they were made, any other by "window1" and on as it was first seen. A list of commands reads "[32770
// 32771]", one that isn't given "-"; a removal without its addition has " (unknown)" behind it. Lines look
// like "AddMenu 201 owner 1 PvwIO [32770] - - \"\" \"\" 1" and "AddPage dock1 window2 -1 \"All\" 0 0 owner 3
// PvwIO".
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/ui_services.h"
#include "platform/gui/window.h"
#include "tests/support/fake_services.h"

namespace pvw::test {

// A window of the host's that the user docks, floats, hides and closes. One that is new is hidden and docked.
struct FakeDockWindow {
  std::string identity, title;
  std::unique_ptr<platform::CWnd> window;
  bool shown = false;
  std::uint32_t state = 8;  // what GetDockState gives; a change of its docking turns the bit 8
  bool toolbar_shown = true;
};

// Something registered and not taken back.
struct FakeRegistration {
  std::string kind;  // "menu", "popup", "toolbar", "keys", "sink", "strings", "page"
  std::string what;  // all that its removal must repeat, as text: "menu 201"
  std::uint32_t owner = 0;
  platform::GUID class_id = {};
  platform::HMODULE module = nullptr;
  platform::HWND window = 0;  // of a popup menu, a sink, a page
  platform::HWND parent = 0;  // of a page
  std::vector<std::uint32_t> commands = {};
};

class FakeUi {
 public:
  explicit FakeUi(FakeHost& host) : host_(host) {}
  ~FakeUi();

  // The `what` of each registration in its order, with its owner: "menu 201 owner 1".
  std::vector<std::string> Live() const;
  // Owner ids handed out, from 1, and not given back.
  const std::set<std::uint32_t>& Owners() const { return owners_; }

  // Null when there is none.
  FakeDockWindow* Dock(std::string_view identity);
  FakeDockWindow* Dock(platform::HWND window);
  std::vector<FakeRegistration> Pages(platform::HWND parent) const;
  // Where the host sends the command: the sink of the owner and class that have it in a list; 0 for none.
  platform::HWND SinkOf(std::uint32_t command) const;

  void NameWindow(platform::HWND window, std::string name) { names_[window] = std::move(name); }
  std::string Name(platform::HWND window);

  // For the services.
  platform::Status Add(FakeRegistration registration, std::string_view operation, const std::string& line);
  platform::Status Remove(const FakeRegistration& registration, std::string_view operation);
  std::uint32_t NewOwner();
  bool FreeOwner(std::uint32_t owner) { return owners_.erase(owner) != 0; }
  FakeDockWindow& MakeDock(std::string identity, std::string title);
  bool DestroyDock(platform::HWND window);

 private:
  FakeHost& host_;
  std::vector<FakeRegistration> registered_;
  std::set<std::uint32_t> owners_;
  std::uint32_t last_owner_ = 0;
  std::vector<std::unique_ptr<FakeDockWindow>> docks_;
  int docks_made_ = 0;
  int windows_seen_ = 0;
  std::map<platform::HWND, std::string> names_;
};

namespace fakes {

using platform::GUID;
using platform::HMODULE;
using platform::HWND;
using platform::VARIANT;

class FakeUiManager final : public Service<IQUiManager> {
 public:
  using Service::Service;
  Status AddAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                         const GUID* class_id, const VARIANT* ids, const VARIANT* list2,
                         const VARIANT* list3) override;
  Status RemoveAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                            const GUID* class_id) override;
  Status AddPopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                      const GUID* class_id, const VARIANT* ids) override;
  Status RemovePopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                         const GUID* class_id) override;
  Status SetDockState(HWND window, std::uint32_t mode) override;
  Status GetDockState(HWND window, std::uint32_t* state) override;
  Status RemoveParentWindow(HWND parent) override;
  Status AddPage(HWND parent, HWND window, std::int32_t position, BSTR title, std::uint32_t number1,
                 std::uint32_t number2, std::uint32_t owner, const GUID* class_id) override;
  Status RemovePage(HWND parent, HWND window, std::uint32_t owner, const GUID* class_id) override;
  Status RemoveToolbar(BSTR identity, std::uint32_t owner, const GUID* class_id) override;
  Status AddMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner, const GUID* class_id,
                 const VARIANT* ids, const VARIANT* list2, const VARIANT* list3, BSTR text1, BSTR text2,
                 std::uint32_t flag) override;
  Status RemoveMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                    const GUID* class_id) override;
  Status AddCommandSink(std::uint32_t owner, const GUID* class_id, HWND window) override;
  Status AddCommandStrings(HMODULE module, std::uint32_t owner, const GUID* class_id) override;
  Status RemoveCommandStrings(HMODULE module, std::uint32_t owner, const GUID* class_id) override;
  Status RemoveCommandSink(std::uint32_t owner, const GUID* class_id, HWND window) override;
  Status AllocOwnerId(std::uint32_t* owner) override;
  Status FreeOwnerId(std::uint32_t* owner) override;
  // Gives a window that is on the screen.
  Status GetDockableWindow(BSTR identity, BSTR title, std::uint32_t number, std::uint32_t dock_position,
                           HWND* window, BSTR* text) override;
};

class FakeToolbarManager final : public Service<IQToolbarManager> {
 public:
  using Service::Service;
  // With the flags 10 gives a window that is hidden, with 1086 makes one; a text comes back as "text of
  // IDENTITY".
  Status FindDockableWindow(BSTR identity, BSTR title, IQUpdateWindowClient* client, std::uint32_t flags,
                            std::uint32_t dock_position, HWND* window, BSTR* text) override;
  Status AddPaneToolbar(HWND parent, HMODULE module, std::uint32_t toolbar_id, std::uint32_t second_id,
                        std::uint32_t owner, const GUID* class_id, const VARIANT* list1, const VARIANT* list2,
                        const VARIANT* list3, const VARIANT* list4, const VARIANT* list5) override;
  Status CustomizeToolbar(HWND window) override;
  Status IsToolbarShown(HWND window) override;
  Status ShowToolbar(HWND window, std::int32_t show) override;
  Status AddToolbar(BSTR identity, BSTR title, HMODULE module, std::uint32_t toolbar_id,
                    std::uint32_t second_id, std::uint32_t owner, const GUID* class_id,
                    const VARIANT* ids) override;
};

class FakePageHost final : public Service<IQPageHost> {
 public:
  using Service::Service;
  Status GetPageCount(HWND window, std::uint32_t* count) override;
};

}  // namespace fakes

}  // namespace pvw::test
