// The rows of the two panes: how they are filled, opened, closed, kept and saved.

#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

const std::string kOpenPort =
    "[-] 1 PORT\n  [+] 0 PDATA | H'00FF0010 | 10 | RW\n  [ ] 2 null | H'00FF0011 | 11 | RW\n";

TEST_F(PaneStage, AModuleIsFilledWhenItIsOpenedAndItsRegistersNeedNoFileThen) {
  OpenView();
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
  EXPECT_EQ(Rows(1), "") << "nothing is selected";

  EXPECT_TRUE(Open(0, "PORT"));
  EXPECT_EQ(Rows(0), kOpenPort + "[+] 0 TIMER\n");
  EXPECT_TRUE(frame.dirty);
  dir.Delete("device.io");
  host.Poke(0xFF0010, {0x80});
  host.ClearTranscript();
  EXPECT_TRUE(Open(0, "PORT/PDATA"));
  EXPECT_EQ(Rows(0),
            "[-] 1 PORT\n  [-] 1 PDATA | H'00FF0010 | 80 | RW\n    [ ] 2 LOW |  | 0 | RW\n"
            "    [ ] 2 TOP |  | 1 | RW\n  [ ] 2 null | H'00FF0011 | 11 | RW\n[+] 0 TIMER\n")
      << "read at once, and not red";
  EXPECT_EQ(host.Asked("Read").size(), 1u) << "fields are cut out of their register";

  EXPECT_TRUE(Close(0, "PORT"));
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
}

TEST_F(PaneStage, ARowThatFindsNothingBelowItBecomesAPage) {
  dir.Write("device.io", "[Modules]\nFileVersion=1\nModule1=EMPTY\nModule2=M\n[M]\nnull=10\n");
  OpenView();
  EXPECT_EQ(Rows(0), "[+] 0 EMPTY\n[+] 0 M\n");
  EXPECT_FALSE(Open(0, "EMPTY"));
  EXPECT_FALSE(Record("EMPTY").IsExpanded()) << "it isn't open in any pane";
  EXPECT_TRUE(Open(0, "M"));
  EXPECT_TRUE(Close(0, "M"));
  EXPECT_TRUE(Pane(0).HasRealChildren(Row(0, "M"))) << "a register may be called like the stand-in row";
  EXPECT_TRUE(Open(0, "M"));
  EXPECT_THAT(Rows(0), testing::HasSubstr("[-] 1 M\n  [ ] 2 null |"));
  EXPECT_THAT(Rows(0), testing::StartsWith("[ ] 2 EMPTY\n"));
}

TEST_F(PaneStage, TheSecondPaneShowsTheSelectionAndWhatTheFileLacks) {
  OpenView("{PORT?{PDATA?GONE?{BIT?}}OLD?{X?}TIMER?{ALSO?}}");
  EXPECT_EQ(Rows(1), "[+] 0 PORT\n[+] 0 TIMER\n[+] 3 OLD\n");
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
  Pane(1).RebuildTree();
  EXPECT_EQ(Rows(1),
            "[-] 1 PORT\n  [ ] 0 PDATA | H'00FF0010 | 10 | RW\n  [-] 3 GONE\n    [ ] 3 BIT\n"
            "[-] 1 TIMER\n  [ ] 3 ALSO\n[-] 3 OLD\n  [ ] 3 X\n");
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n") << "the first pane never shows a missing one";
  EXPECT_TRUE(Open(0, "PORT"));
  EXPECT_EQ(Rows(0), kOpenPort + "[+] 0 TIMER\n") << "known by now, and no row stands for it any more";

  for (const auto& child : Record("TIMER").GetChildren()) child->SetSelected(false);
  host.target_running = platform::S_OK;
  Pane(1).RebuildTree();
  EXPECT_THAT(Rows(1), testing::StartsWith("[+] 0 PORT\n[+] 3 OLD\n")) << "none opens while the target runs";
  EXPECT_FALSE(Record("TIMER").IsSelected());
}

