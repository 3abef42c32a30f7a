// The host's root object, how its services are logged and taken away, those that speak of the workspace, and
// those that give a component its menus, pages and dockable windows.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "ioview/host/host_services.h"
#include "ioview/host/service_table.h"
#include "platform/gui/window.h"

namespace ioview {
namespace {

using platform::BSTR;
using platform::HWND;
using platform::ScopedBstr;
using platform::Status;
using testing::ElementsAre;
using testing::IsEmpty;

class HostServicesTest : public testing::Test {
 protected:
  UserSettings settings;
  HostServices host{settings};
};

TEST_F(HostServicesTest, EveryServiceAnswersUnderItsOwnIdAndCanBeTakenAway) {
  for (const ServiceEntry& entry : kServices) {
    SCOPED_TRACE(entry.name);
    const auto ask = [&](void* before) {
      void* out = before;
      const platform::Status status = entry.id == pvw::IID_IQHostFrame
                                          ? host.root.QueryInterface(&entry.id, &out)
                                          : host.root.GetService(&entry.id, &out);
      return std::pair(status, out);
    };
    EXPECT_EQ(ask(nullptr).second == nullptr, entry.id == pvw::IID_IQDebugPlatform);
    ASSERT_TRUE(host.SetAvailability(platform::GuidText(entry.id), Availability::kOn));
    auto* service = static_cast<pvw::IQUnknown*>(ask(nullptr).second);
    ASSERT_NE(service, nullptr);
    void* face = nullptr;
    EXPECT_EQ(service->QueryInterface(&entry.id, &face), platform::S_OK);
    EXPECT_EQ(face, service);
    EXPECT_EQ(service->QueryInterface(&pvw::CLSID_PvwIO, &face), platform::E_NOINTERFACE);

    EXPECT_TRUE(host.SetAvailability(entry.name, Availability::kFail));
    auto* failing = static_cast<pvw::IQUnknown*>(ask(nullptr).second);
    ASSERT_NE(failing, nullptr);
    EXPECT_EQ(failing->QueryInterface(&entry.id, &face), platform::E_FAIL);
    EXPECT_TRUE(host.SetAvailability(entry.name, Availability::kNull));
    EXPECT_EQ(ask(&host), std::pair(platform::S_OK, static_cast<void*>(nullptr)));
    EXPECT_TRUE(host.SetAvailability(entry.name, Availability::kOff));
    void* const left = entry.id == pvw::IID_IQHostFrame ? nullptr : &host;
    EXPECT_EQ(ask(&host), std::pair(platform::E_NOINTERFACE, left));
    // What was given before goes on working.
    EXPECT_EQ(service->QueryInterface(&entry.id, &face), platform::S_OK);
  }
  EXPECT_FALSE(host.SetAvailability("IQErrorReporter", Availability::kOff));
}

TEST_F(HostServicesTest, AFailingServiceTouchesNothing) {
  host.session.SetRunning(true);
  std::uint8_t byte = 7;
  ScopedBstr out;
  const platform::Status statuses[] = {
      host.memory.failing.WriteMemory(0, 0, 1, &byte), host.memory.failing.ReadDirect(0, 0, 1, &byte),
      host.blocks.failing.WriteBlock(0, 0, 0, 1, &byte), host.session.failing.IsTargetRunning(),
      host.paths.failing.GetCurrentProject(out.Receive())};
  EXPECT_THAT(statuses, testing::Each(platform::E_FAIL));
  EXPECT_EQ(byte, 7);
  host.target.Peek(0, {&byte, 1});
  EXPECT_EQ(byte, 0);
  EXPECT_EQ(out.Get(), nullptr);
}

TEST_F(HostServicesTest, LogsEveryOperationWithWhatCameIn) {
  const ScopedBstr text("c:\\a \"b\"\nc");
  const ScopedBstr none;
  std::uint8_t bytes[4] = {};
  std::int64_t value = 0;
  const platform::VARIANT list;
  ScopedBstr out;
  host.session.IsTargetRunning();
  host.calls.Switch(true);
  host.blocks.WriteBlock(0, 3, 0xFFFFFFFF, 4, bytes);
  host.errors.GetErrorText(platform::E_FAIL, out.Receive());
  host.addresses.EvaluateExpression(text.Get(), 16, &value);
  host.ui_manager.AddMenu(nullptr, 201, 3, &pvw::CLSID_PvwIO, &list, &list, &list, nullptr, none.Get(), 1);
  // A service that fails is called all the same.
  host.session.failing.IsTargetRunning();
  EXPECT_THAT(host.calls.Take(),
              ElementsAre("IQBlockMemory.WriteBlock(0, 3, 4294967295, 4, *)",
                          "IQErrorService.GetErrorText(-2147467259)",
                          "IQAddressFormat.EvaluateExpression(\"c:\\a \"b\"\\nc\", 16)",
                          "IQUiManager.AddMenu(*, 201, 3, {80D58C53-E47D-11D3-8AF5-00AA0026624A}, *, *, *, "
                          "\"\", \"\", 1)",
                          "IQDebugSession.IsTargetRunning()"));
  // One behind another has its own name.
  void* reporter = nullptr;
  host.addresses.QueryInterface(&pvw::IID_IQErrorReporter, &reporter);
  static_cast<pvw::IQErrorReporter*>(reporter)->GetErrorText(1, out.Receive());
  EXPECT_THAT(host.calls.Take("IQErrorReporter"), ElementsAre("IQErrorReporter.GetErrorText(1)"));
  EXPECT_THAT(host.calls.Take(), IsEmpty());
}

TEST(CallLog, DropsTheOldestCallsThatNobodyTakes) {
  CallLog calls;
  const std::string half(CallLog::kMostBytes / 2, 'x');
  for (const char* name : {"1", "2", "3"}) calls.Add("S", name + half.substr(1));
  const std::vector<std::string> kept = calls.Take();
  ASSERT_EQ(kept.size(), 2u);
  EXPECT_TRUE(kept.front().starts_with("S.2"));
}

TEST_F(HostServicesTest, ADirectoryIsThatOfTheOpenWorkspaceOnly) {
  const ScopedBstr shop("shop"), lamp("lamp"), debug("Debug");
  ScopedBstr text;
  host.workspace = {"shop", "lamp", "Debug", "c:\\"};
  host.paths.GetConfigurationDirectory(shop.Get(), lamp.Get(), debug.Get(), text.Receive());
  EXPECT_EQ(text.Text(), "c:\\lamp\\Debug");
  EXPECT_EQ(host.paths.GetConfigurationDirectory(shop.Get(), shop.Get(), debug.Get(), text.Receive()),
            platform::E_FAIL);
  EXPECT_EQ(text.Get(), nullptr);
  host.workspace = {};
  EXPECT_EQ(host.paths.GetWorkspaceDirectory(ScopedBstr("").Get(), text.Receive()), platform::E_FAIL);
}

TEST_F(HostServicesTest, CustomPlaceholdersFillThreeQuartersOfTheirList) {
  host.placeholders.SetGlobal({"A", "1", "first"});
  host.placeholders.SetGlobal({"B", "2", "second"});
  host.placeholders.SetGlobal({"A", "3", "again"});
  platform::ScopedVariant list;
  EXPECT_EQ(host.placeholders.GetGlobalPlaceholders(list.Receive()), platform::S_OK);
  std::vector<std::string> texts;
  for (std::size_t i = 0; const BSTR* text = platform::SafeArrayBstrAt(list.Get().parray, i); ++i) {
    texts.push_back(platform::BstrText(*text));
  }
  EXPECT_THAT(texts, ElementsAre("again", "A", "3", "second", "B", "2", "", ""));
  EXPECT_EQ(host.placeholders.GetWorkspacePlaceholders(ScopedBstr("x").Get(), list.Receive()),
            platform::E_FAIL);
  EXPECT_EQ(list.Get().vt, platform::VT_EMPTY);
}

TEST_F(HostServicesTest, SessionValuesKeepTheirPlacesAndCountTheirChanges) {
  const ScopedBstr a("A"), b("B"), c("C");
  ScopedBstr text;
  DataManager& data = host.data_manager;
  for (const auto& [key, value] : {std::pair(&b, &c), {&a, &c}, {&b, &a}, {&b, &a}}) {
    data.SetSessionValue(a.Get(), b.Get(), c.Get(), key->Get(), value->Get());
  }
  EXPECT_EQ(host.session_values.Changes(), 3u);
  EXPECT_EQ(host.session_values.Entries({u"A", u"B", u"C"}).front().key, u"B");
  // The same key of another configuration.
  EXPECT_EQ(data.GetSessionValue(a.Get(), b.Get(), nullptr, b.Get(), text.Receive()), platform::E_FAIL);
}

constexpr Status kOk = platform::S_OK;
constexpr Status kFail = platform::E_FAIL;

class WindowServices : public HostServicesTest {
 protected:
  Status Find(std::uint32_t flags) {
    return host.toolbars.FindDockableWindow(id.Get(), title.Get(), nullptr, flags, 0xE81E, &dock, nullptr);
  }
  Status GetShown() {
    HWND window = 0;
    const Status status =
        host.ui_manager.GetDockableWindow(id.Get(), title.Get(), 0, 0xE81C, &window, nullptr);
    EXPECT_EQ(window, status == kOk ? dock : 0);
    return status;
  }
  std::uint32_t PageCount() {
    std::uint32_t count = 99;
    host.pages.GetPageCount(dock, &count);
    return count;
  }

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

