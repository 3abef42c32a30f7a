// The window behind a view and its panes, between a host and its window manager.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "frame/ui_debug_command_sink.h"
#include "host/ids.h"
#include "platform/base/app.h"
#include "platform/headless/headless_display.h"
#include "tests/support/fake_ui_services.h"

namespace pvw {
namespace {

using platform::HWND;
using platform::WM_USER;
using test::FakeHost;
using testing::ElementsAre;
using testing::IsEmpty;

// Says in the host's transcript what it is told and when it ends: "refresh all".
class Pane final : public CPvwDebugInstanceDataCtrl {
 public:
  Pane(FakeHost& fake_host, CUiRegistrar* registrar, std::string pane_name)
      : CPvwDebugInstanceDataCtrl(&fake_host, registrar, 0), fake(fake_host), name(std::move(pane_name)) {}
  ~Pane() override { fake.Begin("delete", name); }

  void RefreshData() override {
    fake.Begin("refresh", name);
    if (meanwhile) std::exchange(meanwhile, {})();
  }
  void OnTargetConnected() override { fake.Begin("connected", name); }
  void OnTargetDisconnected() override { fake.Begin("disconnected", name); }
  void PostNcDestroy() override { fake.Begin("window of", name + " is gone"); }
  std::uint32_t Owner() const { return menuOwnerId; }

  FakeHost& fake;
  const std::string name;
  std::function<void()> meanwhile;
};

class Sink final : public CUiDebugCommandSink {
 public:
  using CUiDebugCommandSink::CUiDebugCommandSink;
  ~Sink() override { DestroySink(); }

