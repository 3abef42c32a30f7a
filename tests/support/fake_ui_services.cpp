#include "tests/support/fake_ui_services.h"

#include <algorithm>
#include <utility>

#include "host/ids.h"
#include "platform/base/app.h"
#include "tests/support/fake_services.h"

namespace pvw::test {

using fakes::Words;
using platform::BSTR;
using platform::BstrText;
using platform::GUID;
using platform::HMODULE;
using platform::HWND;
using platform::Status;
using platform::VARIANT;
using u32 = std::uint32_t;

namespace {

std::string OwnerText(u32 owner, const GUID& class_id) {
  const bool keys = class_id == CLSID_PaneAccelerators;
  return Words("owner", owner,
               keys                      ? "PaneAccelerators"
               : class_id == CLSID_PvwIO ? "PvwIO"
                                         : platform::GuidText(class_id));
}

std::string Quoted(BSTR text) {
  return '"' + BstrText(text) + '"';
}

std::vector<u32> Commands(const VARIANT* list) {
  std::vector<u32> commands;
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

template <typename... Lists>
std::string ListTexts(Lists... lists) {
  return Words(ListText(lists)...);
}

class FakeUiServices final : public fakes::Services<IQUiManager, IQToolbarManager, IQPageHost> {
 public:
  using Services::Services;

  Status AddAccelerators(HMODULE module, u32 id, u32 owner, const GUID* class_id, const VARIANT* ids,
                         const VARIANT* list2, const VARIANT* list3) override {
    return Ui().Add("AddAccelerators", With(ids, Of("keys", id, owner, class_id, module)), "",
                    ListTexts(ids, list2, list3));
  }
  Status RemoveAccelerators(HMODULE module, u32 id, u32 owner, const GUID* class_id) override {
    return Ui().Remove("RemoveAccelerators", Of("keys", id, owner, class_id, module));
  }
  Status AddPopupMenu(HWND window, HMODULE module, u32 id, u32 owner, const GUID* class_id,
                      const VARIANT* ids) override {
    const std::string what = Words(Name(window), id);
    return Ui().Add("AddPopupMenu", With(ids, Of("popup", what, owner, class_id, module)), "", ListText(ids));
  }
  Status RemovePopupMenu(HWND window, HMODULE module, u32 id, u32 owner, const GUID* class_id) override {
    return Ui().Remove("RemovePopupMenu", Of("popup", Words(Name(window), id), owner, class_id, module));
  }
  Status AddMenu(HMODULE module, u32 id, u32 owner, const GUID* class_id, const VARIANT* ids,
                 const VARIANT* list2, const VARIANT* list3, BSTR text1, BSTR text2, u32 flag) override {
    return Ui().Add("AddMenu", With(ids, Of("menu", id, owner, class_id, module)), "",
                    Words(ListTexts(ids, list2, list3), Quoted(text1), Quoted(text2), flag));
  }
  Status RemoveMenu(HMODULE module, u32 id, u32 owner, const GUID* class_id) override {
    return Ui().Remove("RemoveMenu", Of("menu", id, owner, class_id, module));
  }
  Status AddCommandStrings(HMODULE module, u32 owner, const GUID* class_id) override {
    return Ui().Add("AddCommandStrings", Of("strings", "of the module", owner, class_id, module));
  }
  Status RemoveCommandStrings(HMODULE module, u32 owner, const GUID* class_id) override {
    return Ui().Remove("RemoveCommandStrings", Of("strings", "of the module", owner, class_id, module));
  }
  Status AddCommandSink(u32 owner, const GUID* class_id, HWND window) override {
    return Ui().Add("AddCommandSink", Of("sink", Name(window), owner, class_id, nullptr, window));
  }
  Status RemoveCommandSink(u32 owner, const GUID* class_id, HWND window) override {
    return Ui().Remove("RemoveCommandSink", Of("sink", Name(window), owner, class_id, nullptr, window));
  }
  Status AddToolbar(BSTR identity, BSTR title, HMODULE, u32 id, u32 second_id, u32 owner,
                    const GUID* class_id, const VARIANT* ids) override {
    return Ui().Add("AddToolbar", With(ids, Of("toolbar", identity, owner, class_id)),
                    Words(Quoted(title), id, second_id), ListText(ids));
  }
  Status RemoveToolbar(BSTR identity, u32 owner, const GUID* class_id) override {
    return Ui().Remove("RemoveToolbar", Of("toolbar", identity, owner, class_id));
  }
  Status AddPage(HWND parent, HWND window, std::int32_t position, BSTR title, u32 number1, u32 number2,
                 u32 owner, const GUID* class_id) override {
    const std::string what = Words(Name(parent), Name(window));
    return Ui().Add("AddPage", Of("page", what, owner, class_id, nullptr, window, parent),
                    Words(position, Quoted(title), number1, number2));
  }
  Status RemovePage(HWND parent, HWND window, u32 owner, const GUID* class_id) override {
    return Ui().Remove("RemovePage", Of("page", Words(Name(parent), Name(window)), owner, class_id));
  }
  Status GetPageCount(HWND window, u32* count) override {
    return Do("GetPageCount", Name(window), [&] { *count = static_cast<u32>(Ui().Pages(window).size()); });
  }
  Status RemoveParentWindow(HWND parent) override {
    return Do("RemoveParentWindow", Name(parent), [&] { return Ui().DestroyDock(parent); });
  }
  Status AllocOwnerId(u32* owner) override {
    return Do("AllocOwnerId", "", [&] { *owner = Ui().NewOwner(); });
  }
  Status FreeOwnerId(u32* owner) override {
    return Do("FreeOwnerId", std::to_string(*owner), [&] { return Ui().FreeOwner(*owner); });
  }

  Status SetDockState(HWND window, u32 mode) override {
    return Do("SetDockState", Words(Name(window), mode), [&] {
      FakeDockWindow* dock = Ui().Dock(window);
      if (dock == nullptr) return false;
      if (mode == 1) dock->shown = false;
      if (mode == 2) dock->shown = true;
      if (mode == 32) dock->state ^= 8;
      dock->window->ShowWindow(dock->shown);
      return true;
    });
  }
  Status GetDockState(HWND window, u32* state) override {
    return Do("GetDockState", Name(window), [&] {
      const FakeDockWindow* dock = Ui().Dock(window);
      if (dock != nullptr) *state = dock->state;
      return dock != nullptr;
    });
  }
  // Gives a window that is on the screen.
  Status GetDockableWindow(BSTR identity, BSTR title, u32 number, u32 position, HWND* window,
                           BSTR* text) override {
    const std::string place = fakes::Hex(position, 4) + TextIn(text);
    return Do("GetDockableWindow", Words(identity, Quoted(title), number, "position", place), [&] {
      FakeDockWindow* dock = Ui().Dock(BstrText(identity));
      return dock != nullptr && dock->shown && Answer(*dock, window, text);
    });
  }
  // With the flags 10 gives a window that is hidden, with 1086 makes one.
  Status FindDockableWindow(BSTR identity, BSTR title, IQUpdateWindowClient* client, u32 flags, u32 position,
                            HWND* window, BSTR* text) override {
    const std::string place = fakes::Hex(position, 4) + TextIn(text);
    return Do("FindDockableWindow",
              Words(identity, Quoted(title), client != nullptr ? "client" : "no client", "flags",
                    fakes::Hex(flags, 1), "position", place),
              [&] {
                FakeDockWindow* dock = Ui().Dock(BstrText(identity));
                if (flags == 0x10) return dock != nullptr && !dock->shown && Answer(*dock, window, text);
                if (dock == nullptr) dock = &Ui().MakeDock(BstrText(identity), BstrText(title));
                return Answer(*dock, window, text);
              });
  }
  Status AddPaneToolbar(HWND parent, HMODULE, u32 id, u32 second_id, u32 owner, const GUID* class_id,
                        const VARIANT* list1, const VARIANT* list2, const VARIANT* list3,
                        const VARIANT* list4, const VARIANT* list5) override {
    return host_.Begin("AddPaneToolbar", Words(Name(parent), id, second_id, OwnerText(owner, *class_id),
                                               ListTexts(list1, list2, list3, list4, list5)));
  }
  Status CustomizeToolbar(HWND window) override { return host_.Begin("CustomizeToolbar", Name(window)); }
  // A hidden one gives 1, which is a success and yet not yes.
  Status IsToolbarShown(HWND window) override {
    const Status status = host_.Begin("IsToolbarShown", Name(window));
    const FakeDockWindow* dock = Ui().Dock(window);
    return status != platform::S_OK || (dock != nullptr && dock->toolbar_shown) ? status : 1;
  }
  Status ShowToolbar(HWND window, std::int32_t show) override {
    return Do("ShowToolbar", Words(Name(window), show), [&] {
      if (FakeDockWindow* dock = Ui().Dock(window)) dock->toolbar_shown = show != 0;
    });
  }

 private:
  FakeUi& Ui() { return host_.Ui(); }
  std::string Name(HWND window) { return Ui().Name(window); }

  template <typename What>
  static FakeUi::Registration Of(const char* kind, const What& what, u32 owner, const GUID* class_id,
                                 HMODULE module = nullptr, HWND window = 0, HWND parent = 0) {
    return {kind, Words(what), owner, *class_id, module, window, parent};
  }
  static FakeUi::Registration With(const VARIANT* ids, FakeUi::Registration entry) {
    entry.commands = Commands(ids);
    return entry;
  }
  static std::string TextIn(const BSTR* text) { return text != nullptr ? " text " + Quoted(*text) : ""; }
  // The host answers with a text of its own, "text of IDENTITY", in place of what came in.
  static bool Answer(const FakeDockWindow& dock, HWND* window, BSTR* text) {
    *window = dock.window->GetHandle();
    if (text != nullptr) {
      platform::SysFreeString(std::exchange(*text, platform::NewBstr("text of " + dock.identity)));
    }
    return true;
  }
};

}  // namespace

std::vector<fakes::Offered> fakes::OfferUiServices(FakeHost& host) {
  const auto all = std::make_shared<FakeUiServices>(host);
  return {Offer<IQUiManager>(all, IID_IQUiManager, "IQUiManager"),
          Offer<IQToolbarManager>(all, IID_IQToolbarManager, "IQToolbarManager"),
          Offer<IQPageHost>(all, IID_IQPageHost, "IQPageHost")};
}

FakeUi::~FakeUi() {
  for (const auto& dock : docks_) dock->window->DestroyWindow();
}

std::vector<std::string> FakeUi::Live() const {
  std::vector<std::string> live;
  for (const Registration& entry : registered_) {
    live.push_back(Words(entry.kind, entry.what, "owner", entry.owner));
  }
  return live;
}

FakeDockWindow* FakeUi::Dock(std::string_view identity) {
  const auto found = std::ranges::find(docks_, identity, [](const auto& dock) { return dock->identity; });
  return found != docks_.end() ? found->get() : nullptr;
}

FakeDockWindow* FakeUi::Dock(HWND window) {
  const auto found =
      std::ranges::find(docks_, window, [](const auto& dock) { return dock->window->GetHandle(); });
  return window != 0 && found != docks_.end() ? found->get() : nullptr;
}

std::vector<HWND> FakeUi::Pages(HWND parent) const {
  std::vector<HWND> pages;
  for (const Registration& entry : registered_) {
    if (entry.kind == "page" && entry.parent == parent) pages.push_back(entry.window);
  }
  return pages;
}

HWND FakeUi::SinkOf(u32 command) const {
  for (const Registration& list : registered_) {
    if (std::ranges::find(list.commands, command) == list.commands.end()) continue;
    for (const Registration& sink : registered_) {
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

Status FakeUi::Add(std::string_view operation, const Registration& entry, const std::string& details,
                   const std::string& lists) {
  std::string line = entry.what;
  for (const std::string& part : {details, OwnerText(entry.owner, entry.class_id), lists}) {
    if (!part.empty()) line += " " + part;
  }
  const Status status = host_.Begin(operation, line);
  if (status == platform::S_OK) registered_.push_back(entry);
  return status;
}

Status FakeUi::Remove(std::string_view operation, const Registration& entry) {
  const auto key = [](const Registration& one) {
    return std::tie(one.kind, one.what, one.owner, one.class_id, one.module);
  };
  const auto found = std::ranges::find(registered_, key(entry), key);
  const std::string unknown = found == registered_.end() ? " (unknown)" : "";
  const Status status =
      host_.Begin(operation, Words(entry.what, OwnerText(entry.owner, entry.class_id)) + unknown);
  if (found == registered_.end()) return platform::E_FAIL;
  if (status == platform::S_OK) registered_.erase(found);
  return status;
}

FakeDockWindow& FakeUi::MakeDock(std::string identity, std::string title) {
  FakeDockWindow& dock = *docks_.emplace_back(std::make_unique<FakeDockWindow>());
  dock.identity = std::move(identity);
  dock.title = std::move(title);
  platform::CreateParams params;
  params.style = platform::WS_CHILD;
  params.rect = {0, 0, 600, 400};
  params.parent = platform::GetMainWindow();
  dock.window->Create(params);
  NameWindow(dock.window->GetHandle(), "dock" + std::to_string(++docks_made_));
  return dock;
}

bool FakeUi::DestroyDock(HWND window) {
  const FakeDockWindow* dock = Dock(window);
  if (dock == nullptr) return false;
  // Out of the list before its children hear of their end.
  const auto found = std::ranges::find(docks_, dock, &std::unique_ptr<FakeDockWindow>::get);
  const std::unique_ptr<FakeDockWindow> gone = std::move(*found);
  docks_.erase(found);
  gone->window->DestroyWindow();
  return true;
}

}  // namespace pvw::test
