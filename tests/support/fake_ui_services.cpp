#include "tests/support/fake_ui_services.h"

#include <algorithm>
#include <utility>

#include "platform/base/app.h"

namespace pvw::test {

using platform::GUID;
using platform::HMODULE;
using platform::HWND;
using platform::Status;
using platform::VARIANT;

namespace {

std::string ClassText(const GUID& id) {
  if (id == CLSID_PvwIO) return "PvwIO";
  if (id == CLSID_PaneAccelerators) return "PaneAccelerators";
  return platform::GuidText(id);
}

std::string OwnerText(std::uint32_t owner, const GUID& class_id) {
  return "owner " + std::to_string(owner) + " " + ClassText(class_id);
}

std::string Quoted(platform::BSTR text) {
  std::string quoted = "\"";
  quoted += platform::BstrText(text);
  return quoted += '"';
}

std::vector<std::uint32_t> Commands(const VARIANT* list) {
  std::vector<std::uint32_t> commands;
  for (std::size_t i = 0; i < platform::SafeArrayGetCount(list->parray); ++i) {
    commands.push_back(platform::SafeArrayVariantAt(list->parray, i)->uintVal);
  }
  return commands;
}

// "?" for anything but the two forms that a host takes.
std::string ListText(const VARIANT* list) {
  if (list == nullptr) return "null";
  if (list->vt == platform::VT_EMPTY) return "-";
  if (list->vt != (platform::VT_ARRAY | platform::VT_UINT)) return "?";
  std::string text = "[";
  for (std::size_t i = 0; i < platform::SafeArrayGetCount(list->parray); ++i) {
    const VARIANT* element = platform::SafeArrayVariantAt(list->parray, i);
    if (element == nullptr || element->vt != platform::VT_UINT) return "?";
    text += (i == 0 ? "" : " ") + std::to_string(element->uintVal);
  }
  return text + "]";
}

}  // namespace

FakeUi::~FakeUi() {
  for (const auto& dock : docks_) dock->window->DestroyWindow();
}

std::vector<std::string> FakeUi::Live() const {
  std::vector<std::string> live;
  for (const FakeRegistration& entry : registered_) {
    live.push_back(entry.what + " owner " + std::to_string(entry.owner));
  }
  return live;
}

FakeDockWindow* FakeUi::Dock(std::string_view identity) {
  const auto found =
      std::ranges::find_if(docks_, [&](const auto& dock) { return dock->identity == identity; });
  return found != docks_.end() ? found->get() : nullptr;
}

FakeDockWindow* FakeUi::Dock(HWND window) {
  const auto found =
      std::ranges::find_if(docks_, [&](const auto& dock) { return dock->window->GetHandle() == window; });
  return window != 0 && found != docks_.end() ? found->get() : nullptr;
}

std::vector<FakeRegistration> FakeUi::Pages(HWND parent) const {
  std::vector<FakeRegistration> pages;
  std::ranges::copy_if(registered_, std::back_inserter(pages), [&](const FakeRegistration& entry) {
    return entry.kind == "page" && entry.parent == parent;
  });
  return pages;
}

HWND FakeUi::SinkOf(std::uint32_t command) const {
  for (const FakeRegistration& list : registered_) {
    if (std::ranges::find(list.commands, command) == list.commands.end()) continue;
    for (const FakeRegistration& sink : registered_) {
      if (sink.kind == "sink" && sink.owner == list.owner && sink.class_id == list.class_id)
        return sink.window;
    }
  }
  return 0;
}

std::string FakeUi::Name(HWND window) {
  if (window == 0) return "none";
  auto [found, is_new] = names_.try_emplace(window);
  if (is_new) found->second = "window" + std::to_string(++windows_seen_);
  return found->second;
}

Status FakeUi::Add(FakeRegistration registration, std::string_view operation, const std::string& line) {
  const Status status = host_.Begin(operation, line);
  if (status == platform::S_OK) registered_.push_back(std::move(registration));
  return status;
}

Status FakeUi::Remove(const FakeRegistration& registration, std::string_view operation) {
  const auto found = std::ranges::find_if(registered_, [&](const FakeRegistration& entry) {
    return entry.what == registration.what && entry.owner == registration.owner &&
           entry.class_id == registration.class_id && entry.module == registration.module;
  });
  const std::string what = registration.what.substr(registration.what.find(' ') + 1);
  const std::string unknown = found == registered_.end() ? " (unknown)" : "";
  const Status status =
      host_.Begin(operation, what + " " + OwnerText(registration.owner, registration.class_id) + unknown);
  if (found == registered_.end()) return platform::E_FAIL;
  if (status == platform::S_OK) registered_.erase(found);
  return status;
}

std::uint32_t FakeUi::NewOwner() {
  owners_.insert(++last_owner_);
  return last_owner_;
}

FakeDockWindow& FakeUi::MakeDock(std::string identity, std::string title) {
  auto dock = std::make_unique<FakeDockWindow>();
  dock->identity = std::move(identity);
  dock->title = std::move(title);
  dock->window = std::make_unique<platform::CWnd>();
  platform::CreateParams params;
  params.style = platform::WS_CHILD;
  params.rect = {0, 0, 600, 400};
  params.parent = platform::GetMainWindow();
  dock->window->Create(params);
  NameWindow(dock->window->GetHandle(), "dock" + std::to_string(++docks_made_));
  return *docks_.emplace_back(std::move(dock));
}

bool FakeUi::DestroyDock(HWND window) {
  FakeDockWindow* dock = Dock(window);
  if (dock == nullptr) return false;
  // Out of the list before its children hear of their end.
  const auto found = std::ranges::find_if(docks_, [&](const auto& entry) { return entry.get() == dock; });
  const std::unique_ptr<FakeDockWindow> gone = std::move(*found);
  docks_.erase(found);
  gone->window->DestroyWindow();
  return true;
}

namespace fakes {

namespace {

FakeRegistration Menu(HMODULE module, std::uint32_t id, std::uint32_t owner, const GUID* class_id) {
  return {"menu", Number("menu ", id), owner, *class_id, module};
}
FakeRegistration Keys(HMODULE module, std::uint32_t id, std::uint32_t owner, const GUID* class_id) {
  return {"keys", Number("keys ", id), owner, *class_id, module};
}
FakeRegistration Popup(FakeHost& host, HWND window, HMODULE module, std::uint32_t id, std::uint32_t owner,
                       const GUID* class_id) {
  return {"popup", "popup " + host.Ui().Name(window) + Number(" ", id), owner, *class_id, module, window};
}
FakeRegistration Page(FakeHost& host, HWND parent, HWND window, std::uint32_t owner, const GUID* class_id) {
  return {"page",  "page " + host.Ui().Name(parent) + " " + host.Ui().Name(window),
          owner,   *class_id,
          nullptr, window,
          parent};
}
FakeRegistration Toolbar(BSTR identity, std::uint32_t owner, const GUID* class_id) {
  return {"toolbar", "toolbar " + BstrText(identity), owner, *class_id};
}
FakeRegistration Sink(FakeHost& host, std::uint32_t owner, const GUID* class_id, HWND window) {
  return {"sink", "sink " + host.Ui().Name(window), owner, *class_id, nullptr, window};
}
FakeRegistration Strings(HMODULE module, std::uint32_t owner, const GUID* class_id) {
  return {"strings", "strings of the module", owner, *class_id, module};
}

FakeRegistration With(FakeRegistration registration, const VARIANT* ids) {
  registration.commands = Commands(ids);
  return registration;
}

// The host answers with a text of its own in place of what came in.
void AnswerText(BSTR identity, BSTR* text) {
  if (text == nullptr) return;
  platform::SysFreeString(std::exchange(*text, platform::NewBstr("text of " + BstrText(identity))));
}

std::string TextIn(const BSTR* text) {
  return text != nullptr ? " text " + Quoted(*text) : "";
}

}  // namespace

Status FakeUiManager::AddAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                                      const GUID* class_id, const VARIANT* ids, const VARIANT* list2,
                                      const VARIANT* list3) {
  return host_.Ui().Add(With(Keys(module, accelerator_id, owner, class_id), ids), "AddAccelerators",
                        std::to_string(accelerator_id) + " " + OwnerText(owner, *class_id) + " " +
                            ListText(ids) + " " + ListText(list2) + " " + ListText(list3));
}
Status FakeUiManager::RemoveAccelerators(HMODULE module, std::uint32_t accelerator_id, std::uint32_t owner,
                                         const GUID* class_id) {
  return host_.Ui().Remove(Keys(module, accelerator_id, owner, class_id), "RemoveAccelerators");
}

Status FakeUiManager::AddPopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                   const GUID* class_id, const VARIANT* ids) {
  return host_.Ui().Add(With(Popup(host_, window, module, menu_id, owner, class_id), ids), "AddPopupMenu",
                        host_.Ui().Name(window) + Number(" ", menu_id) + " " + OwnerText(owner, *class_id) +
                            " " + ListText(ids));
}
Status FakeUiManager::RemovePopupMenu(HWND window, HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                      const GUID* class_id) {
  return host_.Ui().Remove(Popup(host_, window, module, menu_id, owner, class_id), "RemovePopupMenu");
}

