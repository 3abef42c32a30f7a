#include "ioview/host/toolbar_manager.h"

#include <utility>

#include "ioview/host/command_list.h"

namespace ioview {

namespace {

constexpr std::uint32_t kFindHidden = 0x10;

}  // namespace

platform::Status ToolbarManager::FindDockableWindow(platform::BSTR identity, platform::BSTR title,
                                                    pvw::IQUpdateWindowClient* client, std::uint32_t flags,
                                                    std::uint32_t dock_position, platform::HWND* window,
                                                    platform::BSTR* /*text*/) {
  if (!Enter("FindDockableWindow", identity, title, client, flags, dock_position)) return platform::E_FAIL;
  DockWindow* dock = ui_.FindDock(platform::BstrText(identity));
  if (flags == kFindHidden) {
    if (dock == nullptr || dock->is_shown) return platform::E_FAIL;
  } else if (dock == nullptr) {
    dock = &ui_.MakeDock(platform::BstrText(identity), platform::BstrText(title));
  }
  dock->client = client;
  *window = dock->GetHandle();
  return platform::S_OK;
}

platform::Status ToolbarManager::AddPaneToolbar(
    platform::HWND parent, platform::HMODULE module, std::uint32_t toolbar_id, std::uint32_t second_id,
    std::uint32_t owner, const platform::GUID* class_id, const platform::VARIANT* list1,
    const platform::VARIANT* list2, const platform::VARIANT* list3, const platform::VARIANT* list4,
    const platform::VARIANT* list5) {
  if (!Enter("AddPaneToolbar", parent, module, toolbar_id, second_id, owner, class_id, list1, list2, list3,
             list4, list5)) {
    return platform::E_FAIL;
  }
  DockWindow* dock = ui_.FindDock(parent);
  if (dock == nullptr) return platform::E_FAIL;
  ui_.SetPaneToolbar(*dock, module, toolbar_id != 0 ? toolbar_id : second_id);
  return platform::S_OK;
}

platform::Status ToolbarManager::CustomizeToolbar(platform::HWND window) {
  if (!Enter("CustomizeToolbar", window)) return platform::E_FAIL;
  DockWindow* dock = ui_.FindDock(window);
  if (dock == nullptr) return platform::E_FAIL;
  ui_.CustomizeToolbar(*dock);
  return platform::S_OK;
}

platform::Status ToolbarManager::IsToolbarShown(platform::HWND window) {
  if (!Enter("IsToolbarShown", window)) return platform::E_FAIL;
  const DockWindow* dock = ui_.FindDock(window);
  return dock != nullptr && dock->is_toolbar_shown ? platform::S_OK : 1;
}

platform::Status ToolbarManager::ShowToolbar(platform::HWND window, std::int32_t show) {
  if (!Enter("ShowToolbar", window, show)) return platform::E_FAIL;
  DockWindow* dock = ui_.FindDock(window);
  if (dock == nullptr) return platform::E_FAIL;
  ui_.ShowToolbar(*dock, show != 0);
  return platform::S_OK;
}

platform::Status ToolbarManager::AddToolbar(platform::BSTR identity, platform::BSTR title,
                                            platform::HMODULE module, std::uint32_t toolbar_id,
                                            std::uint32_t second_id, std::uint32_t owner,
                                            const platform::GUID* class_id, const platform::VARIANT* ids) {
  if (!Enter("AddToolbar", identity, title, module, toolbar_id, second_id, owner, class_id, ids)) {
    return platform::E_FAIL;
  }
  Registration toolbar{RegistrationKind::kToolbar, {owner, *class_id}, module};
  toolbar.resource = toolbar_id != 0 ? toolbar_id : second_id;
  toolbar.identity = platform::BstrText(identity);
  toolbar.title = platform::BstrText(title);
  toolbar.commands = CommandsOf(ids);
  ui_.Add(std::move(toolbar));
  return platform::S_OK;
}

}  // namespace ioview
