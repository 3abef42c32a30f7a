#include "component/services/ui_registrar.h"

#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/bstr.h"

namespace pvw {

using platform::E_FAIL;
using platform::GUID;
using platform::HMODULE;
using platform::HWND;
using platform::S_OK;
using platform::ScopedBstr;
using platform::Status;

namespace {

// Asks for a window by a call that takes `&bstr` or null for the text in and out.
template <typename Call>
Status AskForWindow(HWND* window, std::string* text, Call call) {
  *window = 0;
  platform::BSTR exchanged = text != nullptr ? platform::NewBstr(*text) : nullptr;
  const Status status = call(text != nullptr ? &exchanged : nullptr);
  if (platform::Failed(status)) {
    *window = 0;
  } else if (text != nullptr) {
    *text = platform::BstrText(exchanged);
  }
  platform::SysFreeString(exchanged);
  return status;
}

}  // namespace

CUiRegistrar::CUiRegistrar(IQComponentHost* host) {
  pageHost = GetService<IQPageHost>(host, IID_IQPageHost);
  hostUiExtra = GetService<IQUiExtra>(host, IID_IQUiExtra);
  toolbarManager = GetService<IQToolbarManager>(host, IID_IQToolbarManager);
  uiManager = GetService<IQUiManager>(host, IID_IQUiManager);
}

Status CUiRegistrar::AddPaneToolbar(HWND parent, HMODULE module, std::uint32_t toolbar_id,
                                    std::uint32_t second_id, std::uint32_t owner, const GUID& class_id,
                                    const std::array<std::span<const std::uint32_t>, 5>& lists) {
  if (toolbarManager == nullptr) return E_FAIL;
  const auto list = [&](std::size_t i) { return lists[i].empty() ? IdList() : IdList(lists[i]); };
  const IdList given[] = {list(0), list(1), list(2), list(3), list(4)};
  return toolbarManager->AddPaneToolbar(parent, module, toolbar_id, second_id, owner, &class_id,
                                        given[0].Get(), given[1].Get(), given[2].Get(), given[3].Get(),
                                        given[4].Get());
}

Status CUiRegistrar::CustomizeToolbar(HWND window) {
  return toolbarManager != nullptr ? toolbarManager->CustomizeToolbar(window) : E_FAIL;
}

bool CUiRegistrar::IsToolbarShown(HWND window) {
  return toolbarManager != nullptr && toolbarManager->IsToolbarShown(window) == S_OK;
}

Status CUiRegistrar::ShowToolbar(HWND window, bool show) {
  return toolbarManager != nullptr ? toolbarManager->ShowToolbar(window, show ? -1 : 0) : E_FAIL;
}

Status CUiRegistrar::AddMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                             const GUID& class_id) {
  if (uiManager == nullptr) return E_FAIL;
  const auto ids = MenuCommandIds(module, menu_id);
  if (!ids) return kNoResource;
  const IdList list(*ids);
  const IdList none{};
  const ScopedBstr no_text(u"");
  const Status status = uiManager->AddMenu(module, menu_id, owner, &class_id, list.Get(), none.Get(),
                                           none.Get(), no_text.Get(), no_text.Get(), 1);
  if (status == S_OK) menus.Add(owner, {module, menu_id, class_id});
  return status;
}

Status CUiRegistrar::AddPopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                  const GUID& class_id) {
  if (uiManager == nullptr) return E_FAIL;
  const auto ids = MenuCommandIds(module, menu_id);
  if (!ids) return kNoResource;
  const IdList list(*ids);
  const Status status = uiManager->AddPopupMenu(window, module, menu_id, owner, &class_id, list.Get());
  if (status == S_OK) popupMenus.Add(owner, {window, module, menu_id, class_id});
  return status;
}

Status CUiRegistrar::AddToolbar(std::string_view identity, std::string_view title, HMODULE module,
                                std::uint32_t toolbar_id, std::uint32_t second_id, std::uint32_t owner,
                                const GUID& class_id, std::span<const std::uint32_t> ids) {
  if (toolbarManager == nullptr) return E_FAIL;
  CommandIds of_resource;
  if (ids.empty()) {
    auto found = ToolbarCommandIds(module, toolbar_id, second_id);
    if (!found) return E_FAIL;
    of_resource = std::move(*found);
    ids = of_resource;
  }
  const IdList list(ids);
  const ScopedBstr identity_text(identity);
  const ScopedBstr title_text(title);
  const Status status = toolbarManager->AddToolbar(identity_text.Get(), title_text.Get(), module, toolbar_id,
                                                   second_id, owner, &class_id, list.Get());
  if (status == S_OK) toolbars.Add(owner, {std::string(identity), class_id});
  return status;
}

Status CUiRegistrar::AddAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                                     const GUID& class_id) {
  if (uiManager == nullptr) return E_FAIL;
  const auto ids = AcceleratorCommandIds(module, accelerator_id);
  if (!ids) return kNoResource;
  const IdList list(*ids);
  const IdList none{};
  const Status status = uiManager->AddAccelerators(module, accelerator_id, owner, &class_id, list.Get(),
                                                   none.Get(), none.Get());
  if (status == S_OK) accelerators.Add(owner, {module, accelerator_id, class_id});
  return status;
}