Status FakeUiManager::SetDockState(HWND window, std::uint32_t mode) {
  const Status status = host_.Begin("SetDockState", host_.Ui().Name(window) + Number(" ", mode));
  if (status != platform::S_OK) return status;
  FakeDockWindow* dock = host_.Ui().Dock(window);
  if (dock == nullptr) return platform::E_FAIL;
  if (mode == 1) dock->shown = false;
  if (mode == 2) dock->shown = true;
  if (mode == 32) dock->state ^= 8;
  dock->window->ShowWindow(dock->shown);
  return platform::S_OK;
}
Status FakeUiManager::GetDockState(HWND window, std::uint32_t* state) {
  const Status status = host_.Begin("GetDockState", host_.Ui().Name(window));
  if (status != platform::S_OK) return status;
  const FakeDockWindow* dock = host_.Ui().Dock(window);
  if (dock != nullptr) *state = dock->state;
  return dock != nullptr ? platform::S_OK : platform::E_FAIL;
}
Status FakeUiManager::RemoveParentWindow(HWND parent) {
  const Status status = host_.Begin("RemoveParentWindow", host_.Ui().Name(parent));
  if (status != platform::S_OK) return status;
  return host_.Ui().DestroyDock(parent) ? platform::S_OK : platform::E_FAIL;
}

