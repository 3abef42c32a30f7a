// What a grid keeps between two sessions: widths, open rows, scroll positions.

#include <gmock/gmock.h>

#include "tests/frame/controls/tree_grid_stage.h"

namespace pvw::test {
namespace {

using testing::ElementsAre;

class TreeGridStateTest : public TreeGridStage {
 protected:
  // The session as "KEY=VALUE" of the pane's keys.
  std::vector<std::string> Kept() const {
    std::vector<std::string> lines;
    for (const std::string& line : host.Asked("SetSessionValue ")) {
      std::string pair = line.substr(line.find('}') + 1);
      lines.push_back(pair.erase(pair.find(" = "), 1).erase(pair.find("= ") + 1, 1));
    }
    return lines;
  }
  void Keep(const std::string& key, std::int32_t value) { store.WriteInt(key, value); }
  void ToggleColumn(platform::UINT column) { tree.Send(platform::WM_COMMAND, column); }
};

TEST_F(TreeGridStateTest, ASessionKeepsWidthsThenOpenRowsThenPositions) {
  Fill("-A\n  -a\n    x\n  b\nB\n  -c\n    y\nC\n");
  ToggleColumn(2);
  tree.SetScrollPos(false, 30);
  tree.SetScrollPos(true, 1);
  EXPECT_EQ(tree.SaveState(store, "IOWnd0"), 0);
  EXPECT_THAT(Kept(), ElementsAre("IOWnd0ColWidth0=200", "IOWnd0ColWidth1=100", "IOWnd0ColWidth2=-100",
                                  "IOWnd0ColWidth3=100", "IOWnd0Exp0=1", "IOWnd0Exp1=1", "IOWnd0Exp2=0",
                                  "IOWnd0Exp3=0", "IOWnd0Exp4=0", "IOWnd0Exp5=0", "IOWnd0ScrollHorz=0",
                                  "IOWnd0ScrollVert=1"))
      << "c is open below a closed row; with a column hidden there is nothing to scroll to the side";

  tree.DeleteAllItems();
  SetWidths(tree, {50, 60, 70, 0});
  Fill("A\n  a\n    x\n  b\n-B\n  c\n    y\nC\n");
  EXPECT_EQ(tree.LoadState(store, "IOWnd0"), 0);
  EXPECT_EQ(Rows(), "-A -a x b B C");
  EXPECT_THAT(Widths(), ElementsAre(200, 100, 0, 100));
  EXPECT_EQ(tree.GetScrollPos(true), 1);
  ToggleColumn(2);
  EXPECT_EQ(tree.GetColumnWidth(2), 100) << "shown again with the width from before it was hidden";
}

TEST_F(TreeGridStateTest, SurvivesAnythingThatASessionHolds) {
  Fill("-A\n  a\nB\n  b\n");
  EXPECT_EQ(tree.LoadState(store, "IOWnd1"), 0);
  EXPECT_THAT(Widths(), ElementsAre(0, 0, 0, 0)) << "a width that is missing hides its column";
  EXPECT_EQ(Rows(), "A B") << "a row that is missing closes";
  EXPECT_EQ(tree.GetDumpText(), "[+]-- A\n[+]-- B\n");
  ToggleColumn(1);
  EXPECT_EQ(tree.GetColumnWidth(1), 1);

  struct Row {
    const char* name;
    std::int32_t stored;
    int width, shown_again;
    const char* kept;
  };
  const Row rows[] = {
      {"the lowest number", std::numeric_limits<std::int32_t>::min(), 0, 32767, "-2147483648"},
      {"the highest", std::numeric_limits<std::int32_t>::max(), 32767, 0, "32767"},
      {"hidden with a width wider than any", -40000, 0, 32767, "-40000"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Keep("KColWidth2", row.stored);
    Keep("KScrollVert", row.stored);
    Keep("KScrollHorz", row.stored);
    tree.LoadState(store, "K");
    EXPECT_EQ(tree.GetColumnWidth(2), row.width);
    EXPECT_GE(tree.GetScrollPos(true), 0);
    EXPECT_LE(tree.GetScrollPos(false), tree.GetScrollMax(false));
    host.ClearTranscript();
    tree.SaveState(store, "K");
    EXPECT_THAT(Kept(), testing::Contains(std::string("KColWidth2=") + row.kept));
    ToggleColumn(2);
    EXPECT_EQ(tree.GetColumnWidth(2), row.shown_again);
  }
}

TEST_F(TreeGridStateTest, TheOwnerMayRefuseARowOrDoAnythingWhileRowsOpen) {
  for (int row = 0; row < 9; ++row) Keep("KExp" + std::to_string(row), row == 2 ? 0 : 7);
  Fill("A\n  a\n    x\nB\n  b\n");
  opens = [&](HTREEITEM item) { return item != items["A"]; };
  tree.LoadState(store, "K");
  EXPECT_EQ(Rows(), "A -B b") << "A, a and x were numbered 0 to 2 all the same";
  opens = {};
  tree.Expand(items["A"], platform::TVE_EXPAND);
  EXPECT_EQ(Rows(), "-A -a x -B b");

  tree.DeleteAllItems();
  Fill("A\n  a\nB\n  b\nC\n  c\n");
  opens = [&](HTREEITEM item) {
    if (item == items["A"]) tree.InsertItem("new", -1, item);
    if (item == items["B"]) tree.DeleteItem(item);
    return true;
  };
  tree.LoadState(store, "K");
  EXPECT_EQ(Rows(), "-A a new C") << "the walk ends with the row that it stands on";

  opens = [&](HTREEITEM) { return tree.DestroyWindow(), true; };
  host.ClearTranscript();
  tree.LoadState(store, "K");
  EXPECT_THAT(host.Asked("GetSessionValue"), testing::Not(testing::Contains(testing::HasSubstr("Scroll"))));
}

TEST_F(TreeGridStateTest, SettingsKeepWidthsAlone) {
  SetWidths(tree, {210, 110, 0, 130});
  tree.SaveColumnWidths(settings, "S");
  EXPECT_THAT(host.Transcript(),
              ElementsAre("WriteSectionInt S/ColWidth0 = 210", "WriteSectionInt S/ColWidth1 = 110",
                          "WriteSectionInt S/ColWidth2 = 0", "WriteSectionInt S/ColWidth3 = 130"));

  host.setting_numbers = {{"S/ColWidth0", 220}, {"S/ColWidth1", -15}, {"S/ColWidth2", 33}};
  ToggleColumn(3);
  tree.LoadColumnWidths(settings, "S");
  EXPECT_THAT(Widths(), ElementsAre(220, 0, 33, 0));
  ToggleColumn(1);
  ToggleColumn(3);
  EXPECT_THAT(Widths(), ElementsAre(220, 15, 33, 130)) << "one without a value stays as it was";

  CTreeGridCtrl one;
  host.ClearTranscript();
  one.SaveColumnWidths(settings, "S");
  one.LoadColumnWidths(settings, "S");
  tree.SaveColumnWidths(nullptr, "S");
  tree.LoadColumnWidths(nullptr, "S");
  EXPECT_THAT(host.Transcript(), testing::IsEmpty()) << "one column, or no settings";
}

}  // namespace
}  // namespace pvw::test
