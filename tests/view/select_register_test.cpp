// Select IO Register: how checks spread, and what becomes of them.

#include <string>

#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"
#include "view/check_rules.h"

namespace pvw::test {
namespace {

using platform::CDialog;
using platform::DialogAnswer;
using platform::DialogStep;
using platform::SECTreeCtrl;
using testing::HasSubstr;

TEST(CheckRules, ACheckSpreadsDownAndUp) {
  // A has B and C, B has x and y, C has z; D stands alone and N has no box.
  const struct {
    const char* name;
    std::string before;
    char row;
    std::string after;
  } kRows[] = {
      {"a field checks its register and its module", "", 'x', "ABx"},
      {"a register checks its fields and its module", "", 'B', "ABxy"},
      {"the last field takes its register and its module along", "ABx", 'x', ""},
      {"one of two fields leaves the register", "ABxy", 'x', "ABy"},
      {"the last field of one register leaves the other and the module", "ABxCz", 'x', "ACz"},
      {"a register takes its fields along and leaves its sibling", "ABxyCz", 'B', "ACz"},
      {"a module takes all below it along, and no other", "ABxyCzD", 'A', "D"},
  };
  const std::string kNames = "ABxyCzDN";
  for (const auto& row : kRows) {
    SECTreeCtrl tree;
    std::map<char, HTREEITEM> items;
    for (const char c : kNames) {
      const char above = c == 'x' || c == 'y' ? 'B' : c == 'z' ? 'C' : c == 'B' || c == 'C' ? 'A' : ' ';
      items[c] = tree.InsertItem(std::string(1, c), 0, above == ' ' ? platform::kTreeRoot : items[above]);
      if (c != 'N') tree.SetItemCheck(items[c], row.before.find(c) != std::string::npos);
    }
    const auto checked = [&] {
      std::string names;
      for (const char c : kNames) names += tree.GetItemCheck(items[c]) ? std::string(1, c) : "";
      return names;
    };
    ToggleCheckOf(tree, items[row.row]);
    EXPECT_EQ(checked(), row.after) << row.name;
    EXPECT_EQ(tree.GetSelectedItem(), items[row.row]) << row.name;
    SetAllChecks(tree, true);
    EXPECT_EQ(checked(), "ABxyCzD");
    EXPECT_FALSE(tree.GetItemHasCheck(items['N']));
    SetAllChecks(tree, false);
    EXPECT_EQ(checked(), "");
  }
}

class SelectRegisterTest : public PaneStage {
 protected:
  static SECTreeCtrl& TreeOf(CDialog& dialog) { return static_cast<SECTreeCtrl&>(*dialog.GetDlgItem(13006)); }
  static HTREEITEM RowOf(CDialog& dialog, const std::string& path) {
    SECTreeCtrl& tree = TreeOf(dialog);
    const HTREEITEM item = PaneStage::RowIn(tree, path);
    for (HTREEITEM above = tree.GetParentItem(item); above != 0; above = tree.GetParentItem(above)) {
      tree.Expand(above, platform::TVE_EXPAND);
    }
    return item;
  }
  static DialogStep Click(const std::string& path, platform::UINT part) {
    return [=](CDialog& dialog) {
      const HTREEITEM row = RowOf(dialog, path);
      platform::user::Click(TreeOf(dialog), TreeOf(dialog).GetPartPoint(row, part));
    };
  }
  static DialogStep Tick(const std::string& path) { return Click(path, platform::TVHT_ONITEMCHECK); }
  static DialogStep Space(const std::string& path) {
    return [=](CDialog& dialog) {
      TreeOf(dialog).SelectItem(RowOf(dialog, path));
      platform::user::PressKey(platform::VK_SPACE);
    };
  }
  static DialogStep Press(platform::UINT button) {
    return [=](CDialog& dialog) { platform::user::ClickControl(*dialog.GetDlgItem(button)); };
  }
  void Select(std::size_t pane, std::vector<DialogStep> steps) {
    display.Give(DialogAnswer{std::move(steps)});
    EXPECT_TRUE(Pane(pane).RouteCommand(32819));
  }

