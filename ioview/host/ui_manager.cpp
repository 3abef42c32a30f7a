#include "ioview/host/ui_manager.h"

#include <algorithm>
#include <utility>

#include "ioview/host/command_list.h"

namespace ioview {

namespace {

using platform::GUID;
using platform::HMODULE;
using platform::HWND;
using platform::Status;
using platform::VARIANT;

Registration OfModule(RegistrationKind kind, HMODULE module, std::uint32_t resource, std::uint32_t owner,
                      const GUID* class_id) {
  return {kind, {owner, *class_id}, module, resource};
}

Registration OfWindow(RegistrationKind kind, std::uint32_t owner, const GUID* class_id, HWND window) {
  return {kind, {owner, *class_id}, nullptr, 0, window};
}

Registration PopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                       const GUID* class_id) {
  return {RegistrationKind::kPopupMenu, {owner, *class_id}, module, menu_id, window};
}

Status Done(bool done) {
  return done ? platform::S_OK : platform::E_FAIL;
}

}  // namespace

Status UiManager::Add(Registration registration, const VARIANT* ids) {
  registration.commands = CommandsOf(ids);
  ui_.Add(std::move(registration));
  return platform::S_OK;
}

Status UiManager::Remove(const Registration& registration) {
  return Done(ui_.Remove(registration));
}

Status UiManager::AddAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                                  const GUID* class_id, const VARIANT* ids, const VARIANT* list2,
                                  const VARIANT* list3) {
  if (!Enter("AddAccelerators", module, accelerator_id, owner, class_id, ids, list2, list3)) {
    return platform::E_FAIL;
  }
  return Add(OfModule(RegistrationKind::kAccelerators, module, accelerator_id, owner, class_id), ids);
}

Status UiManager::RemoveAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                                     const GUID* class_id) {
  if (!Enter("RemoveAccelerators", module, accelerator_id, owner, class_id)) return platform::E_FAIL;
  return Remove(OfModule(RegistrationKind::kAccelerators, module, accelerator_id, owner, class_id));
}

Status UiManager::AddPopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                               const GUID* class_id, const VARIANT* ids) {
  if (!Enter("AddPopupMenu", window, module, menu_id, owner, class_id, ids)) return platform::E_FAIL;
  return Add(PopupMenu(window, module, menu_id, owner, class_id), ids);
}

Status UiManager::RemovePopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                  const GUID* class_id) {
  if (!Enter("RemovePopupMenu", window, module, menu_id, owner, class_id)) return platform::E_FAIL;
  return Remove(PopupMenu(window, module, menu_id, owner, class_id));
}

Status UiManager::SetDockState(HWND window, std::uint32_t mode) {
  if (!Enter("SetDockState", window, mode)) return platform::E_FAIL;
  DockWindow* dock = ui_.FindDock(window);
  if (dock == nullptr) return platform::E_FAIL;
  ui_.SetDockState(*dock, mode);
  return platform::S_OK;
}

Status UiManager::GetDockState(HWND window, std::uint32_t* state) {
  if (!Enter("GetDockState", window)) return platform::E_FAIL;
  const DockWindow* dock = ui_.FindDock(window);
  if (dock == nullptr) return platform::E_FAIL;
  *state = dock->dock_state;
  return platform::S_OK;
}

Status UiManager::RemoveParentWindow(HWND parent) {
  if (!Enter("RemoveParentWindow", parent)) return platform::E_FAIL;
  return Done(ui_.DestroyDock(parent));
}

Status UiManager::AddPage(HWND parent, HWND window, std::int32_t position, platform::BSTR title,
                          std::uint32_t number1, std::uint32_t number2, std::uint32_t owner,
                          const GUID* class_id) {
  if (!Enter("AddPage", parent, window, position, title, number1, number2, owner, class_id)) {
    return platform::E_FAIL;
  }
  if (parent == 0) return Add(OfWindow(RegistrationKind::kKeyWindow, owner, class_id, window));
  DockWindow* dock = ui_.FindDock(parent);
  if (dock == nullptr) return platform::E_FAIL;
  ui_.InsertPage(*dock, {window, platform::BstrText(title), owner, *class_id}, position);
  return platform::S_OK;
}