Status CUiRegistrar::AddCommandSink(std::uint32_t owner, const GUID& class_id, HWND window) {
  if (uiManager == nullptr) return E_FAIL;
  const Status status = uiManager->AddCommandSink(owner, &class_id, window);
  if (status == S_OK) commandSinks.Add(owner, {class_id, window});
  return status;
}

Status CUiRegistrar::AddCommandStrings(HMODULE module, std::uint32_t owner, const GUID& class_id) {
  if (uiManager == nullptr) return E_FAIL;
  const Status status = uiManager->AddCommandStrings(module, owner, &class_id);
  if (status == S_OK) commandStrings.Add(owner, {module, class_id});
  return status;
}

Status CUiRegistrar::AddPage(HWND parent, HWND window, std::int32_t position, std::string_view title,
                             std::uint32_t owner, const GUID& class_id) {
  if (uiManager == nullptr) return E_FAIL;
  const ScopedBstr title_text(title);
  const Status status =
      uiManager->AddPage(parent, window, position, title_text.Get(), 0, 0, owner, &class_id);
  if (status == S_OK) pages.Add(owner, {parent, window, class_id});
  return status;
}

Status CUiRegistrar::SetAcceleratorWindow(HWND window, std::uint32_t owner, const GUID& class_id) {
  return AddPage(0, window, 0, {}, owner, class_id);
}

void CUiRegistrar::ReleaseOwner(std::uint64_t owner) {
  // Each table gives its records away first: a removal may bring the host to end a window that releases
  // again.
  const auto id = static_cast<std::uint32_t>(owner);
  for (const Page& page : pages.Take(owner)) RemovePage(page, id);
  for (const PopupMenu& menu : popupMenus.Take(owner)) {
    uiManager->RemovePopupMenu(menu.window, menu.module, menu.menu_id, id, &menu.class_id);
  }
  for (const Menu& menu : menus.Take(owner)) {
    uiManager->RemoveMenu(menu.module, menu.menu_id, id, &menu.class_id);
  }
  for (const Accelerators& keys : accelerators.Take(owner)) {
    uiManager->RemoveAccelerators(keys.module, keys.accelerator_id, id, &keys.class_id);
  }
  for (const Toolbar& toolbar : toolbars.Take(owner)) {
    // The toolbar manager adds them, the manager of the rest removes them, and a host may lack that alone.
    if (uiManager == nullptr) break;
    const ScopedBstr identity(toolbar.identity);
    uiManager->RemoveToolbar(identity.Get(), id, &toolbar.class_id);
  }
  for (const CommandStrings& strings : commandStrings.Take(owner)) {
    uiManager->RemoveCommandStrings(strings.module, id, &strings.class_id);
  }
  for (const CommandSink& sink : commandSinks.Take(owner)) {
    uiManager->RemoveCommandSink(id, &sink.class_id, sink.window);
  }
}

void CUiRegistrar::RemovePage(const Page& page, std::uint32_t owner) {
  uiManager->RemovePage(page.parent, page.window, owner, &page.class_id);
  if (page.parent == 0 || pageHost == nullptr) return;
  // A host that can't count keeps the parent: it may hold pages still.
  std::uint32_t count = 1;
  if (!platform::Failed(pageHost->GetPageCount(page.parent, &count)) && count < 1) {
    uiManager->RemoveParentWindow(page.parent);
  }
}

Status CUiRegistrar::AllocOwnerId(std::uint32_t* id) {
  *id = 0;
  if (uiManager == nullptr) return E_FAIL;
  const Status status = uiManager->AllocOwnerId(id);
  if (platform::Failed(status)) *id = 0;
  return status;
}

Status CUiRegistrar::FreeOwnerId(std::uint32_t* id) {
  return uiManager != nullptr ? uiManager->FreeOwnerId(id) : E_FAIL;
}

Status CUiRegistrar::FindDockableWindow(std::string_view identity, std::string_view title,
                                        IQUpdateWindowClient* client, std::uint32_t flags,
                                        std::uint32_t dock_position, HWND* window, std::string* text) {
  *window = 0;
  if (toolbarManager == nullptr) return E_FAIL;
  const ScopedBstr identity_text(identity);
  const ScopedBstr title_text(title);
  return AskForWindow(window, text, [&](platform::BSTR* exchanged) {
    return toolbarManager->FindDockableWindow(identity_text.Get(), title_text.Get(), client, flags,
                                              dock_position, window, exchanged);
  });
}

Status CUiRegistrar::GetDockableWindow(std::string_view identity, std::string_view title,
                                       std::uint32_t dock_position, HWND* window, std::string* text) {
  *window = 0;
  if (uiManager == nullptr) return E_FAIL;
  const ScopedBstr identity_text(identity);
  const ScopedBstr title_text(title);
  return AskForWindow(window, text, [&](platform::BSTR* exchanged) {
    return uiManager->GetDockableWindow(identity_text.Get(), title_text.Get(), 0, dock_position, window,
                                        exchanged);
  });
}

Status CUiRegistrar::SetDockState(HWND window, std::uint32_t mode) {
  return uiManager != nullptr ? uiManager->SetDockState(window, mode) : E_FAIL;
}

Status CUiRegistrar::GetDockState(HWND window, std::uint32_t* state) {
  *state = 0;
  if (uiManager == nullptr) return E_FAIL;
  const Status status = uiManager->GetDockState(window, state);
  if (platform::Failed(status)) *state = 0;
  return status;
}

}  // namespace pvw
