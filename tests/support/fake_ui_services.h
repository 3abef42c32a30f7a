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
#include "tests/support/fake_host.h"

namespace pvw::test {

// A window of the host's that the user docks, floats, hides and closes. One that is new is hidden and docked.
struct FakeDockWindow {
  std::string identity, title;
  std::unique_ptr<platform::CWnd> window = std::make_unique<platform::CWnd>();
  bool shown = false;
  std::uint32_t state = 8;  // what GetDockState gives; a change of its docking turns the bit 8
  bool toolbar_shown = true;
};

class FakeUi {
 public:
  // Something registered and not taken back.
  struct Registration {
    std::string kind;  // "menu", "popup", "toolbar", "keys", "sink", "strings", "page"
    std::string what;  // all else that its removal must repeat, as text: "201"
    std::uint32_t owner = 0;
    platform::GUID class_id = {};
    platform::HMODULE module = nullptr;
    platform::HWND window = 0;  // of a sink, a page
    platform::HWND parent = 0;  // of a page
    std::vector<std::uint32_t> commands = {};
  };

  explicit FakeUi(FakeHost& host) : host_(host) {}
  ~FakeUi();

  // Each registration in its order, with its owner: "menu 201 owner 1".
  std::vector<std::string> Live() const;
  // Owner ids handed out, from 1, and not given back.
  const std::set<std::uint32_t>& Owners() const { return owners_; }

  // Null when there is none.
  FakeDockWindow* Dock(std::string_view identity);
  FakeDockWindow* Dock(platform::HWND window);
  bool DestroyDock(platform::HWND window);
  // The windows of its pages.
  std::vector<platform::HWND> Pages(platform::HWND parent) const;
  // Where the host sends the command: the sink of the owner and class that have it in a list; 0 for none.
  platform::HWND SinkOf(std::uint32_t command) const;

  void NameWindow(platform::HWND window, std::string name) { names_[window] = std::move(name); }
  std::string Name(platform::HWND window);

  // For the services. The line of an addition reads "OPERATION WHAT DETAILS owner 1 PvwIO LISTS".
  platform::Status Add(std::string_view operation, const Registration& entry, const std::string& details = {},
                       const std::string& lists = {});
  platform::Status Remove(std::string_view operation, const Registration& entry);
  std::uint32_t NewOwner() { return *owners_.insert(++last_owner_).first; }
  bool FreeOwner(std::uint32_t owner) { return owners_.erase(owner) != 0; }
  FakeDockWindow& MakeDock(std::string identity, std::string title);

 private:
  FakeHost& host_;
  std::vector<Registration> registered_;
  std::set<std::uint32_t> owners_;
  std::uint32_t last_owner_ = 0;
  std::vector<std::unique_ptr<FakeDockWindow>> docks_;
  int docks_made_ = 0;
  int windows_seen_ = 0;
  std::map<platform::HWND, std::string> names_;
};

}  // namespace pvw::test