  host.ui_manager.SetDockState(dock, 1);
  EXPECT_EQ(Find(0x10), kOk);
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
  ui.AddPage(dock, second.GetHandle(), -1, selected.Get(), 0, 0, 4, &pvw::CLSID_PvwIO);
  ui.AddPage(dock, first.GetHandle(), 0, all.Get(), 0, 0, 3, &pvw::CLSID_PvwIO);
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
  EXPECT_EQ(PageCount(), 1u);
  EXPECT_EQ(ui.AddPage(77, first.GetHandle(), 0, all.Get(), 0, 0, 3, &pvw::CLSID_PvwIO), kFail);
  // The windows go with the dock.
  EXPECT_EQ(ui.RemoveParentWindow(dock), kOk);
  EXPECT_EQ(first.GetHandle() + second.GetHandle(), 0u);
}

TEST_F(WindowServices, ARegistrationIsTakenBackByWhatItWasAddedWith) {
  const platform::VARIANT none;
  const platform::GUID* const by = &pvw::CLSID_PvwIO;
  UiManager& ui = host.ui_manager;
  ui.AddMenu(nullptr, 201, 1, by, &none, &none, &none, nullptr, nullptr, 1);
  ui.AddPopupMenu(5, nullptr, 202, 1, by, &none);
  ui.AddAccelerators(nullptr, 9001, 1, by, &none, &none, &none);
  ui.AddCommandSink(1, by, 6);
  ui.AddCommandStrings(nullptr, 1, by);
  host.toolbars.AddToolbar(id.Get(), title.Get(), nullptr, 0, 203, 1, by, &none);
  ASSERT_EQ(host.ui.Registrations().size(), 6u);
  EXPECT_EQ(host.ui.Registrations()[5].resource, 203u);

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
  EXPECT_THAT(host.ui.Registrations(), testing::IsEmpty());

  std::uint32_t owner = 0;
  ui.AllocOwnerId(&owner);
  EXPECT_EQ(ui.FreeOwnerId(&owner), kOk);
  EXPECT_EQ(ui.FreeOwnerId(&owner), kFail);
}

}  // namespace
}  // namespace ioview