Status FakeUiManager::AddPage(HWND parent, HWND window, std::int32_t position, BSTR title,
                              std::uint32_t number1, std::uint32_t number2, std::uint32_t owner,
                              const GUID* class_id) {
  const std::string line = host_.Ui().Name(parent) + " " + host_.Ui().Name(window) + " " +
                           std::to_string(position) + " " + Quoted(title) + Number(" ", number1) +
                           Number(" ", number2) + " " + OwnerText(owner, *class_id);
  return host_.Ui().Add(Page(host_, parent, window, owner, class_id), "AddPage", line);
}
Status FakeUiManager::RemovePage(HWND parent, HWND window, std::uint32_t owner, const GUID* class_id) {
  return host_.Ui().Remove(Page(host_, parent, window, owner, class_id), "RemovePage");
}

Status FakeUiManager::RemoveToolbar(BSTR identity, std::uint32_t owner, const GUID* class_id) {
  return host_.Ui().Remove(Toolbar(identity, owner, class_id), "RemoveToolbar");
}

Status FakeUiManager::AddMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                              const GUID* class_id, const VARIANT* ids, const VARIANT* list2,
                              const VARIANT* list3, BSTR text1, BSTR text2, std::uint32_t flag) {
  return host_.Ui().Add(With(Menu(module, menu_id, owner, class_id), ids), "AddMenu",
                        std::to_string(menu_id) + " " + OwnerText(owner, *class_id) + " " + ListText(ids) +
                            " " + ListText(list2) + " " + ListText(list3) + " " + Quoted(text1) + " " +
                            Quoted(text2) + Number(" ", flag));
}
Status FakeUiManager::RemoveMenu(HMODULE module, std::uint32_t menu_id, std::uint32_t owner,
                                 const GUID* class_id) {
  return host_.Ui().Remove(Menu(module, menu_id, owner, class_id), "RemoveMenu");
}

Status FakeUiManager::AddCommandSink(std::uint32_t owner, const GUID* class_id, HWND window) {
  return host_.Ui().Add(Sink(host_, owner, class_id, window), "AddCommandSink",
                        host_.Ui().Name(window) + " " + OwnerText(owner, *class_id));
}
Status FakeUiManager::AddCommandStrings(HMODULE module, std::uint32_t owner, const GUID* class_id) {
  return host_.Ui().Add(Strings(module, owner, class_id), "AddCommandStrings",
                        "of the module " + OwnerText(owner, *class_id));
}
Status FakeUiManager::RemoveCommandStrings(HMODULE module, std::uint32_t owner, const GUID* class_id) {
  return host_.Ui().Remove(Strings(module, owner, class_id), "RemoveCommandStrings");
}
Status FakeUiManager::RemoveCommandSink(std::uint32_t owner, const GUID* class_id, HWND window) {
  return host_.Ui().Remove(Sink(host_, owner, class_id, window), "RemoveCommandSink");
}