Status UiManager::RemovePage(HWND parent, HWND window, std::uint32_t owner, const GUID* class_id) {
  if (!Enter("RemovePage", parent, window, owner, class_id)) return platform::E_FAIL;
  if (parent == 0) return Remove(OfWindow(RegistrationKind::kKeyWindow, owner, class_id, window));
  DockWindow* dock = ui_.FindDock(parent);
  return Done(dock != nullptr && ui_.RemovePage(*dock, window));
}

Status UiManager::RemoveToolbar(platform::BSTR identity, std::uint32_t owner, const GUID* class_id) {
  if (!Enter("RemoveToolbar", identity, owner, class_id)) return platform::E_FAIL;
  // A toolbar is taken back by less than it was added with.
  const Registrant by{owner, *class_id};
  const std::string name = platform::BstrText(identity);
  const auto found = std::ranges::find_if(ui_.Registrations(), [&](const Registration& entry) {
    return entry.kind == RegistrationKind::kToolbar && entry.by == by && entry.identity == name;
  });
  if (found == ui_.Registrations().end()) return platform::E_FAIL;
  return Remove(Registration(*found));
}

Status UiManager::AddMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner, const GUID* class_id,
                          const VARIANT* ids, const VARIANT* list2, const VARIANT* list3,
                          platform::BSTR text1, platform::BSTR text2, std::uint32_t flag) {
  if (!Enter("AddMenu", module, menu_id, owner, class_id, ids, list2, list3, text1, text2, flag)) {
    return platform::E_FAIL;
  }
  return Add(OfModule(RegistrationKind::kMenu, module, menu_id, owner, class_id), ids);
}

Status UiManager::RemoveMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                             const GUID* class_id) {
  if (!Enter("RemoveMenu", module, menu_id, owner, class_id)) return platform::E_FAIL;
  return Remove(OfModule(RegistrationKind::kMenu, module, menu_id, owner, class_id));
}

Status UiManager::AddCommandSink(std::uint32_t owner, const GUID* class_id, HWND window) {
  if (!Enter("AddCommandSink", owner, class_id, window)) return platform::E_FAIL;
  return Add(OfWindow(RegistrationKind::kSink, owner, class_id, window));
}

Status UiManager::AddCommandStrings(HMODULE module, std::uint32_t owner, const GUID* class_id) {
  if (!Enter("AddCommandStrings", module, owner, class_id)) return platform::E_FAIL;
  return Add(OfModule(RegistrationKind::kStrings, module, 0, owner, class_id));
}

Status UiManager::RemoveCommandStrings(HMODULE module, std::uint32_t owner, const GUID* class_id) {
  if (!Enter("RemoveCommandStrings", module, owner, class_id)) return platform::E_FAIL;
  return Remove(OfModule(RegistrationKind::kStrings, module, 0, owner, class_id));
}

Status UiManager::RemoveCommandSink(std::uint32_t owner, const GUID* class_id, HWND window) {
  if (!Enter("RemoveCommandSink", owner, class_id, window)) return platform::E_FAIL;
  return Remove(OfWindow(RegistrationKind::kSink, owner, class_id, window));
}

Status UiManager::AllocOwnerId(std::uint32_t* owner) {
  if (!Enter("AllocOwnerId")) return platform::E_FAIL;
  *owner = ui_.NewOwner();
  return platform::S_OK;
}

Status UiManager::FreeOwnerId(std::uint32_t* owner) {
  if (!Enter("FreeOwnerId", owner)) return platform::E_FAIL;
  return Done(ui_.FreeOwner(*owner));
}

Status UiManager::GetDockableWindow(platform::BSTR identity, platform::BSTR title, std::uint32_t number,
                                    std::uint32_t dock_position, HWND* window, platform::BSTR* /*text*/) {
  if (!Enter("GetDockableWindow", identity, title, number, dock_position)) return platform::E_FAIL;
  const DockWindow* dock = ui_.FindDock(platform::BstrText(identity));
  if (dock == nullptr || !dock->is_shown) return platform::E_FAIL;
  *window = dock->GetHandle();
  return platform::S_OK;
}

}  // namespace ioview
