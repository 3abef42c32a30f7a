// A pane between its host, its rows and its frame: what a user on a whole host doesn't come by.

#include "platform/gui/controls.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "resources/ids.h"
#include "tests/view/pane_stage.h"
#include "view/drag_source.h"

namespace pvw::test {
namespace {

TEST_F(PaneStage, ADeepSelectionIsWalkedWithoutRecursion) {
  std::string selection = "{OLD?";
  for (int i = 0; i < 20000; ++i) selection += "{A?";
  selection += std::string(20001, '}');
  OpenView(selection);
  Pane(0).SaveState(store, "K");
  std::string text;
  store.ReadString("IOSelection IOWnd0", "", text);
  EXPECT_TRUE(text == selection);
}

TEST_F(PaneStage, ASelectionThatNoPaneHasOpenedIsSavedFromTheRecords) {
  const std::string selection = "{PORT?{PDATA?{TOP?}GONE?}OLD?{X?{Y?}}}";
  OpenView();
  ClosePane(1);
  data.ParseSelection(selection);
  data.ApplySelection();
  Pane(0).SaveState(store, "K");
  std::string text;
  store.ReadString("IOSelection IOWnd0", "", text);
  EXPECT_EQ(text, selection);
}

TEST_F(PaneStage, TheHostIsToldOfAPaneInOrder) {
  host.Ui().NameWindow(dock->window->GetHandle(), "dock");
  OpenView();
  std::string pane0;
  for (const std::string& line : host.Transcript()) {
    if (line.find("owner 1 ") != std::string::npos || line.find("owner 2 ") != std::string::npos) {
      pane0 += line + '\n';
    }
  }
  EXPECT_EQ(
      pane0,
      "AddPage dock window1 -1 \"All Register\" 0 0 owner 1 PvwIO\n"
      "AddPopupMenu window1 202 owner 1 PvwIO [32817 32826 32773 32819 32771 32774 32820 32821 32777 32778 "
      "32768 32769]\n"
      "AddCommandSink window1 owner 1 PvwIO\nAddCommandStrings of the module owner 1 PvwIO\n"
      "AddPaneToolbar dock 204 0 owner 1 PvwIO - - - - [32773 32771 32774]\n"
      "AddCommandSink window1 owner 2 PaneAccelerators\n"
      "AddPage none window1 0 \"\" 0 0 owner 2 PaneAccelerators\n"
      "AddCommandStrings of the module owner 2 PaneAccelerators\n")
      << "no resource library is loaded, so there are no keys";
  ClosePane(0), ClosePane(1);
  EXPECT_THAT(host.Ui().Live(), testing::IsEmpty());
  EXPECT_THAT(host.Ui().Owners(), testing::IsEmpty());
}

TEST_F(PaneStage, AHostWithoutServicesGetsItsPanesAllTheSame) {
  panes[0] = std::make_unique<CPvwIOInstanceCtrl>(&file, &data, 0, nullptr, nullptr, 0);
  panes[0]->SetFrame(&frame);
  ASSERT_TRUE(panes[0]->CreatePane(dock->window->GetHandle(), 0));
  for (const std::uint32_t command : {32817, 32777, 32778, 32768, 32769}) {
    EXPECT_TRUE(Pane(0).RouteCommand(command)) << command;
  }
  platform::CCmdUI customize(32778);
  EXPECT_TRUE(Pane(0).UpdateCommand(customize));
  EXPECT_FALSE(customize.IsEnabled());
}

TEST_F(PaneStage, TheSecondPaneOpensNothingWhileTheTargetRunsFindsWhatTheFileLacksAndLoadsNothingAlone) {
  OpenView("{TIMER?{TCNT?OLD?}}");
  host.target_running = platform::S_OK;
  Pane(1).RebuildTree();
  EXPECT_FALSE(Tree(1).IsExpanded(Row(1, "TIMER")));
  EXPECT_EQ(shown, "") << "nor is there a dialog";
  display.Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
    static_cast<platform::CComboBox&>(*dialog.GetDlgItem(13013)).PeerPicked(0);
    platform::user::TypeText("old");
    platform::user::PressOk(dialog);
  }}});
  EXPECT_TRUE(Pane(1).RouteCommand(32820));
  EXPECT_EQ(shown, "dialog: Find\n");
  EXPECT_EQ(Tree(1).GetSelectedItem(), Row(1, "TIMER/OLD"));
  ClosePane(0);
  EXPECT_TRUE(Pane(1).RouteCommand(32773));
  EXPECT_EQ(shown, "dialog: Find\n");
}

TEST(DropSource, ShowsWhatADropWouldDo) {
  struct CursorDisplay final : platform::HeadlessDisplay {
    CursorDisplay() : HeadlessDisplay(Unanswered::Fail) { platform::SetDisplay(this); }
    ~CursorDisplay() override { platform::SetDisplay(nullptr); }
    void SetDragCursor(const platform::PictureResource& cursor) override { cursors.push_back(cursor.id); }
    std::vector<std::uint32_t> cursors;
  } display;
  using platform::DragEffect;
  CCtrlDropSource copying(true);
  copying.Begin();
  for (const DragEffect effect : {DragEffect::None, DragEffect::Copy, DragEffect::Copy, DragEffect::None}) {
    copying.Feedback(effect);
  }
  CCtrlDropSource moving(false);
  moving.Feedback(DragEffect::Copy);
  EXPECT_THAT(display.cursors,
              testing::ElementsAre(IDC_DROP_NONE, IDC_DROP_COPY, IDC_DROP_NONE, IDC_DROP_MOVE))
      << "only when it differs";
}

}  // namespace
}  // namespace pvw::test
