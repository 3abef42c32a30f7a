#include <gtest/gtest.h>

#include <sstream>

#include "platform/base/message_box.h"
#include "tests/platform/gui/tree_stage.h"

namespace platform {
namespace {

class TreeInput : public TreeStage {
 public:
  TreeInput() {
    MakeGrid();
    Reset();
  }
  // A row A that is open over B and C, then D; nothing has the focus.
  void Reset() {
    tree.EndEdit(false);
    tree.DeleteAllItems();
    Fill("A\n  B|1000|FF|RW\n  C\nD\n");
    tree.Expand(Item("A"), TVE_EXPAND);
    SetFocus(0);
    Story();
  }
  // Carries out words: "click", "double", "right" and "press" with a row and a part of it; "move" by so many
  // pixels from the last press; "key" with its number; "wait" for milliseconds; "leave" and "return" of the
  // focus; "forget" the story so far.
  void Act(const std::string& words);
};

void TreeInput::Act(const std::string& words) {
  const std::map<std::string, UINT> parts = {{"label", TVHT_ONITEMLABEL},
                                             {"button", TVHT_ONITEMBUTTON},
                                             {"nowhere", TVHT_NOWHERE},
                                             {"box", TVHT_ONITEMCHECK}};
  std::istringstream in(words);
  POINT at;
  for (std::string verb; in >> verb;) {
    if (verb == "leave" || verb == "return") {
      SetFocus(verb == "leave" ? owner.GetHandle() : tree.GetHandle());
    } else if (verb == "forget") {
      Story();
    } else if (verb == "wait" || verb == "move" || verb == "key") {
      UINT number = 0;
      in >> (verb == "key" ? std::hex : std::dec) >> number;
      if (verb == "wait") display.Advance(number);
      if (verb == "move") Press({at.x + static_cast<int>(number), at.y}, WM_MOUSEMOVE);
      if (verb == "key") user::PressKey(number);
    } else {
      std::string row, part;
      in >> row >> part;
      at = part == "value" ? Cell(row, 2) : At(row, parts.at(part));
      if (verb == "click") user::Click(tree, at);
      if (verb == "double") user::DoubleClick(tree, at);
      if (verb == "right") user::RightClick(tree, at);
      if (verb == "press") Press(at);
    }
  }
}

TEST_F(TreeInput, MouseStories) {
  struct Case {
    const char *name, *acts, *story, *selected;
  };
  const Case cases[] = {
      {"a click reports itself, takes the focus, selects", "click D label",
       "DOWN, NM_CLICK, SETFOCUS, TVN_SELCHANGED D, UP", "D"},
      {"a click on a cell begins an edit once no double click can follow",
       "click B value wait 499 forget wait 2", "LVN_BEGINLABELEDIT 1 2 \"FF\", KILLFOCUS, edit SETFOCUS",
       "B"},
      {"a double click on a cell begins none", "double B value wait 5000",
       "DOWN, NM_CLICK, SETFOCUS, TVN_SELCHANGED B, UP, DBLCLK, NM_DBLCLK, UP", "B"},
      {"a key in the meantime keeps the edit away", "click B value forget key 2D wait 5000", "", "B"},
      {"and so does a way of the focus", "click B value forget leave return wait 5000", "KILLFOCUS, SETFOCUS",
       "B"},
      {"only a second click on the label of the selected row edits it",
       "click D label wait 5000 forget click D label wait 5000",
       "DOWN, NM_CLICK, UP, TVN_BEGINLABELEDIT 3 0 \"D\", KILLFOCUS, edit SETFOCUS", "D"},
      {"not one that brings the focus", "click D label leave forget click D label wait 5000",
       "DOWN, NM_CLICK, SETFOCUS, UP", "D"},
      {"a double click on the box toggles once and selects nothing", "double A button",
       "DOWN, NM_CLICK, SETFOCUS, TVN_ITEMEXPANDING A collapse, UP, DBLCLK, NM_DBLCLK, UP", "-"},
      {"a double click on a label toggles when the owner leaves it", "double A label",
       "DOWN, NM_CLICK, SETFOCUS, TVN_SELCHANGED A, UP, DBLCLK, NM_DBLCLK, TVN_ITEMEXPANDING A collapse, UP",
       "A"},
      {"a click beside the rows takes the focus alone", "click D nowhere", "DOWN, NM_CLICK, SETFOCUS, UP",
       "-"},
      {"a right click selects before the context menu goes to the owner", "right C value",
       "RDOWN, SETFOCUS, TVN_SELCHANGED C, RUP, NM_RCLICK, CONTEXTMENU, owner CONTEXTMENU", "C"},
      {"a button that moves a few pixels drags nothing", "press D label forget move 4", "", "D"},
      {"one that moves further drags the row, once", "press B value forget move 5 move 50 wait 5000",
       "TVN_BEGINDRAG B", "B"},
      {"Enter is reported, F2 edits the name", "click B label forget key D key 71",
       "NM_RETURN, TVN_BEGINLABELEDIT 1 0 \"B\", KILLFOCUS, edit SETFOCUS", "B"},
      {"on the box it drags nothing", "press A button forget move 50", "", "-"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Reset();
    Act(c.acts);
    EXPECT_EQ(Story(), c.story);
    EXPECT_EQ(NameOf(tree.GetSelectedItem()), c.selected);
    Press({}, WM_LBUTTONUP);
  }
}

TEST_F(TreeInput, TheOwnerMayTakeOverInTheClick) {
  Answer(NM_CLICK, 0, [] { MessageBox("wait"); });
  Act("press B value move 50 wait 5000");
  EXPECT_EQ(Story(), "DOWN, NM_CLICK, message: wait, SETFOCUS, TVN_SELCHANGED B")
      << "the box has the rest of the press";
  Answer(NM_CLICK, 0, [&] { tree.DeleteItem(Item("D")); });
  Act("click D label");
  EXPECT_EQ(Story(), "DOWN, NM_CLICK, UP");
  EXPECT_EQ(NameOf(tree.GetSelectedItem()), "B") << "a row that is gone isn't selected";
  Answer(NM_DBLCLK, 1);
  Act("double A label");
  EXPECT_TRUE(tree.IsExpanded(Item("A"))) << "a double click that the owner keeps to itself";
}

TEST_F(TreeInput, TheWindowMayGoInEachNotification) {
  for (const UINT code :
       {NM_CLICK, TVN_SELCHANGED, NM_DBLCLK, TVN_ITEMEXPANDING, TVN_KEYDOWN, TVN_BEGINDRAG}) {
    tree.DestroyWindow();
    CreateTree();
    tree.SelectItem(0);
    answers.clear();
    Answer(code, 0, [&] { tree.DestroyWindow(); });
    const POINT label = At("A", TVHT_ONITEMLABEL);
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
  EXPECT_EQ(Story(), "RDOWN, RUP, CONTEXTMENU");
  EXPECT_EQ(tree.header_menus, (std::vector<POINT>{{100, 5}}));
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
      {"End", "-", {VK_END}, last},
      {"Home", "F", {VK_HOME}, first},
      {"Page down", "A", {VK_NEXT}, last},
      {"Page up", "F", {VK_PRIOR}, first},
      {"Left closes, and then does nothing at the top", "A", {VK_LEFT, VK_LEFT}, "+A<\n.F\n"},
      {"Left goes to the parent", "B", {VK_LEFT}, first},
      {"Right opens, then goes to the child", "C", {VK_RIGHT, VK_RIGHT}, "-A\n  .B\n  -C\n    +D<\n.F\n"},
      {"minus and plus", "A", {VK_SUBTRACT, VK_SUBTRACT, VK_ADD, VK_ADD}, first},
      {"the asterisk opens all", "C", {VK_MULTIPLY}, "-A\n  .B\n  -C<\n    -D\n      .E\n.F\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    tree.DeleteAllItems();
    Fill("A\n  B\n  C\n    D\n      E\nF\n");
    tree.Expand(Item("A"), TVE_EXPAND);
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
  tree.DeleteAllItems();
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
  tree.DeleteAllItems();
  tree.SetTreeStyle(SECTreeCtrl::kCheckBoxes);
  Fill("B\nD\n");
  tree.SetItemHasCheck(Item("B"), false);
  Act("click D box");
  EXPECT_TRUE(tree.GetItemCheck(Item("D")));
  Act("click D label key 20");
  EXPECT_FALSE(tree.GetItemCheck(Item("D")));
  user::TypeText("d ");
  EXPECT_FALSE(tree.GetItemCheck(Item("D"))) << "a blank within a name";
  Act("wait 1000 click B label key 20");
  EXPECT_EQ(Story(),
            "DOWN, NM_CLICK, SETFOCUS, TVN_CHECKCHANGED D, UP, DOWN, NM_CLICK, TVN_SELCHANGED D, UP, "
            "TVN_CHECKCHANGED D, DOWN, NM_CLICK, TVN_SELCHANGED B, UP");
  tree.SetTreeStyle(0);
  tree.SetItemCheck(Item("D"), true);
  Act("click D box key 20");
  EXPECT_TRUE(tree.GetItemCheck(Item("D")));
}

}  // namespace
}  // namespace platform
