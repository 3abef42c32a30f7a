// The services that give a component its menus, pages and dockable windows.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ioview/host/host_services.h"
#include "platform/gui/window.h"

namespace ioview {
namespace {

using platform::HWND;
using platform::ScopedBstr;
using platform::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Status kOk = platform::S_OK;
constexpr Status kFail = platform::E_FAIL;

class WindowServices : public testing::Test {
 protected:
  Status Find(std::uint32_t flags, pvw::IQUpdateWindowClient* client = nullptr) {
    return host.toolbars.FindDockableWindow(id.Get(), title.Get(), client, flags, 0xE81E, &dock, nullptr);
  }
  Status GetShown() {
    HWND window = 0;
    const Status status =
        host.ui_manager.GetDockableWindow(id.Get(), title.Get(), 0, 0xE81C, &window, nullptr);
    EXPECT_EQ(window, status == kOk ? dock : 0);
    return status;
  }
  std::uint32_t State() {
    std::uint32_t state = 99;
    EXPECT_EQ(host.ui_manager.GetDockState(dock, &state), kOk);
    return state;
  }
  std::uint32_t PageCount() {
    std::uint32_t count = 99;
    host.pages.GetPageCount(dock, &count);
    return count;
  }

  UserSettings settings;
  HostServices host{settings};
  const ScopedBstr id{"{IO}"}, title{"I/O"}, all{"All"}, selected{"Selected"};
  HWND dock = 0;
};

TEST_F(WindowServices, AWindowIsFoundBySomeoneElseWhenHiddenAndWhenShown) {
  EXPECT_EQ(Find(0x10), kFail);
  EXPECT_EQ(GetShown(), kFail);
  EXPECT_EQ(dock, 0u);

  EXPECT_EQ(Find(0x1086), kOk);
  ASSERT_NE(dock, 0u);
  const HWND made = dock;
  EXPECT_EQ(Find(0x10), kOk);
  EXPECT_EQ(GetShown(), kFail);

  EXPECT_EQ(host.ui_manager.SetDockState(dock, 2), kOk);
  EXPECT_EQ(GetShown(), kOk);
  dock = 0;
  EXPECT_EQ(Find(0x10), kFail);
  EXPECT_EQ(dock, 0u);
  EXPECT_EQ(Find(0x1086), kOk);
  EXPECT_EQ(dock, made);

  EXPECT_EQ(State(), 8u);
  host.ui_manager.SetDockState(dock, 32);
  EXPECT_EQ(State(), 0u);
  host.ui_manager.SetDockState(dock, 1);
  EXPECT_EQ(Find(0x10), kOk);

  EXPECT_EQ(host.toolbars.IsToolbarShown(dock), kOk);
  EXPECT_EQ(host.toolbars.ShowToolbar(dock, 0), kOk);
  EXPECT_EQ(host.toolbars.IsToolbarShown(dock), 1);
  EXPECT_EQ(host.toolbars.ShowToolbar(dock, -1), kOk);
  EXPECT_EQ(host.toolbars.IsToolbarShown(dock), kOk);

  EXPECT_EQ(host.ui_manager.RemoveParentWindow(dock), kOk);
  EXPECT_EQ(platform::CWnd::FromHandle(dock), nullptr);
  EXPECT_EQ(Find(0x10), kFail);
  std::uint32_t unused = 0;
  EXPECT_THAT((std::vector{host.ui_manager.RemoveParentWindow(dock), host.ui_manager.SetDockState(dock, 2),
                           host.ui_manager.GetDockState(dock, &unused), host.toolbars.ShowToolbar(dock, 0),
                           host.toolbars.CustomizeToolbar(dock), host.pages.GetPageCount(dock, &unused)}),
              testing::Each(kFail));
}

TEST_F(WindowServices, PagesStandAtTheirPositions) {
  platform::CWnd first, second;
  Find(0x1086);
  platform::CreateParams params;
  params.style = platform::WS_CHILD;
  params.parent = dock;
  first.Create(params);
  second.Create(params);
  UiManager& ui = host.ui_manager;
  EXPECT_EQ(ui.AddPage(dock, second.GetHandle(), -1, selected.Get(), 0, 0, 4, &pvw::CLSID_PvwIO), kOk);
  EXPECT_EQ(ui.AddPage(dock, first.GetHandle(), 0, all.Get(), 0, 0, 3, &pvw::CLSID_PvwIO), kOk);
  EXPECT_EQ(PageCount(), 2u);
  EXPECT_EQ(host.ui.FindDock(dock)->Pages().front().title, "All");

  // Without a parent it is a window for keys, and no page.
  EXPECT_EQ(ui.AddPage(0, first.GetHandle(), 0, nullptr, 0, 0, 5, &pvw::CLSID_PaneAccelerators), kOk);
  ASSERT_EQ(host.ui.Registrations().size(), 1u);
  EXPECT_EQ(host.ui.Registrations().front().kind, RegistrationKind::kKeyWindow);
  EXPECT_EQ(ui.RemovePage(0, first.GetHandle(), 6, &pvw::CLSID_PaneAccelerators), kFail);
  EXPECT_EQ(ui.RemovePage(0, first.GetHandle(), 5, &pvw::CLSID_PaneAccelerators), kOk);

  EXPECT_EQ(ui.RemovePage(dock, first.GetHandle(), 3, &pvw::CLSID_PvwIO), kOk);
  EXPECT_EQ(ui.RemovePage(dock, first.GetHandle(), 3, &pvw::CLSID_PvwIO), kFail);
  EXPECT_EQ(ui.RemovePage(dock, second.GetHandle(), 4, &pvw::CLSID_PvwIO), kOk);
  EXPECT_EQ(PageCount(), 0u);
  EXPECT_EQ(ui.AddPage(77, first.GetHandle(), 0, all.Get(), 0, 0, 3, &pvw::CLSID_PvwIO), kFail);
  // The windows go with the dock.
  EXPECT_EQ(ui.RemoveParentWindow(dock), kOk);
  EXPECT_EQ(first.GetHandle() + second.GetHandle(), 0u);
}

TEST_F(WindowServices, ARegistrationIsTakenBackByWhatItWasAddedWith) {
  platform::VARIANT list;
  list.vt = platform::VT_ARRAY | platform::VT_UINT;
  list.parray = platform::SafeArrayCreateVector(platform::VT_VARIANT, 2);
  for (std::uint32_t i = 0; i < 2; ++i) {
    platform::VARIANT* element = platform::SafeArrayVariantAt(list.parray, i);
    element->vt = platform::VT_UINT;
    element->uintVal = 32770 + i;
  }
  const platform::VARIANT none;
  const platform::GUID* const by = &pvw::CLSID_PvwIO;
  UiManager& ui = host.ui_manager;
  ui.AddMenu(nullptr, 201, 1, by, &list, &none, &none, nullptr, nullptr, 1);
  ui.AddPopupMenu(5, nullptr, 202, 1, by, &none);
  ui.AddAccelerators(nullptr, 9001, 1, by, &list, &none, &none);
  ui.AddCommandSink(1, by, 6);
  ui.AddCommandStrings(nullptr, 1, by);
  host.toolbars.AddToolbar(id.Get(), title.Get(), nullptr, 0, 203, 1, by, &list);
  platform::VariantClear(&list);
  ASSERT_EQ(host.ui.Registrations().size(), 6u);
  EXPECT_THAT(host.ui.Registrations()[0].commands, ElementsAre(32770, 32771));
  EXPECT_EQ(host.ui.Registrations()[5].resource, 203u);
  EXPECT_EQ(host.ui.SinkOf(32771), 6u);

  // Another owner, class, window, id or name takes nothing back.
  EXPECT_THAT((std::vector{ui.RemoveMenu(nullptr, 201, 2, by), ui.RemovePopupMenu(6, nullptr, 202, 1, by),
                           ui.RemoveAccelerators(nullptr, 9001, 1, &pvw::CLSID_PaneAccelerators),
                           ui.RemoveCommandSink(1, by, 5), ui.RemoveCommandStrings(nullptr, 2, by),
                           ui.RemoveToolbar(title.Get(), 1, by)}),
              testing::Each(kFail));
  EXPECT_THAT((std::vector{ui.RemoveMenu(nullptr, 201, 1, by), ui.RemovePopupMenu(5, nullptr, 202, 1, by),
                           ui.RemoveAccelerators(nullptr, 9001, 1, by), ui.RemoveCommandSink(1, by, 6),
                           ui.RemoveCommandStrings(nullptr, 1, by), ui.RemoveToolbar(id.Get(), 1, by)}),
              testing::Each(kOk));
  EXPECT_THAT(host.ui.Registrations(), IsEmpty());

  std::uint32_t first = 0, second = 0;
  EXPECT_EQ(ui.AllocOwnerId(&first), kOk);
  EXPECT_EQ(ui.AllocOwnerId(&second), kOk);
  EXPECT_NE(first, second);
  EXPECT_EQ(ui.FreeOwnerId(&first), kOk);
  EXPECT_EQ(ui.FreeOwnerId(&first), kFail);
}

}  // namespace
}  // namespace ioview