Status FakeUiManager::AllocOwnerId(std::uint32_t* owner) {
  const Status status = host_.Begin("AllocOwnerId");
  if (status == platform::S_OK) *owner = host_.Ui().NewOwner();
  return status;
}
Status FakeUiManager::FreeOwnerId(std::uint32_t* owner) {
  const Status status = host_.Begin("FreeOwnerId", std::to_string(*owner));
  if (status != platform::S_OK) return status;
  return host_.Ui().FreeOwner(*owner) ? platform::S_OK : platform::E_FAIL;
}

Status FakeUiManager::GetDockableWindow(BSTR identity, BSTR title, std::uint32_t number,
                                        std::uint32_t dock_position, HWND* window, BSTR* text) {
  const Status status =
      host_.Begin("GetDockableWindow", BstrText(identity) + " " + Quoted(title) + Number(" ", number) +
                                           " position " + Hex(dock_position, 4) + TextIn(text));
  if (status != platform::S_OK) return status;
  const FakeDockWindow* dock = host_.Ui().Dock(BstrText(identity));
  if (dock == nullptr || !dock->shown) return platform::E_FAIL;
  *window = dock->window->GetHandle();
  AnswerText(identity, text);
  return platform::S_OK;
}

Status FakeToolbarManager::FindDockableWindow(BSTR identity, BSTR title, IQUpdateWindowClient* client,
                                              std::uint32_t flags, std::uint32_t dock_position, HWND* window,
                                              BSTR* text) {
  const Status status =
      host_.Begin("FindDockableWindow",
                  BstrText(identity) + " " + Quoted(title) + (client != nullptr ? " client" : " no client") +
                      " flags " + Hex(flags, 1) + " position " + Hex(dock_position, 4) + TextIn(text));
  if (status != platform::S_OK) return status;
  FakeDockWindow* dock = host_.Ui().Dock(BstrText(identity));
  if (flags == 0x10) {
    if (dock == nullptr || dock->shown) return platform::E_FAIL;
  } else if (dock == nullptr) {
    dock = &host_.Ui().MakeDock(BstrText(identity), BstrText(title));
  }
  *window = dock->window->GetHandle();
  AnswerText(identity, text);
  return platform::S_OK;
}

Status FakeToolbarManager::AddPaneToolbar(HWND parent, HMODULE, std::uint32_t toolbar_id,
                                          std::uint32_t second_id, std::uint32_t owner, const GUID* class_id,
                                          const VARIANT* list1, const VARIANT* list2, const VARIANT* list3,
                                          const VARIANT* list4, const VARIANT* list5) {
  std::string line = host_.Ui().Name(parent) + Number(" ", toolbar_id) + Number(" ", second_id) + " " +
                     OwnerText(owner, *class_id);
  for (const VARIANT* list : {list1, list2, list3, list4, list5}) line += " " + ListText(list);
  return host_.Begin("AddPaneToolbar", line);
}

Status FakeToolbarManager::CustomizeToolbar(HWND window) {
  return host_.Begin("CustomizeToolbar", host_.Ui().Name(window));
}

// A hidden one gives 1, which is a success and yet not yes.
Status FakeToolbarManager::IsToolbarShown(HWND window) {
  const Status status = host_.Begin("IsToolbarShown", host_.Ui().Name(window));
  if (status != platform::S_OK) return status;
  const FakeDockWindow* dock = host_.Ui().Dock(window);
  return dock != nullptr && dock->toolbar_shown ? platform::S_OK : 1;
}
Status FakeToolbarManager::ShowToolbar(HWND window, std::int32_t show) {
  const Status status = host_.Begin("ShowToolbar", host_.Ui().Name(window) + " " + std::to_string(show));
  if (status != platform::S_OK) return status;
  if (FakeDockWindow* dock = host_.Ui().Dock(window)) dock->toolbar_shown = show != 0;
  return platform::S_OK;
}

Status FakeToolbarManager::AddToolbar(BSTR identity, BSTR title, HMODULE module, std::uint32_t toolbar_id,
                                      std::uint32_t second_id, std::uint32_t owner, const GUID* class_id,
                                      const VARIANT* ids) {
  (void)module;
  return host_.Ui().Add(With(Toolbar(identity, owner, class_id), ids), "AddToolbar",
                        BstrText(identity) + " " + Quoted(title) + Number(" ", toolbar_id) +
                            Number(" ", second_id) + " " + OwnerText(owner, *class_id) + " " + ListText(ids));
}

Status FakePageHost::GetPageCount(HWND window, std::uint32_t* count) {
  const Status status = host_.Begin("GetPageCount", host_.Ui().Name(window));
  if (status == platform::S_OK) *count = static_cast<std::uint32_t>(host_.Ui().Pages(window).size());
  return status;
}

}  // namespace fakes

}  // namespace pvw::test
