#include "platform/base/message_box.h"
#include "tests/platform/gui/tree_stage.h"

namespace platform {
namespace {

constexpr UINT kLabel = TVHT_ONITEMLABEL, kValue = TVHT_ONCOLUMN, kButton = TVHT_ONITEMBUTTON;

class TreeInput : public TreeStage {
 public:
  TreeInput() { Reset(); }
  void Click(const char* row, UINT part) { user::Click(tree, At(row, part)); }
  void DoubleClick(const char* row, UINT part) { user::DoubleClick(tree, At(row, part)); }
  // The left button goes down and then to the right, to these distances; only what the way brings is told.
  void Drag(const char* row, UINT part, std::initializer_list<int> pixels) {
    const POINT at = At(row, part);
    Press(at);
    Story();
    for (const int way : pixels) Press({at.x + way, at.y}, WM_MOUSEMOVE);
  }
  void Wait(UINT milliseconds = 5000) { display.Advance(milliseconds); }
};

TEST_F(TreeInput, MouseStories) {
  struct Case {
    const char* name;
    std::function<void()> act;
    const char *story, *selected;
  };
  const Case cases[] = {
      {"a click reports itself, takes the focus, selects", [&] { Click("D", kLabel); },
       "DOWN, NM_CLICK, SETFOCUS, TVN_SELCHANGED D, UP", "D"},
      {"a click on a cell begins an edit once no double click can follow",
       [&] { Click("B", kValue), Wait(499), Story(), Wait(2); },
       "LVN_BEGINLABELEDIT 1 1 \"1000\", KILLFOCUS, edit SETFOCUS", "B"},
      {"a double click on a cell begins none", [&] { DoubleClick("B", kValue), Wait(); },
       "DOWN, NM_CLICK, SETFOCUS, TVN_SELCHANGED B, UP, DBLCLK, NM_DBLCLK, UP", "B"},
      {"a key in the meantime keeps the edit away",
       [&] { Click("B", kValue), Story(), user::PressKey(VK_INSERT), Wait(); }, "", "B"},
      {"and so does a way of the focus",
       [&] { Click("B", kValue), Story(), SetFocus(owner.GetHandle()), FocusTree(), Wait(); },
       "KILLFOCUS, SETFOCUS", "B"},
      {"only a second click on the label of the selected row edits it",
       [&] { Click("D", kLabel), Wait(), Story(), Click("D", kLabel), Wait(); },
       "DOWN, NM_CLICK, UP, TVN_BEGINLABELEDIT 3 0 \"D\", KILLFOCUS, edit SETFOCUS", "D"},
      {"not one that brings the focus",
       [&] { Click("D", kLabel), SetFocus(owner.GetHandle()), Story(), Click("D", kLabel), Wait(); },
       "DOWN, NM_CLICK, SETFOCUS, UP", "D"},
      {"a double click on the box toggles once and selects nothing", [&] { DoubleClick("A", kButton); },
       "DOWN, NM_CLICK, SETFOCUS, TVN_ITEMEXPANDING A collapse, UP, DBLCLK, NM_DBLCLK, UP", "-"},
      {"a double click on a label toggles when the owner leaves it", [&] { DoubleClick("A", kLabel); },
       "DOWN, NM_CLICK, SETFOCUS, TVN_SELCHANGED A, UP, DBLCLK, NM_DBLCLK, TVN_ITEMEXPANDING A collapse, UP",
       "A"},
      {"a click beside the rows takes the focus alone", [&] { Click("D", TVHT_NOWHERE); },
       "DOWN, NM_CLICK, SETFOCUS, UP", "-"},
      {"a right click selects before the context menu goes to the owner",
       [&] { user::RightClick(tree, At("C", kValue)); },
       "RDOWN, SETFOCUS, TVN_SELCHANGED C, RUP, NM_RCLICK, CONTEXTMENU, owner CONTEXTMENU", "C"},
      {"a button that moves a few pixels drags nothing", [&] { Drag("D", kLabel, {4}); }, "", "D"},
      {"one that moves further drags the row, once",
       [&] {
         Drag("B", kValue, {5, 50}), Wait();
       },
       "TVN_BEGINDRAG B", "B"},
      {"Enter is reported, F2 edits the name",
       [&] { Click("B", kLabel), Story(), user::PressKey(VK_RETURN), user::PressKey(VK_F2); },
       "NM_RETURN, TVN_BEGINLABELEDIT 1 0 \"B\", KILLFOCUS, edit SETFOCUS", "B"},
      {"on the box it drags nothing", [&] { Drag("A", kButton, {50}); }, "", "-"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Reset();
    c.act();
    EXPECT_EQ(Story(), c.story);
    EXPECT_EQ(NameOf(tree.GetSelectedItem()), c.selected);
    Press({}, WM_LBUTTONUP);
  }
}

TEST_F(TreeInput, TheOwnerMayTakeOverInTheClick) {
  Answer(NM_CLICK, 0, [] { MessageBox("wait"); });
  Press(At("B", kValue));
  EXPECT_EQ(Story(), "DOWN, NM_CLICK, message: wait, SETFOCUS, TVN_SELCHANGED B");
  Press({300, 30}, WM_MOUSEMOVE);
  Wait();
  EXPECT_EQ(Story(), "") << "the box has the rest of the press";
  Answer(NM_CLICK, 0, [&] { tree.DeleteItem(Item("D")); });
  Click("D", kLabel);
  EXPECT_EQ(Story(), "DOWN, NM_CLICK, UP");
  EXPECT_EQ(NameOf(tree.GetSelectedItem()), "B") << "a row that is gone isn't selected";
  Answer(NM_DBLCLK, 1);
  DoubleClick("A", kLabel);
  EXPECT_TRUE(tree.IsExpanded(Item("A"))) << "a double click that the owner keeps to itself";
}

TEST_F(TreeInput, TheWindowMayGoInEachNotification) {
  for (const UINT code :
       {NM_CLICK, TVN_SELCHANGED, NM_DBLCLK, TVN_ITEMEXPANDING, TVN_KEYDOWN, TVN_BEGINDRAG}) {
    tree.DestroyWindow();
    Reset();
    Answer(code, 0, [&] { tree.DestroyWindow(); });
    const POINT label = At("A", kLabel);
    user::DoubleClick(tree, label);
    if (tree.Exists()) user::PressKey(VK_ADD);
    if (tree.Exists()) Press(label), Press({label.x, label.y + 30}, WM_MOUSEMOVE);
    EXPECT_FALSE(tree.Exists()) << code;
  }
}

TEST_F(TreeInput, TheHeaderResizesReportsAndAsksForItsMenu) {
  const auto move = [&](int x) {
    Press({x, 5}, WM_MOUSEMOVE);
    return tree.GetColumnWidth(0);
  };
  Press({199, 5});
  EXPECT_EQ(move(219), 220);
  EXPECT_EQ(move(-400), 8) << "dragging hides no column";
  Press({219, 5}, WM_LBUTTONUP);
  EXPECT_EQ(move(219), 8) << "the button is up";
  tree.SetColumnWidth(1, 0);
  Press({9, 5});
  EXPECT_EQ(move(209), 208) << "a hidden column has no edge";
  Press({209, 5}, WM_LBUTTONUP);
  Story();

  user::DoubleClick(tree, {100, 5});
  EXPECT_EQ(Story(), "DOWN, UP, LVN_COLUMNCLICK -1 0, DBLCLK, UP, LVN_COLUMNCLICK -1 0");
  Press({100, 5});
  Press({300, 5}, WM_LBUTTONUP);
  user::RightClick(tree, {100, 5});
  EXPECT_EQ(Story(), "DOWN, UP, RDOWN, RUP, CONTEXTMENU, owner CONTEXTMENU");
  tree.SetTreeStyle(tree.GetTreeStyle() | SECTreeCtrl::kHeaderMenu);
  user::RightClick(tree, {100, 5});
  EXPECT_EQ(Story(), "RDOWN, RUP, CONTEXTMENU, menu at 100");
}

TEST_F(TreeInput, Keys) {
  struct Case {
    const char *name, *selected;
    std::vector<UINT> keys;
    const char* rows;
  };
  const char* const first = "-A<\n  .B\n  +C\n.F\n";
  const char* const last = "-A\n  .B\n  +C\n.F<\n";
  const Case cases[] = {
      {"Down goes through what shows", "A", {VK_DOWN, VK_DOWN}, "-A\n  .B\n  +C<\n.F\n"},
      {"Down stays on the last row", "F", {VK_DOWN}, last},
      {"without a selection Down goes to the first row", "-", {VK_DOWN}, first},
      {"from a row that doesn't show Down goes there too", "E", {VK_DOWN}, first},
      {"Left closes, and then does nothing at the top", "A", {VK_LEFT, VK_LEFT}, "+A<\n.F\n"},
      {"the asterisk opens all", "C", {VK_MULTIPLY}, "-A\n  .B\n  -C<\n    -D\n      .E\n.F\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Fill("-A\n  B\n  C\n    D\n      E\nF\n");
    tree.SelectItem(Item(c.selected));
    FocusTree();
    for (const UINT key : c.keys) user::PressKey(key);
    EXPECT_EQ(Rows(), c.rows);
  }
  tree.DeleteAllItems();
  for (const UINT key : {VK_DOWN, VK_END, VK_NEXT, VK_LEFT, VK_MULTIPLY, VK_F2}) user::PressKey(key);
  EXPECT_EQ(tree.GetSelectedItem(), 0U) << "no rows";
}

TEST_F(TreeInput, TheFirstLettersFindARow) {
  Fill("Port 1\nport 2\nTimer\n\xC3\x9CX\n*star\n");
  FocusTree();
  struct Case {
    UINT wait;  // before
    const char *typed, *found;
  };
  const Case cases[] = {
      {0, "p", "Port 1"}, {1100, "P", "port 2"}, {1100, "p", "Port 1"},           {0, "ort 2", "port 2"},
      {0, "x", "port 2"}, {1100, "t", "Timer"},  {1100, "\xC3\xBC", "\xC3\x9CX"}, {1100, "*", "\xC3\x9CX"}};
  for (const Case& c : cases) {
    display.Advance(c.wait);
    user::TypeText(c.typed);
    EXPECT_EQ(NameOf(tree.GetSelectedItem()), c.found) << "typing " << c.typed;
  }
}

TEST_F(TreeInput, CheckBoxesAreTheUsersWithTheStyleAndTheOwnersWithout) {
  tree.SetTreeStyle(SECTreeCtrl::kCheckBoxes);
  Fill("B\nD\n");
  tree.SetItemHasCheck(Item("B"), false);
  Click("D", TVHT_ONITEMCHECK);
  EXPECT_TRUE(tree.GetItemCheck(Item("D")));
  Click("D", kLabel);
  user::PressKey(VK_SPACE);
  EXPECT_FALSE(tree.GetItemCheck(Item("D")));
  user::TypeText("d ");
  EXPECT_FALSE(tree.GetItemCheck(Item("D"))) << "a blank within a name";
  Wait();
  tree.SelectItem(Item("B"));
  user::PressKey(VK_SPACE);
  EXPECT_EQ(Story(),
            "DOWN, NM_CLICK, SETFOCUS, TVN_CHECKCHANGED D, UP, DOWN, NM_CLICK, TVN_SELCHANGED D, UP, "
            "TVN_CHECKCHANGED D, TVN_SELCHANGED B");
  tree.SetTreeStyle(0);
  tree.SetItemCheck(Item("D"), true);
  Click("D", TVHT_ONITEMCHECK);
  user::PressKey(VK_SPACE);
  EXPECT_TRUE(tree.GetItemCheck(Item("D")));
}

}  // namespace
}  // namespace platform
