#include <sstream>

#include "platform/gui/tree_layout.h"
#include "tests/platform/gui/tree_stage.h"

namespace platform {
namespace {

class TreePaint : public TreeStage {
 public:
  TreePaint() {
    MakeGrid();
    Fill("-PORT\n  -DATA|1000|FF|RW\n    BIT0|0|1\n    BIT1\n  DIR\nTIMER\n");
  }
  std::string PaintedRow(const std::string& name) {
    const RECT cell = tree.GetCellRect(Item(name), 0);
    return PaintedText(tree, cell.top, cell.bottom);
  }
  std::string Lines(const std::string& name) {
    std::istringstream in(PaintedRow(name));
    std::string text;
    for (std::string line; std::getline(in, line);) text += line.starts_with("dots") ? line + '\n' : "";
    return text;
  }
  // What is behind the lines: "[LEFT-RIGHT COLOUR" for what is filled, with the text in it as "|TEXT COLOUR",
  // and "]".
  std::string CellsOf(const std::string& name) {
    std::istringstream in(PaintedRow(name));
    std::string cells;
    std::string kind;
    std::getline(in, kind);  // the first cell's ground
    for (std::string colour, text; in >> kind;) {
      char comma = 0;
      RECT r;
      in >> r.left >> comma >> r.top >> comma >> r.right >> comma >> r.bottom;
      const std::string place = std::to_string(r.left) + '-' + std::to_string(r.right);
      if (kind == "fill") in >> colour, cells += (cells.empty() ? "[" : "] [") + place + ' ' + colour;
      if (kind == "text") in >> colour >> text, cells += '|' + text.substr(1, text.size() - 2) + ' ' + colour;
      if (kind == "focus") cells += "|focus";
      std::getline(in, text);
    }
    return cells + ']';
  }
};

TEST_F(TreePaint, LinesRunPastTheRowsBelow) {
  const std::string kLastBit =
      "dots 48,79,59,80\ndots 48,71,49,79\ndots 28,71,29,87\n";  // the last is DATA's, to DIR
  EXPECT_EQ(Lines("BIT1"), kLastBit) << "no line goes on from a last child";
  EXPECT_EQ(Lines("PORT"), "dots 8,27,19,28\ndots 28,35,29,36\n") << "the first row has nothing above";
  EXPECT_EQ(Lines("TIMER"), "dots 8,113,19,114\n") << "without lines at the root";
  tree.SetTreeStyle(tree.GetTreeStyle() | SECTreeCtrl::kLinesAtRoot);
  EXPECT_EQ(Lines("BIT1"), kLastBit + "dots 8,71,9,87\n");
  tree.SetTreeStyle(SECTreeCtrl::kHasButtons);
  EXPECT_EQ(Lines("BIT1"), "");
  EXPECT_NE(PaintedRow("TIMER").find("image 20,104"), std::string::npos) << "the indent stays";
}

TEST_F(TreePaint, TheSelectionIsColouredByFocusAndStyle) {
  tree.SelectItem(Item("BIT0"));
  EXPECT_EQ(CellsOf("BIT0"),
            "[76-200 F0F0F0|BIT0 000000] [200-300 F0F0F0|0 000000] [300-400 F0F0F0|1 000000] [400-500 "
            "F0F0F0] [500-520 FFFFFF]");
  FocusTree();
  tree.EditCell(Item("BIT0"), 2);
  EXPECT_TRUE(CellsOf("BIT0").ends_with("[300-400 D77800] [400-500 D77800] [500-520 FFFFFF]"))
      << "the cell being edited has no text";
  tree.EndEdit();
  tree.SetColours(0x112233, 0x445566);
  tree.SetGridStyle(0);  // the label alone, with the focus around it
  EXPECT_EQ(CellsOf("BIT0"),
            "[76-106 D77800|BIT0 FFFFFF|focus] [200-300 445566|0 112233] [300-400 445566|1 112233] [400-500 "
            "445566] [500-520 445566]");
}

TEST_F(TreePaint, HiddenNarrowAndScrolledColumns) {
  tree.SetColumnWidth(1, 0);
  EXPECT_EQ(CellsOf("BIT0"),
            "[76-200 FFFFFF|BIT0 000000] [200-300 FFFFFF|1 000000] [300-400 FFFFFF] [400-520 FFFFFF]");
  EXPECT_TRUE(
      PaintedText(tree, 0, 19).starts_with("header 0,0,200,19 \"Name\"\nheader 200,0,300,19 \"Value\"\n"));
  tree.SetColumnWidth(0, 62);  // ends within the picture
  EXPECT_TRUE(CellsOf("BIT0").starts_with("[62-162 FFFFFF"));
  tree.SetColumnWidth(0, 400);
  tree.SetColumnWidth(1, 300);
  tree.SetScrollPos(false, 250);
  EXPECT_EQ(CellsOf("BIT0"),
            "[-174-150 FFFFFF|BIT0 000000] [150-450 FFFFFF|0 000000] [450-550 FFFFFF|1 000000]");
}

TEST_F(TreePaint, OneColumnWithBoxesAsInADialog) {
  tree.SetGridStyle(0);
  tree.SetHeaderShown(false);
  tree.SetItemCheck(Item("PORT"), true);
  tree.SetItemImage(Item("PORT"), 9);
  tree.SetItemCheck(Item("DIR"), false);
  tree.SetItemImage(Item("DIR"), -1);
  EXPECT_EQ(PaintedRow("PORT"),
            "fill 0,0,520,17 FFFFFF\ndots 8,8,19,9\ndots 28,16,29,17\nbox 4,4,13,13 \"-\"\n"
            "check 20,2,33,15 \"x\"\nimage 37,0,53,16 \"0\"\n"  // there is no picture 9
            "fill 53,0,83,17 FFFFFF\ntext 56,1,80,18 000000 \"PORT\"\n");
  EXPECT_EQ(CellsOf("DIR"), "[57-81 FFFFFF|DIR 000000]");
  EXPECT_EQ(PaintedText(tree, 102, 206), "fill 0,102,520,206 FFFFFF\n") << "below the rows";
}

TEST(TreeText, OneLineOf259WholeCharactersWithoutTabs) {
  using tree_layout::ShownText;
  EXPECT_EQ(ShownText("one\r\ntwo"), "one");
  EXPECT_EQ(ShownText("a\tb\t\tc"), "a       b               c");
  EXPECT_EQ(ShownText(std::string(258, 'x') + "\xC3\x9Cx"), std::string(258, 'x') + "\xC3\x9C");
}

}  // namespace
}  // namespace platform
