// A window of the host that a component's pages live in: the user docks, floats, hides and closes it.
//
// It is a window without a parent: a display with a screen puts it where the host's own widgets say. It shows
// one of its pages at a time, as large as itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "host/component_clients.h"
#include "platform/base/guid.h"
#include "platform/base/module.h"
#include "platform/gui/window.h"

namespace ioview {

class DockWindow final : public platform::CWnd {
 public:
  struct Page {
    platform::HWND window = 0;
    std::string title;
    std::uint32_t owner = 0;
    platform::GUID class_id = {};
    std::size_t number = 0;  // given by InsertPage: the smallest that no other page has
  };
  // What GetDockState answers with.
  static constexpr std::uint32_t kDocked = 8;
  static constexpr std::uint32_t kFloating = 0;

  DockWindow(std::string identity, std::string title);
  ~DockWindow() override;

  static const platform::MessageTable kMessages;

  const std::string& Identity() const { return identity_; }
  const std::string& Title() const { return title_; }

  const std::vector<Page>& Pages() const { return pages_; }
  // `position` -1, or one past the last, appends. The first page becomes the active one.
  void InsertPage(Page page, std::int32_t position);
  // False when there is no such page. The page before it, or the first, becomes active when it was.
  bool RemovePage(platform::HWND window);
  std::size_t ActivePage() const { return active_; }
  // Shows the page and hides the others. Nothing for an index that there is not.
  void ActivatePage(std::size_t index);

  bool is_shown = false;  // shown or hidden by the host or the user
  std::uint32_t dock_state = kDocked;
  bool is_toolbar_shown = true;
  // The toolbar in it, if there is one: 0, or the resource of `toolbar_module`.
  std::uint32_t toolbar_id = 0;
  platform::HMODULE toolbar_module = nullptr;
  std::vector<std::uint32_t> toolbar_commands;  // the buttons that a customiser has left, all at first
  pvw::IQUpdateWindowClient* client = nullptr;  // as the component gave it; not owned
  // Told that the user wants the context menu of a page, at a point of the page's client area.
  std::function<void(platform::HWND page, platform::POINT at)> on_context_menu;

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

 private:
  platform::LRESULT OnSize(const platform::MSG& msg);
  platform::LRESULT OnContextMenu(const platform::MSG& msg);
  void LayOut();

  std::string identity_;
  std::string title_;
  std::vector<Page> pages_;
  std::size_t active_ = 0;
};

}  // namespace ioview
