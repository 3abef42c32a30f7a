// A pane's window below what it shows, in a dockable window of a host.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "component/instance/debug_instance_data_ctrl.h"
#include "host/ids.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/recording_dc.h"
#include "tests/support/fake_ui_services.h"

namespace pvw {
namespace {

using platform::CreateParams;
using platform::CWnd;
using platform::HWND;
using platform::LPARAM;
using test::FakeHost;
using testing::ElementsAre;
using testing::IsEmpty;

class Pane final : public CPvwDebugInstanceDataCtrl {
 public:
  Pane(IQComponentHost* component_host, CUiRegistrar* registrar)
      : CPvwDebugInstanceDataCtrl(component_host, registrar, 5) {}

  std::uint32_t MenuOwner() const { return menuOwnerId; }
  std::uint32_t AcceleratorOwner() const { return acceleratorOwnerId; }
  const platform::LOGFONT& Font() const { return font.Get(); }
  std::vector<bool> Held() const {
    return {hostFrame != nullptr, numberFormat != nullptr, hostCommon != nullptr, settings != nullptr,
            hostExtra != nullptr};
  }
  bool HasDebugger() const { return debugger != nullptr; }
};

class InstanceDataCtrlTest : public testing::Test {
 protected:
  InstanceDataCtrlTest() {
    platform::SetDisplay(&display);
    HWND window = 0;
    registrar.FindDockableWindow("{ID}", "IO", nullptr, 0x1086, 0xE81E, &window, nullptr);
    dock = host.Ui().Dock("{ID}");
    pane = std::make_unique<Pane>(&host, &registrar);
    EXPECT_TRUE(pane->CreatePane(window, 0x123));
    host.ClearTranscript();
  }
  ~InstanceDataCtrlTest() override {
    pane->DestroyPane();
    pane.reset();
    // The host's own windows go before their display.
    if (host.Ui().Dock("{ID}") != nullptr) host.Ui().DestroyDock(dock->window->GetHandle());
    platform::SetDisplay(nullptr);
  }

  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Fail};
  FakeHost host;
  CUiRegistrar registrar{&host};
  test::FakeDockWindow* dock = nullptr;
  std::unique_ptr<Pane> pane;
};

TEST(InstanceDataCtrl, AsksForItsServicesAndOwnersAndGivesTheOwnersBack) {
  FakeHost host;
  CUiRegistrar registrar(&host);
  host.ClearTranscript();
  const int alive = CPvwInstanceDataCtrl::GetLiveCount();
  {
    const CPvwInstanceDataCtrl pane(&host, &registrar, 0);
    EXPECT_THAT(host.Transcript(), ElementsAre("QueryInterface IQHostFrame", "GetService IQNumberFormat",
                                               "GetService IQHostCommon", "GetService IQSettings",
                                               "GetService IQHostExtra", "AllocOwnerId", "AllocOwnerId"));
    EXPECT_EQ(CPvwInstanceDataCtrl::GetLiveCount(), alive + 1);
    host.ClearTranscript();
  }
  EXPECT_THAT(host.Transcript(), ElementsAre("FreeOwnerId 1", "FreeOwnerId 2"));
  EXPECT_THAT(host.Ui().Owners(), IsEmpty());
  EXPECT_EQ(CPvwInstanceDataCtrl::GetLiveCount(), alive);
}

TEST(InstanceDataCtrl, StandsWithAHostThatLacksAnyOneThing) {
  const platform::GUID kServices[] = {IID_IQHostFrame, IID_IQNumberFormat, IID_IQHostCommon, IID_IQSettings,
                                      IID_IQHostExtra};
  for (std::size_t i = 0; i < std::size(kServices); ++i) {
    for (const bool as_null : {false, true}) {
      FakeHost host;
      as_null ? host.GiveNull(kServices[i]) : host.Lack(kServices[i]);
      std::vector<bool> held(5, true);
      held[i] = false;
      EXPECT_EQ(Pane(&host, nullptr).Held(), held) << platform::GuidText(kServices[i]);
    }
  }
  Pane alone(nullptr, nullptr);
  EXPECT_EQ(alone.Held(), std::vector<bool>(5, false));
  alone.ReleaseHostUi();
  ASSERT_TRUE(alone.CreatePane(0, 0));
  alone.OnAllowDocking();
  alone.OnHideWindow();
  EXPECT_EQ(alone.Send(platform::WM_HELP), 0);
  alone.DestroyPane();

  FakeHost host;
  CUiRegistrar registrar(&host);
  host.FailNext("AllocOwnerId");
  { EXPECT_EQ(Pane(&host, &registrar).MenuOwner(), 0u); }
  EXPECT_THAT(host.Asked("FreeOwnerId"), ElementsAre("FreeOwnerId 1"))
      << "what it never got it doesn't give back";
}

TEST_F(InstanceDataCtrlTest, IsAShownChildOfTheHostsWindowWithTheFramesAsOwner) {
  EXPECT_EQ(pane->GetStyle(), platform::WS_CHILD | platform::WS_VISIBLE);
  EXPECT_EQ(pane->GetParent(), dock->window.get());
  EXPECT_EQ(pane->GetOwner(), 0x123u);
  EXPECT_EQ(pane->GetId(), 1u);
  EXPECT_TRUE(pane->GetRect().IsEmpty());
  EXPECT_TRUE(pane->HasDebugger());
  EXPECT_FALSE(Pane(&host, &registrar).CreatePane(0xDEAD00000001, 0)) << "a parent that isn't there";

  pane->ChangeFlags(2, true);
  pane->ChangeFlags(1, false);
  EXPECT_EQ(pane->GetFlags(), 6u) << "of the 5 that it was made with";
  EXPECT_EQ(pane->TestFlags(12), 4u);
}

TEST_F(InstanceDataCtrlTest, TakesBackAllThatItsOwnersHaveRegistered) {
  registrar.AddCommandSink(pane->MenuOwner(), CLSID_PvwIO, pane->GetHandle());
  registrar.AddPage(dock->window->GetHandle(), pane->GetHandle(), -1, "All", pane->MenuOwner(), CLSID_PvwIO);
  registrar.SetAcceleratorWindow(pane->GetHandle(), pane->AcceleratorOwner(), CLSID_PaneAccelerators);
  registrar.AddCommandSink(999, CLSID_PvwIO, pane->GetHandle());

  pane->ReleaseHostUi();
  EXPECT_THAT(host.Ui().Live(), ElementsAre("sink window1 owner 999"));
  EXPECT_EQ(host.Ui().Dock("{ID}"), nullptr) << "the host's window went with its last page";
  EXPECT_FALSE(pane->Exists()) << "and the pane's in it";
  pane->ReleaseHostUi();
}

TEST_F(InstanceDataCtrlTest, ItsFirstChildFillsIt) {
  CWnd tree;
  CWnd second;
  CreateParams params;
  params.style = platform::WS_CHILD;
  params.parent = pane->GetHandle();
  ASSERT_TRUE(tree.Create(params) && second.Create(params));
  pane->MoveWindow({10, 20, 310, 220});
  EXPECT_EQ(tree.GetRect(), (platform::RECT{0, 0, 300, 200}));
  EXPECT_TRUE(tree.IsVisible());
  EXPECT_TRUE(second.GetRect().IsEmpty());
  EXPECT_FALSE(second.IsVisible());

  tree.DestroyWindow();
  second.DestroyWindow();
}

TEST_F(InstanceDataCtrlTest, DocksAndHidesTheHostsWindow) {
  EXPECT_TRUE(pane->RouteCommand(39532));
  EXPECT_TRUE(pane->RouteCommand(39533));
  EXPECT_THAT(host.Transcript(), ElementsAre("SetDockState dock1 32", "SetDockState dock1 1"));

  struct Row {
    std::uint32_t state;
    bool checked;
  };
  for (const Row& row : {Row{0, true}, Row{8, false}, Row{16, true}, Row{24, true}, Row{0xFFFFFFEF, false}}) {
    dock->state = row.state;
    platform::CCmdUI ui(39532);
    EXPECT_TRUE(pane->UpdateCommand(ui));
    EXPECT_TRUE(ui.IsEnabled());
    EXPECT_EQ(ui.IsChecked(), row.checked) << row.state;
  }
  dock->state = 8;
  host.FailNext("GetDockState");
  platform::CCmdUI unknown(39532);
  pane->UpdateCommand(unknown);
  EXPECT_TRUE(unknown.IsChecked()) << "a host that doesn't know";
}

TEST_F(InstanceDataCtrlTest, ShiftF1PointsAtSomethingAndF1AloneIsntServedWithoutAHelpFile) {
  struct Asked final : CWnd {
    platform::LRESULT WindowProc(const platform::MSG& msg) override {
      if (msg.message == platform::WM_HELP) result = GetParent()->Send(msg.message, msg.wParam, msg.lParam);
      return msg.message == platform::WM_HELP ? 1 : CWnd::WindowProc(msg);
    }
    platform::LRESULT result = -1;
  } tree;
  CreateParams params;
  params.parent = pane->GetHandle();
  ASSERT_TRUE(tree.Create(params));
  platform::SetFocus(tree.GetHandle());

  platform::gui::Input(
      {tree.GetHandle(), platform::WM_KEYDOWN, platform::VK_F1, 0, nullptr, platform::MK_SHIFT});
  EXPECT_EQ(tree.result, 1);
  EXPECT_TRUE(platform::gui::RunPending()) << "the request to point comes when the key is done with";
  platform::gui::Input({tree.GetHandle(), platform::WM_KEYDOWN, platform::VK_F1, 0, nullptr, 0});
  EXPECT_EQ(tree.result, 0);
  EXPECT_FALSE(platform::gui::RunPending());
  tree.DestroyWindow();
}

TEST_F(InstanceDataCtrlTest, ErasesInTheWindowsColourAndMeasuresByItsFont) {
  platform::RecordingDC dc({5, 6, 70, 80});
  platform::CDC& surface = dc;
  EXPECT_NE(pane->Send(platform::WM_ERASEBKGND, 0, reinterpret_cast<LPARAM>(&surface)), 0);
  EXPECT_THAT(dc.GetLines(), ElementsAre("fill 5,6,70,80 FFFFFF"));

  EXPECT_EQ(pane->Font(), (platform::LOGFONT{11, 8, 0, "Courier New"}));
  platform::MEASUREITEM measure;
  pane->Send(platform::WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
  EXPECT_EQ(measure.itemHeight, 11u);
}

}  // namespace
}  // namespace pvw
