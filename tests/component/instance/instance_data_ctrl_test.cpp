// A pane's window below what it shows, in a dockable window of a host.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "component/instance/debug_instance_data_ctrl.h"
#include "host/ids.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/support/fake_ui_services.h"

namespace pvw {
namespace {

using platform::CWnd;
using test::FakeHost;
using testing::ElementsAre;

class Pane final : public CPvwDebugInstanceDataCtrl {
 public:
  Pane(IQComponentHost* component_host, CUiRegistrar* registrar)
      : CPvwDebugInstanceDataCtrl(component_host, registrar, 5) {}

  std::uint32_t MenuOwner() const { return menuOwnerId; }
  std::uint32_t AcceleratorOwner() const { return acceleratorOwnerId; }
};

class InstanceDataCtrlTest : public testing::Test {
 protected:
  InstanceDataCtrlTest() {
    platform::SetDisplay(&display);
    platform::HWND window = 0;
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

TEST(InstanceDataCtrl, StandsWithoutAHostAndGivesBackOnlyTheOwnersThatItGot) {
  const int alive = CPvwInstanceDataCtrl::GetLiveCount();
  Pane pane(nullptr, nullptr);
  EXPECT_EQ(CPvwInstanceDataCtrl::GetLiveCount(), alive + 1);
  pane.ReleaseHostUi();
  ASSERT_TRUE(pane.CreatePane(0, 0));
  pane.OnAllowDocking();
  pane.OnHideWindow();
  EXPECT_EQ(pane.Send(platform::WM_HELP), 0);
  pane.DestroyPane();

  FakeHost host;
  CUiRegistrar registrar(&host);
  host.FailNext("AllocOwnerId");
  { EXPECT_EQ(Pane(&host, &registrar).MenuOwner(), 0u); }
  EXPECT_THAT(host.Asked("FreeOwnerId"), ElementsAre("FreeOwnerId 1"));
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
  EXPECT_FALSE(pane->CreatePane(0xDEAD00000001, 0)) << "a parent that isn't there";
}

TEST_F(InstanceDataCtrlTest, IsDockableWhileItsWindowIsOrTheHostDoesntKnow) {
  const auto checked = [&](std::uint32_t state) {
    dock->state = state;
    platform::CCmdUI ui(39532);
    EXPECT_TRUE(pane->UpdateCommand(ui));
    return ui.IsChecked();
  };
  EXPECT_TRUE(checked(0));
  EXPECT_TRUE(checked(24));
  EXPECT_FALSE(checked(0xFFFFFFEF));
  host.FailNext("GetDockState");
  EXPECT_TRUE(checked(8)) << "a host that doesn't know";
}

TEST_F(InstanceDataCtrlTest, ShiftF1PointsAtSomethingAndF1AloneIsntServedWithoutAHelpFile) {
  struct Asked final : CWnd {
    platform::LRESULT WindowProc(const platform::MSG& msg) override {
      if (msg.message == platform::WM_HELP) result = GetParent()->Send(msg.message, msg.wParam, msg.lParam);
      return msg.message == platform::WM_HELP ? 1 : CWnd::WindowProc(msg);
    }
    platform::LRESULT result = -1;
  } tree;
  tree.Create({.parent = pane->GetHandle()});
  platform::SetFocus(tree.GetHandle());
  platform::user::PressKey(platform::VK_F1, platform::MK_SHIFT);
  EXPECT_EQ(tree.result, 1);
  EXPECT_TRUE(platform::gui::RunPending()) << "the request to point comes when the key is done with";
  platform::user::PressKey(platform::VK_F1);
  EXPECT_EQ(tree.result, 0);
  EXPECT_FALSE(platform::gui::RunPending());
  tree.DestroyWindow();
}

}  // namespace
}  // namespace pvw