  static constexpr platform::UINT kOk = 13007, kCancel = 13008, kCheckAll = 13016, kUncheckAll = 13017;
};

TEST_F(SelectRegisterTest, WhatIsCheckedByMouseAndKeyIsWhatTheSecondPaneShows) {
  OpenView("{OLD?{X?}TIMER?{TCNT?GONE?}}");
  const std::string before = Rows(0);
  Select(0, {Click("PORT/PDATA/TOP", platform::TVHT_ONITEMLABEL),
             Click("PORT/PDATA/TOP", platform::TVHT_ONITEMICON), Tick("PORT/PDATA/LOW"), Space("OLD/X"),
             Space("TIMER/TCNT"), Press(kOk)});
  EXPECT_EQ(shown, "dialog: Select IO Register\ndialog: Loading...\n");
  EXPECT_EQ(Rows(1),
            "[-] 1 PORT\n  [-] 1 PDATA | H'00FF0010 | 10 | RW\n    [ ] 2 LOW |  | 0 | RW\n"
            "[-] 1 TIMER\n  [ ] 3 GONE\n");
  EXPECT_EQ(Rows(0), before) << "its rows are made when they are next filled";
  EXPECT_TRUE(Record("TIMER").GetChildren()[1]->IsMissing());

  shown.clear();
  Select(1, {Press(kUncheckAll), Press(kOk)});
  EXPECT_EQ(Rows(1), "");
  EXPECT_EQ(shown, "dialog: Select IO Register\n") << "there is nothing to open";

  Select(1, {Press(kCheckAll), Press(kOk)});
  ClosePane(0);
  EXPECT_EQ(Rows(1),
            "[-] 1 PORT\n  [-] 1 PDATA | H'00FF0010 | 10 | RW\n    [ ] 2 LOW |  | 0 | RW\n"
            "    [ ] 2 TOP |  | 0 | RW\n  [ ] 2 null | H'00FF0011 | 11 | RW\n[-] 1 TIMER\n"
            "  [ ] 2 TCNT | H'00FF0020 | 20 | RW\n  [ ] 3 GONE\n[-] 3 OLD\n  [ ] 3 X\n");
}

TEST_F(SelectRegisterTest, AModuleThatCannotBeReadHasNoBoxAndLeavesTheSelectionEvenWhenItIsCancelled) {
  dir.Write("device.io",
            "[Modules]\nFileVersion=2\nModule1=BAD\nModule2=PORT\n[BAD]\n"
            "[PORT]\nreg0=P0\n[P0]\nid=PDATA 0xFF0010 B A H\n");
  OpenView();
  Record("BAD").SetSelected(true);
  Record("PORT").SetSelected(true);
  bool boxed = true;
  Select(0, {Space("BAD"),
             [&](CDialog& dialog) { boxed = TreeOf(dialog).GetItemHasCheck(RowOf(dialog, "BAD")); },
             Tick("PORT"), Press(kCancel)});
  EXPECT_THAT(shown,
              testing::MatchesRegex("message \\[stop\\]: [^\n]*BAD[^\n]*\ndialog: Select IO Register\n"));
  EXPECT_FALSE(boxed);
  EXPECT_FALSE(Record("BAD").IsSelected());
  EXPECT_TRUE(Record("PORT").IsSelected());
  EXPECT_EQ(Rows(1), "") << "not rebuilt";
  EXPECT_TRUE(Record("PORT").AreChildrenKnown());
}

TEST_F(SelectRegisterTest, CheckAllShowsNoModuleWithoutRegistersAndNothingWithTheSecondPaneClosed) {
  dir.Write("device.io", "[Modules]\nFileVersion=1\nModule1=EMPTY\nModule2=M\n[M]\nR=10\n");
  OpenView();
  Select(0, {Press(kCheckAll), Press(kOk)});
  EXPECT_THAT(Rows(1), testing::StartsWith("[-] 1 M\n"));
  EXPECT_FALSE(Record("EMPTY").IsSelected());
  ClosePane(1);
  shown.clear();
  Select(0, {Press(kUncheckAll), Press(kOk)});
  EXPECT_FALSE(Record("M").IsSelected()) << "the flags are set all the same";
  EXPECT_EQ(shown, "dialog: Select IO Register\n");
}

TEST_F(SelectRegisterTest, ItEndsCancelledWhenItsRecordsGo) {
  OpenView("{PORT?}");
  Select(1, {[&](CDialog&) { Pane(0).LoadIOFile(dir.Path("device.io"), 0); }});
  EXPECT_TRUE(Record("PORT").IsSelected());
  Select(1, {[&](CDialog&) { ClosePane(1); }});
  Select(0, {[&](CDialog&) {
           ClosePane(0);
           data.DeleteModules();
         }});

  // In the midst of the reading of the file.
  dir.Write("device.io", "[Modules]\nFileVersion=2\nModule1=BAD\nModule2=PORT\n[BAD]\n");
  OpenView();
  meanwhile = [&] { ClosePane(0); };
  EXPECT_TRUE(Pane(0).RouteCommand(32819));
  EXPECT_THAT(shown, HasSubstr("message [stop]"));
}

}  // namespace
}  // namespace pvw::test