TEST_F(PaneStage, ARecordCountsAsOpenWhileSomePaneShowsItOpen) {
  OpenView("{PORT?{PDATA?}}");
  ASSERT_TRUE(Open(0, "PORT"));
  ASSERT_TRUE(Open(1, "PORT"));
  Pane(1).RebuildTree();
  ASSERT_TRUE(Close(0, "PORT"));
  EXPECT_TRUE(Record("PORT").IsExpanded());
  ASSERT_TRUE(Close(1, "PORT"));
  EXPECT_FALSE(Record("PORT").IsExpanded());

  ASSERT_TRUE(Open(1, "PORT"));
  Pane(1).ReleaseExpandCounts();
  Pane(1).ReleaseExpandCounts();
  EXPECT_FALSE(Close(1, "PORT"));
  ASSERT_TRUE(Open(0, "PORT"));
  EXPECT_TRUE(Record("PORT").IsExpanded()) << "taken back once";
  ClosePane(0);
  EXPECT_FALSE(Record("PORT").IsExpanded());
  EXPECT_TRUE(Pane(1).RouteCommand(32817)) << "the other pane doesn't know it any more";
}

TEST_F(PaneStage, ALockedViewRefusesToOpenAndToClose) {
  OpenView();
  ASSERT_TRUE(Open(0, "PORT"));
  frame.dirty = false;
  frame.locked = true;
  EXPECT_FALSE(Close(0, "PORT"));
  EXPECT_FALSE(Open(0, "TIMER"));
  EXPECT_EQ(Rows(0), kOpenPort + "[+] 0 TIMER\n");
  EXPECT_FALSE(frame.dirty);
}

TEST_F(PaneStage, TheSelectionIsSavedFromTheRowsOrElseFromTheRecords) {
  const auto saved = [&] {
    Pane(0).SaveState(store, "IOWnd0");
    std::string text;
    store.ReadString("IOSelection IOWnd0", "none", text);
    return text;
  };
  OpenView();
  EXPECT_EQ(saved(), "");
  ClosePane(0), ClosePane(1);
  data.DeleteModules();

  const std::string selection = "{PORT?{PDATA?{TOP?}}OLD?{X?{Y?}}}";
  OpenView(selection);
  EXPECT_EQ(saved(), selection);
  host.session.clear();
  Pane(1).SaveState(store, "IOWnd1");
  for (const auto& [key, value] : host.session) EXPECT_EQ(key.find("IOSelection"), std::string::npos) << key;
  ClosePane(1);
  EXPECT_EQ(saved(), selection);
  ClosePane(0);

  // Never opened by a pane: what is below comes from the selection that was loaded.
  data.DeleteModules(), data.DeleteSelection();
  OpenView();
  ClosePane(1);
  data.ParseSelection(selection);
  data.ApplySelection();
  EXPECT_EQ(saved(), selection);
}

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

TEST_F(PaneStage, AStateOfASessionOpensRowsUnlessTheFileWasMissing) {
  OpenView();
  ASSERT_TRUE(Open(0, "PORT"));
  Pane(0).SaveState(store, "IOWnd0");
  ASSERT_TRUE(Close(0, "PORT"));
  Pane(0).SetStateValid(false);
  Pane(0).LoadState(store, "IOWnd0");
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
  Pane(0).SetStateValid(true);
  Pane(0).LoadState(store, "IOWnd0");
  EXPECT_EQ(Rows(0), kOpenPort + "[+] 0 TIMER\n");
}

TEST_F(PaneStage, WidthsAreTheUsersSettings) {
  host.setting_numbers["CPvwIOInstanceCtrl/ColWidth1"] = 55;
  OpenView();
  EXPECT_EQ(Tree(0).GetColumnWidth(0), 200);
  EXPECT_EQ(Tree(0).GetColumnTitle(3), "Access");
  EXPECT_EQ(Tree(0).GetColumnWidth(3), 100);
  Tree(0).SetColumnWidth(2, 77);
  ClosePane(1), ClosePane(0);
  bool kept = false;
  for (const auto& [key, width] : host.setting_numbers) kept |= width == 77;
  EXPECT_TRUE(kept);
}

TEST_F(PaneStage, AFontOfAnySizeAndColoursOfAnyIndexAreSafe) {
  OpenView();
  const platform::RECT rect = dock->window->GetRect();
  const int line = Tree(0).GetLineHeight();
  for (const std::int32_t number : {0, -1, INT32_MIN, INT32_MAX}) {
    Pane(0).SetFont("Courier New", number);
    Pane(0).SetItemColours("Text", number, number);
    EXPECT_GT(Tree(0).GetLineHeight(), 4) << number;
  }
  Pane(0).SetFont("Courier New", 11);
  EXPECT_EQ(Tree(0).GetLineHeight(), line);
  EXPECT_EQ(Tree(0).GetRowFont().point_tenths, 110);
  EXPECT_EQ(dock->window->GetRect(), rect);
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

}  // namespace
}  // namespace pvw::test