  HWND Open(FakeHost& host, CUiRegistrar& registrar, HWND parent, const std::string& name) {
    auto pane = std::make_unique<Pane>(host, &registrar, name);
    const HWND window = pane->CreatePane(parent, GetHandle()) ? pane->GetHandle() : 0;
    host.Ui().NameWindow(window, name);
    registrar.AddPage(parent, window, -1, name, pane->Owner(), CLSID_PvwIO);
    m_panes.push_back(std::move(pane));
    return window;
  }
  std::vector<bool> Held() const {
    return {m_pNumberFormat != nullptr, m_pHostCommon != nullptr,  m_pPathService != nullptr,
            m_pSettings != nullptr,     m_pSessionData != nullptr, m_pHostExtra != nullptr,
            debugger != nullptr};
  }
  void OnPaneLeaving(CPvwDebugInstanceDataCtrl& pane) override {
    static_cast<Pane&>(pane).fake.Begin("leave", static_cast<Pane&>(pane).name);
    if (leaving) leaving();
  }
  std::function<void()> leaving;
};

class CommandSinkTest : public testing::Test {
 protected:
  CommandSinkTest() {
    platform::SetDisplay(&display);
    main.Create({});
    platform::SetMainWindow(main.GetHandle());
    sink = std::make_unique<Sink>(&host, &registrar);
    EXPECT_TRUE(sink->CreateSink());
    host.Ui().NameWindow(sink->GetHandle(), "sink");
    registrar.FindDockableWindow("{ID}", "IO", nullptr, 0x1086, 0xE81E, &dock, nullptr);
    all = sink->Open(host, registrar, dock, "all");
    selected = sink->Open(host, registrar, dock, "selected");
    host.ClearTranscript();
  }
  ~CommandSinkTest() override {
    sink.reset();
    host.Ui().DestroyDock(dock);
    platform::SetMainWindow(0);
    main.DestroyWindow();
    platform::SetDisplay(nullptr);
  }
  platform::LRESULT Tell(platform::UINT message, HWND window) { return sink->Send(message, window, 77); }

  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Fail};
  platform::CWnd main;
  FakeHost host;
  CUiRegistrar registrar{&host};
  std::unique_ptr<Sink> sink;
  HWND dock = 0, all = 0, selected = 0;
};

TEST(CommandSink, StandsWithAHostThatLacksAnyOneThing) {
  const platform::GUID kServices[] = {IID_IQNumberFormat, IID_IQHostCommon, IID_IQPathService, IID_IQSettings,
                                      IID_IQDataManager,  IID_IQHostExtra,  IID_IQDebugger};
  for (std::size_t i = 0; i < std::size(kServices); ++i) {
    FakeHost host;
    host.Lack(kServices[i]);
    std::vector<bool> held(std::size(kServices), true);
    held[i] = false;
    EXPECT_EQ(Sink(&host, nullptr).Held(), held) << platform::GuidText(kServices[i]);
  }
  Sink alone(nullptr, nullptr);
  EXPECT_EQ(alone.Held(), std::vector<bool>(std::size(kServices), false));
  EXPECT_TRUE(alone.CreateSink()) << "without a main window too";
  EXPECT_EQ(alone.Send(WM_USER + 1), 1);

  FakeHost host;
  CUiRegistrar registrar(&host);
  host.FailNext("AllocOwnerId");
  { const Sink without_menu_owner(&host, &registrar); }
  EXPECT_THAT(host.Asked("FreeOwnerId"), ElementsAre("FreeOwnerId 1")) << "only what it got";
}

TEST_F(CommandSinkTest, ItsEndTakesThePanesThenWhatTheWindowAndItsOwnersHaveThenTheOwners) {
  EXPECT_EQ(sink->GetParent(), &main);
  EXPECT_EQ(sink->GetStyle(), platform::WS_CHILD) << "it isn't shown";
  EXPECT_EQ(sink->GetId(), 1u);
  registrar.AddCommandStrings(nullptr, 2, CLSID_PvwIO);
  registrar.AddCommandSink(1, CLSID_PvwIO, sink->GetHandle());
  host.ClearTranscript();

  sink.reset();
  EXPECT_THAT(
      host.Transcript(),
      ElementsAre("leave all", "RemovePage dock1 all owner 3 PvwIO", "GetPageCount dock1",
                  "window of all is gone", "delete all", "FreeOwnerId 3", "FreeOwnerId 4", "leave selected",
                  "RemovePage dock1 selected owner 5 PvwIO", "GetPageCount dock1", "RemoveParentWindow dock1",
                  "window of selected is gone", "delete selected", "FreeOwnerId 5", "FreeOwnerId 6",
                  "RemoveCommandSink sink owner 1 PvwIO", "RemoveCommandStrings of the module owner 2 PvwIO",
                  "FreeOwnerId 1", "FreeOwnerId 2"));

  CUiCommandSink plain(&host, &registrar);
  ASSERT_TRUE(plain.CreateSink());
}

TEST_F(CommandSinkTest, TheHostRefreshesHidesAndClosesOnePaneByItsWindow) {
  EXPECT_EQ(Tell(WM_USER + 4, selected), 1);
  EXPECT_EQ(Tell(WM_USER + 3, all), 1);
  EXPECT_EQ(Tell(WM_USER + 1, all), 1);
  EXPECT_THAT(host.Transcript(),
              ElementsAre("refresh selected", "SetDockState dock1 1", "leave all",
                          "RemovePage dock1 all owner 3 PvwIO", "GetPageCount dock1", "window of all is gone",
                          "delete all", "FreeOwnerId 3", "FreeOwnerId 4"));
  host.ClearTranscript();

  for (const HWND window : {HWND{0}, all, dock, sink->GetHandle(), HWND{0xDEAD00000001}}) {
    for (const platform::UINT message : {WM_USER + 1, WM_USER + 3, WM_USER + 4}) {
      EXPECT_EQ(Tell(message, window), 1) << message << " of a window that is no pane " << window;
    }
  }
  EXPECT_EQ(Tell(WM_USER + 2, selected), 0) << "a message that it doesn't know";
  EXPECT_THAT(host.Transcript(), IsEmpty());

  host.Ui().DestroyDock(dock);
  host.ClearTranscript();
  EXPECT_EQ(Tell(WM_USER + 1, 0), 1) << "a pane that has lost its window isn't window 0";
  EXPECT_THAT(host.Transcript(), IsEmpty());
}

TEST_F(CommandSinkTest, AHostThatClosesBothPagesWhileOneIsClosingEndsEachOnce) {
  sink->leaving = [&] {
    Tell(WM_USER + 1, all);
    Tell(WM_USER + 1, selected);
  };
  sink->DestroyPanes();
  EXPECT_THAT(host.Asked("delete"), ElementsAre("delete selected", "delete all"));
}

TEST_F(CommandSinkTest, EveryPaneIsToldInOrder) {
  sink->OnTargetConnected();
  sink->OnTargetDisconnected();
  sink->UpdatePanes();
  static_cast<Pane&>(*platform::CWnd::FromHandle(all)).meanwhile = [&] { Tell(WM_USER + 1, selected); };
  sink->UpdatePanes();
  sink->UpdatePanes();
  EXPECT_THAT(host.Asked("connected"), ElementsAre("connected all", "connected selected"));
  EXPECT_THAT(host.Asked("disconnected"), ElementsAre("disconnected all", "disconnected selected"));
  EXPECT_THAT(host.Asked("refresh"),
              ElementsAre("refresh all", "refresh selected", "refresh all", "refresh all"))
      << "the second goes while the first shows its data";
}

}  // namespace
}  // namespace pvw
