// The window behind a view and its panes, between a host, its window manager and its format dialog.

#include <gmock/gmock.h>

#include <functional>
#include <limits>

#include "frame/ui_debug_command_sink.h"
#include "host/ids.h"
#include "platform/base/app.h"
#include "platform/headless/headless_display.h"
#include "tests/support/fake_ui_services.h"

namespace pvw {
namespace {

using platform::HWND;
using platform::ScopedBstr;
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
  void OnPaneLeaving(CPvwDebugInstanceDataCtrl& pane) override {
    static_cast<Pane&>(pane).fake.Begin("leave", static_cast<Pane&>(pane).name);
    if (leaving) leaving();
  }
  platform::LRESULT WindowProc(const platform::MSG& msg) override {
    if (msg.message == platform::WM_SETFONT && msg.wParam != 0) {
      shown = *reinterpret_cast<const platform::CFont*>(msg.lParam);
    }
    return CUiDebugCommandSink::WindowProc(msg);
  }
  void LoseFont() { m_font.Delete(); }
  platform::CFont shown;
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

TEST(CommandSink, StandsWithoutAHostAndWithOneThatGivesNoOwner) {
  Sink alone(nullptr, nullptr);
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

// What the host's format dialog gets and sets: one font, and two kinds of text of which it is offered one.
// Numbers that an operation leaves alone read -7.
class FormatViewTest : public testing::Test {
 protected:
  // Of the item, or of the current one.
  std::string Colours(const char* item) {
    std::int32_t fg = -7;
    std::int32_t bk = -7;
    const ScopedBstr name(item != nullptr ? item : "");
    EXPECT_EQ(item != nullptr ? client.GetItemColours(name.Get(), &fg, &bk)
                              : client.GetCurrentItemColours(0, &fg, &bk),
              0);
    return std::to_string(fg) + " on " + std::to_string(bk);
  }
  std::string Font() {
    ScopedBstr face;
    std::int32_t size = -7;
    const platform::Status status = client.GetFont(face.Receive(), &size);
    return std::to_string(status) + ": " + face.Text() + " " + std::to_string(size);
  }

  Sink view{nullptr, nullptr};
  IQFormatViewClient2& client = view;
};

TEST_F(FormatViewTest, OffersTheTextAloneAsAListOfVariantsByItsOwnFaces) {
  platform::ScopedVariant items;
  platform::VARIANT* list = items.Receive();
  ASSERT_EQ(client.GetFormatItems(list), 0);
  EXPECT_EQ(list->vt, 8200);
  ASSERT_EQ(platform::SafeArrayGetCount(list->parray), 1u);
  const platform::VARIANT* item = platform::SafeArrayVariantAt(list->parray, 0);
  ASSERT_NE(item, nullptr) << "not a list of plain strings";
  EXPECT_EQ(item->vt, platform::VT_BSTR);
  EXPECT_EQ(platform::BstrText(item->bstrVal), "Text");

  void* face = nullptr;
  EXPECT_EQ(client.QueryInterface(&IID_IQFormatViewClient, &face), 0);
  EXPECT_EQ(face, &client);
  EXPECT_EQ(client.QueryInterface(&IID_IQIOServer, &face), platform::E_NOINTERFACE);
  EXPECT_EQ(face, nullptr);
}

TEST_F(FormatViewTest, TheCurrentItemIsTheOneThatWasSetLast) {
  EXPECT_EQ(Colours(nullptr), "-7 on -7") << "none yet";
  for (const char* item : {"Text", "Selected Text", "text", ""}) {
    SCOPED_TRACE(item);
    client.SetSelectedTextColours(18, 17);
    EXPECT_EQ(Colours(nullptr), "18 on 17") << "the short forms name their item";
    const ScopedBstr name(item);
    EXPECT_EQ(client.SetItemColours(name.Get(), 3, 4), 0);
    EXPECT_EQ(Colours(item), *item == 'T' || *item == 'S' ? "3 on 4" : "-7 on -7");
    EXPECT_EQ(Colours(nullptr), Colours(item));
  }
}

TEST_F(FormatViewTest, AFontReplacesTheOneBeforeAndGoesToTheWindow) {
  const ScopedBstr face("Fixed");
  EXPECT_EQ(client.SetFont(face.Get(), 20), 0) << "before there is a window";
  EXPECT_EQ(Font(), "0: Fixed 20");

  ASSERT_TRUE(view.CreateSink());
  EXPECT_EQ(client.SetDefaultFont(face.Get(), -14), 0);
  EXPECT_EQ(Font(), "0: Fixed 14");
  EXPECT_EQ(view.shown.Get(), (platform::LOGFONT{-14, 0, 0, "Fixed"})) << "no width from the font before";
  EXPECT_EQ(client.SetFont(nullptr, std::numeric_limits<std::int32_t>::min()), 0);
  EXPECT_EQ(Font(), "0:  -2147483648");
  view.LoseFont();
  EXPECT_EQ(Font(), "1:  -7");
}

}  // namespace
}  // namespace pvw
