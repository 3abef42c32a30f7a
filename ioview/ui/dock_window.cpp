#include "ioview/ui/dock_window.h"

#include <algorithm>
#include <utility>

#include "platform/gui/messages.h"

namespace ioview {

const platform::MessageTable DockWindow::kMessages = {
    &platform::CWnd::kMessages,
    {
        platform::OnMessage<&DockWindow::OnSize>(platform::WM_SIZE),
        platform::OnMessage<&DockWindow::OnContextMenu>(platform::WM_CONTEXTMENU),
    }};

DockWindow::DockWindow(std::string identity, std::string title)
    : identity_(std::move(identity)), title_(std::move(title)) {}

DockWindow::~DockWindow() {
  DestroyWindow();
}

void DockWindow::InsertPage(Page page, std::int32_t position) {
  page.number = 0;
  while (std::ranges::find(pages_, page.number, &Page::number) != pages_.end()) ++page.number;
  const auto count = static_cast<std::int32_t>(pages_.size());
  const std::int32_t place = position < 0 || position > count ? count : position;
  const bool before_active = !pages_.empty() && static_cast<std::size_t>(place) <= active_;
  pages_.insert(pages_.begin() + place, std::move(page));
  if (before_active) ++active_;
  LayOut();
}

bool DockWindow::RemovePage(platform::HWND window) {
  const auto found = std::ranges::find(pages_, window, &Page::window);
  if (found == pages_.end()) return false;
  const auto place = static_cast<std::size_t>(found - pages_.begin());
  pages_.erase(found);
  if (active_ >= place && active_ > 0) --active_;
  LayOut();
  return true;
}

void DockWindow::ActivatePage(std::size_t index) {
  if (index >= pages_.size() || index == active_) return;
  active_ = index;
  LayOut();
}

platform::LRESULT DockWindow::OnSize(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  LayOut();
  return result;
}

// A page that has no menu of its own passes the message on, with the point in this window.
platform::LRESULT DockWindow::OnContextMenu(const platform::MSG& msg) {
  const platform::CWnd* const page =
      active_ < pages_.size() ? platform::CWnd::FromHandle(pages_[active_].window) : nullptr;
  if (page == nullptr || !on_context_menu) return 0;
  const platform::POINT at = platform::ParamPoint(msg.lParam);
  const auto show = on_context_menu;  // the menu's command may take this window away
  show(page->GetHandle(), {at.x - page->GetRect().left, at.y - page->GetRect().top});
  return 0;
}

// By handle: a page that is moved or hidden may do anything, destroy itself or another one included.
void DockWindow::LayOut() {
  const std::vector<Page> pages = pages_;
  const platform::HWND active = active_ < pages.size() ? pages[active_].window : 0;
  const platform::RECT area = GetClientRect();
  if (platform::CWnd* page = platform::CWnd::FromHandle(active)) page->MoveWindow(area);
  if (platform::CWnd* page = platform::CWnd::FromHandle(active)) page->ShowWindow(true);
  for (const Page& other : pages) {
    if (other.window == active) continue;
    if (platform::CWnd* page = platform::CWnd::FromHandle(other.window)) page->ShowWindow(false);
  }
}

}  // namespace ioview
