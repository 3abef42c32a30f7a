#include "ioview/ui/host_ui.h"

#include <algorithm>
#include <utility>

#include "platform/base/app.h"
#include "platform/gui/accelerators.h"
#include "platform/gui/menu.h"
#include "platform/gui/messages.h"

namespace ioview {

namespace {

using platform::CWnd;
using platform::HWND;

constexpr platform::RECT kNewDock = {0, 0, 640, 400};

bool HasCommand(const Registration& entry, std::uint32_t command) {
  return std::ranges::find(entry.commands, command) != entry.commands.end();
}

bool IsSame(const Registration& a, const Registration& b) {
  return a.kind == b.kind && a.by == b.by && a.module == b.module && a.resource == b.resource &&
         a.window == b.window && a.identity == b.identity;
}

bool LiesIn(HWND window, HWND outer) {
  for (const CWnd* at = CWnd::FromHandle(window); at != nullptr; at = at->GetParent()) {
    if (at->GetHandle() == outer) return true;
  }
  return false;
}

}  // namespace

HostUi::~HostUi() {
  while (!docks_.empty()) DestroyDock(docks_.back()->GetHandle());
}

void HostUi::Add(Registration registration) {
  registered_.push_back(std::move(registration));
  if (observer_ != nullptr) observer_->MenusChanged();
}

bool HostUi::Remove(const Registration& registration) {
  const auto found = std::ranges::find_if(
      registered_, [&](const Registration& entry) { return IsSame(entry, registration); });
  if (found == registered_.end()) return false;
  registered_.erase(found);
  if (observer_ != nullptr) observer_->MenusChanged();
  return true;
}

std::uint32_t HostUi::NewOwner() {
  owners_.insert(++last_owner_);
  return last_owner_;
}

HWND HostUi::SinkOf(std::uint32_t command) const {
  for (const Registration& list : registered_) {
    if (!HasCommand(list, command)) continue;
    for (const Registration& sink : registered_) {
      if (sink.kind == RegistrationKind::kSink && sink.by == list.by) return sink.window;
    }
  }
  return 0;
}

std::optional<HostUi::KeyCommand> HostUi::CommandOfKey(HWND focus, const platform::MSG& key) const {
  const auto command_in = [&](const Registrant& by) -> std::optional<std::uint32_t> {
    for (const Registration& table : registered_) {
      if (table.kind != RegistrationKind::kAccelerators || !(table.by == by)) continue;
      const auto keys = platform::LoadAccelerators(table.module, table.resource);
      if (!keys) continue;
      const std::optional<platform::UINT> command = platform::TranslateAccelerator(*keys, key);
      if (command && HasCommand(table, *command)) return *command;
    }
    return std::nullopt;
  };
  for (const Registration& target : registered_) {
    if (target.kind != RegistrationKind::kKeyWindow || !LiesIn(focus, target.window)) continue;
    if (const auto command = command_in(target.by)) return KeyCommand{*command, target.window};
  }
  for (const Registration& sink : registered_) {
    if (sink.kind != RegistrationKind::kSink) continue;
    if (const auto command = command_in(sink.by)) return KeyCommand{*command, sink.window};
  }
  return std::nullopt;
}

const Registration* HostUi::PopupMenuOf(HWND window) const {
  const auto found = std::ranges::find_if(registered_, [&](const Registration& entry) {
    return entry.kind == RegistrationKind::kPopupMenu && entry.window == window;
  });
  return found != registered_.end() ? &*found : nullptr;
}

void HostUi::ShowPopupMenu(HWND window, platform::POINT at) const {
  CWnd* const owner = CWnd::FromHandle(window);
  const Registration* const registration = PopupMenuOf(window);
  if (owner == nullptr || registration == nullptr) return;
  std::vector<platform::PopupMenuItem> items;
  {
    const platform::ScopedResourceModule scope(registration->module);
    const platform::MenuResource* const menu = platform::LoadMenu(registration->resource);
    if (menu == nullptr) return;
    items = platform::MenuItems(menu->items);
  }
  platform::UpdateMenu(items, *owner);
  platform::TrackPopupMenu(*owner, items, at);
}

HostUi::CommandTexts HostUi::TextsOf(std::uint32_t command) const {
  for (const Registration& strings : registered_) {
    if (strings.kind != RegistrationKind::kStrings) continue;
    const platform::ScopedResourceModule scope(strings.module);
    const std::string text = platform::LoadString(command);
    if (text.empty()) continue;
    const std::size_t line_feed = text.find('\n');
    if (line_feed == std::string::npos) return {text, {}};
    return {text.substr(0, line_feed), text.substr(line_feed + 1)};
  }
  return {};
}

DockWindow* HostUi::FindDock(std::string_view identity) const {
  const auto found = std::ranges::find_if(
      docks_, [&](const std::unique_ptr<DockWindow>& dock) { return dock->Identity() == identity; });
  return found != docks_.end() ? found->get() : nullptr;
}

DockWindow* HostUi::FindDock(HWND window) const {
  const auto found = std::ranges::find_if(
      docks_, [&](const std::unique_ptr<DockWindow>& dock) { return dock->GetHandle() == window; });
  return window != 0 && found != docks_.end() ? found->get() : nullptr;
}

DockWindow& HostUi::MakeDock(std::string identity, std::string title) {
  DockWindow& dock =
      *docks_.emplace_back(std::make_unique<DockWindow>(std::move(identity), std::move(title)));
  platform::CreateParams params;
  params.style = 0;
  params.rect = kNewDock;
  params.text = dock.Title();
  params.owner = platform::GetMainWindow();
  dock.on_context_menu = [this](HWND page, platform::POINT at) { ShowPopupMenu(page, at); };
  dock.Create(params);
  if (observer_ != nullptr) observer_->DockMade(dock);
  return dock;
}

bool HostUi::DestroyDock(HWND window) {
  const auto found = std::ranges::find_if(
      docks_, [&](const std::unique_ptr<DockWindow>& dock) { return dock->GetHandle() == window; });
  if (found == docks_.end()) return false;
  // Out of the list before its pages hear of their end.
  const std::unique_ptr<DockWindow> gone = std::move(*found);
  docks_.erase(found);
  if (observer_ != nullptr) observer_->DockGone(*gone);
  gone->DestroyWindow();
  return true;
}

void HostUi::SetDockState(DockWindow& dock, std::uint32_t mode) {
  const HWND window = dock.GetHandle();
  if (mode == 1 || mode == 2) {
    dock.is_shown = mode == 2;
    dock.ShowWindow(dock.is_shown);
  } else if (mode == 32) {
    dock.dock_state ^= DockWindow::kDocked;
  } else {
    return;
  }
  if (observer_ != nullptr && FindDock(window) != nullptr) observer_->DockChanged(dock);
}

void HostUi::InsertPage(DockWindow& dock, DockWindow::Page page, std::int32_t position) {
  dock.InsertPage(std::move(page), position);
  if (observer_ != nullptr) observer_->DockChanged(dock);
}

bool HostUi::RemovePage(DockWindow& dock, HWND window) {
  if (!dock.RemovePage(window)) return false;
  if (observer_ != nullptr) observer_->DockChanged(dock);
  return true;
}

void HostUi::ActivatePage(DockWindow& dock, std::size_t index) {
  const HWND window = dock.GetHandle();
  dock.ActivatePage(index);
  if (observer_ != nullptr && FindDock(window) != nullptr) observer_->DockChanged(dock);
}

void HostUi::SetPaneToolbar(DockWindow& dock, platform::HMODULE module, std::uint32_t toolbar_id) {
  dock.toolbar_module = module;
  dock.toolbar_id = toolbar_id;
  if (observer_ != nullptr) observer_->DockChanged(dock);
}

void HostUi::ShowToolbar(DockWindow& dock, bool show) {
  dock.is_toolbar_shown = show;
  if (observer_ != nullptr) observer_->DockChanged(dock);
}

void HostUi::CustomizeToolbar(DockWindow& dock) {
  if (observer_ != nullptr) observer_->CustomizeToolbar(dock);
}

}  // namespace ioview
