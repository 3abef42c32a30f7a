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

TEST_F(TreeGridStateTest, AGridOfOneColumnAndOneWithoutSettingsKeepNoWidths) {
  CTreeGridCtrl one;
  one.SaveColumnWidths(settings, "S");
  one.LoadColumnWidths(settings, "S");
  tree.SaveColumnWidths(nullptr, "S");
  tree.LoadColumnWidths(nullptr, "S");
  EXPECT_THAT(host.Transcript(), testing::IsEmpty());
}

}  // namespace
}  // namespace pvw::test
