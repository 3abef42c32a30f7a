#include "tests/platform/gui/tree_stage.h"

namespace platform {
namespace {

class TreeCtrl : public TreeStage {};

TEST_F(TreeCtrl, OpeningAndClosingAsksTheOwnerOnceAndKeepsWhatIsBelow) {
  Fill("A\n  B\n    C\nD\n");
  EXPECT_TRUE(tree.Expand(Item("B"), TVE_EXPAND));  // under a closed row
  EXPECT_EQ(Rows(), "+A\n.D\n");
  EXPECT_TRUE(tree.Expand(Item("A"), TVE_EXPAND));
  EXPECT_FALSE(tree.Expand(Item("A"), TVE_EXPAND)) << "it is open";
  EXPECT_FALSE(tree.Expand(Item("D"), TVE_EXPAND)) << "it has no children";
  EXPECT_EQ(Story(), "TVN_ITEMEXPANDING B expand, TVN_ITEMEXPANDING A expand");
  Answer(TVN_ITEMEXPANDING, 1);
  EXPECT_FALSE(tree.Expand(Item("A"), TVE_COLLAPSE)) << "it was refused";
  Answer(TVN_ITEMEXPANDING, 0);
  tree.SelectItem(Item("C"));
  Story();
  tree.Expand(Item("A"), TVE_COLLAPSE);
  EXPECT_EQ(Story(), "TVN_ITEMEXPANDING A collapse, TVN_SELCHANGED A") << "a selection below goes to the row";
  EXPECT_EQ(Rows(), "+A<\n.D\n");
  tree.Expand(Item("A"), TVE_EXPAND);
  tree.SelectItem(0);
  EXPECT_EQ(Rows(), "-A\n  -B\n    .C\n.D\n");
  tree.DeleteItem(Item("C"));
  tree.InsertItem("E", 2, Item("B"));
  EXPECT_EQ(Rows(), "-A\n  +B\n.D\n") << "a row that loses its last child is closed";
}

TEST_F(TreeCtrl, TheOwnerMayChangeTheRowsWhileOneOpens) {
  struct Case {
    const char *name, *rows;
    bool opens;
    std::function<void()> change;
  };
  const auto drop = [&](const char* name) { tree.DeleteItem(Item(name)); };
  const auto fill = [&] { tree.InsertItem("B", 2, Item("A")); };
  const auto open = [&] { answers.clear(), tree.Expand(Item("A"), TVE_EXPAND); };
  const Case cases[] = {
      {"the placeholder gives way to a row", "-A\n  .B\n.Z\n", true, [&] { drop("null"), fill(); }},
      {"the placeholder goes and nothing comes", ".A\n.Z\n", false, [&] { drop("null"); }},
      {"the row itself goes", ".Z\n", false, [&] { drop("A"); }},
      {"all rows go", "", false, [&] { tree.DeleteAllItems(); }},
      {"the owner opens it itself", "-A\n  .null\n.Z\n", false, open},
      {"the window goes", "+A\n.Z\n", false, [&] { owner.DestroyWindow(); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Fill("A\n  null\nZ\n");
    Answer(TVN_ITEMEXPANDING, 0, c.change);
    EXPECT_EQ(tree.Expand(Item("A"), TVE_EXPAND), c.opens);
    EXPECT_EQ(Rows(), c.rows);
  }
}

TEST_F(TreeCtrl, AStaleRowFindsNothing) {
  Fill("A|text\n  B\nC\n");
  tree.SelectItem(Item("B"));
  tree.DeleteItem(Item("A"));
  EXPECT_EQ(tree.GetSelectedItem(), 0U);
  tree.InsertItem("D", 2);
  Story();
  for (const HTREEITEM gone : {Item("A"), HTREEITEM{0}, HTREEITEM{12345}, kTreeRoot}) {
    EXPECT_FALSE(tree.HasItem(gone));
    EXPECT_EQ(tree.GetItemText(gone, 1), "");
    EXPECT_EQ(tree.GetParentItem(gone) + tree.GetChildItem(gone) + tree.GetNextSiblingItem(gone), 0U);
    EXPECT_TRUE(tree.GetCellRect(gone, 0).IsEmpty());
    EXPECT_FALSE(tree.Expand(gone, TVE_EXPAND));
    EXPECT_FALSE(tree.EditCell(gone, 1));
    tree.SetItemText(gone, 0, "x");
    tree.DeleteItem(gone);
    tree.SelectItem(gone);
  }
  EXPECT_EQ(tree.InsertItem("x", 2, Item("A")), 0U);
  EXPECT_EQ(Rows(), ".C\n.D\n");
  EXPECT_EQ(Story(), "");
}

TEST_F(TreeCtrl, CellsAndColumnsHoldOddValues) {
  MakeGrid();
  Fill("A\n");
  tree.SetItemText(Item("A"), 3, tree.GetItemText(Item("A"), 0));
  EXPECT_EQ(tree.GetItemText(Item("A"), 3), "A") << "its own text, moved meanwhile";
  for (const int column : {-1, 1'000'000}) tree.SetItemText(Item("A"), column, "x");
  for (int i = 0; i < 30; ++i) tree.InsertColumn(99, "more", TextAlign::Left, 2147483647);
  EXPECT_EQ(tree.GetColumnCount(), SECTreeCtrl::kMostColumns);
}

TEST_F(TreeCtrl, ScrollPositionsStayInRange) {
  MakeGrid();  // 11 rows in view, columns of 500 in 520 pixels
  for (int i = 0; i < 20; ++i) tree.InsertItem("row", 2);
  tree.Send(WM_VSCROLL, 2147483647);
  EXPECT_EQ(tree.GetScrollPos(true), 9);
  tree.Send(WM_MOUSEWHEEL, 30);
  EXPECT_EQ(tree.GetScrollPos(true), 0);
  tree.EnsureVisible(tree.GetItemAtRow(15));
  EXPECT_EQ(tree.GetScrollPos(true), 5);
  tree.SetColumnWidth(1, 400);
  tree.Send(WM_HSCROLL, 1000);
  EXPECT_EQ(tree.GetScrollPos(false), 280);
  tree.MoveWindow({0, 0, 700, 20 + 17 * 19});
  EXPECT_EQ(tree.GetScrollPos(false), 100) << "a larger window leaves less to scroll";
  EXPECT_EQ(tree.GetScrollPos(true), 1);
}

TEST_F(TreeCtrl, RowsAsDeepAsTheyAreManyArePaintedAndDeleted) {
  MakeGrid();
  HTREEITEM item = kTreeRoot;
  for (int i = 0; i < 200'000; ++i) {
    const HTREEITEM child = tree.InsertItem("row", 0, item);
    tree.Expand(item, TVE_EXPAND);
    item = child;
  }
  tree.SelectItem(item);
  const std::string painted = PaintedText(tree, 0, 206);
  EXPECT_EQ(painted.find("text"), std::string::npos) << "the names lie far to the right";
  EXPECT_LT(painted.size(), 5'000U);
  EXPECT_TRUE(tree.Expand(tree.GetRootItem(), TVE_COLLAPSE));
  EXPECT_EQ(tree.GetRowCount(), 1U);
  tree.Expand(tree.GetRootItem(), TVE_EXPAND);
  EXPECT_EQ(tree.GetRowOfItem(item), 199'999);
  tree.DeleteItem(tree.GetRootItem());
  EXPECT_EQ(tree.GetRowCount(), 0U);
}

}  // namespace
}  // namespace platform
