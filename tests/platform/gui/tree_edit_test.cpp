#include "platform/base/message_box.h"
#include "tests/platform/gui/tree_stage.h"

namespace platform {
namespace {

class TreeEdit : public TreeStage {
 public:
  TreeEdit() { Reset(); }
  // Opens the edit of B's value with "12" typed over it.
  void Open() {
    FocusTree();
    EXPECT_TRUE(tree.EditCell(Item("B"), 2));
    user::TypeText("12");
    Story();
  }
  const std::string kKept = "LVN_ENDLABELEDIT 1 2 \"12\", edit DESTROY, edit KILLFOCUS, SETFOCUS";
};

TEST_F(TreeEdit, EveryWayOutEndsItOnce) {
  struct Case {
    const char* name;
    std::function<void()> leave;
    std::string story;
  };
  const std::string kDropped = "LVN_ENDLABELEDIT 1 2, edit DESTROY, edit KILLFOCUS, SETFOCUS";
  const std::string kLeft = "edit KILLFOCUS, LVN_ENDLABELEDIT 1 2 \"12\", edit DESTROY";
  const auto expect_begin = ", LVN_BEGINLABELEDIT 2 1 \"\", KILLFOCUS, edit SETFOCUS";
  const auto drop = [&](const char* name) { tree.DeleteItem(Item(name)); };
  const Case cases[] = {
      {"Enter keeps the text and isn't reported", [] { user::PressKey(VK_RETURN); }, kKept},
      {"Escape drops it", [] { user::PressKey(VK_ESCAPE); }, kDropped},
      {"the focus goes to another window", [&] { SetFocus(owner.GetHandle()); }, kLeft},
      {"the user leaves the program", [] { gui::Activate(false), gui::Activate(true); },
       kLeft + ", SETFOCUS"},
      {"a click on another row", [&] { user::Click(tree, At("D", TVHT_ONITEMLABEL)); },
       "DOWN, NM_CLICK, " + kLeft + ", SETFOCUS, TVN_SELCHANGED D, UP"},
      {"another cell's edit", [&] { tree.EditCell(Item("C"), 1); }, kKept + expect_begin},
      {"the row above it is deleted", [&] { drop("A"); }, kDropped},
      {"all rows are deleted", [&] { tree.DeleteAllItems(); }, kDropped},
      {"the row above it closes", [&] { tree.Expand(Item("A"), TVE_COLLAPSE); },
       kKept + ", TVN_ITEMEXPANDING A collapse"},
      {"the grid goes", [&] { tree.DestroyWindow(); }, "DESTROY, edit KILLFOCUS, edit DESTROY"},
      {"the edit's own window goes", [&] { tree.GetListEdit()->DestroyWindow(); },
       "edit DESTROY, edit KILLFOCUS, LVN_ENDLABELEDIT 1 2 \"12\", SETFOCUS"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Reset();
    Open();
    c.leave();
    EXPECT_EQ(Story(), c.story);
    EXPECT_EQ(tree.GetItemText(Item("B"), 2), tree.HasItem(Item("B")) ? "FF" : "") << "nobody took it";
  }
}

TEST_F(TreeEdit, TheOwnerDecidesAboutTheTextWhileTheEditIsOpen) {
  struct Case {
    const char *name, *cell;
    bool takes;
    std::function<void()> end;
    std::string story;
  };
  const auto replace = [&] {
    EXPECT_TRUE(tree.IsEditing());
    reinterpret_cast<NMLVDISPINFO*>(record)->item.pszText = "H'12";
  };
  const auto write = [&] { tree.SetItemText(Item("B"), 2, "own"); };
  const auto again = [&] {
    tree.EndEdit();
    EXPECT_FALSE(tree.EditCell(Item("C"), 2));
  };
  const auto box = [&] {
    MessageBox("bad");
    EXPECT_EQ(GetFocus(), tree.GetListEdit()->GetHandle());
  };
  const std::string kEnd = "LVN_ENDLABELEDIT 1 2 \"12\", ";
  const Case cases[] = {
      {"takes another", "H'12", true, replace, kKept},
      {"writes the cell itself", "own", false, write, kKept},
      {"ends it again, opens another", "FF", false, again, kKept},
      {"shows a message box, which has the focus for a while", "FF", false, box,
       kEnd + "message: bad, edit KILLFOCUS, edit SETFOCUS, edit DESTROY, edit KILLFOCUS, SETFOCUS"},
      {"deletes the row", "", true, [&] { tree.DeleteItem(Item("B")); }, kKept},
      {"destroys the edit", "12", true, [&] { tree.GetListEdit()->DestroyWindow(); }, kKept},
      {"destroys the grid", "FF", true, [&] { tree.DestroyWindow(); },
       kEnd + "DESTROY, edit KILLFOCUS, edit DESTROY"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Reset();
    Open();
    Answer(LVN_ENDLABELEDIT, c.takes, c.end);
    user::PressKey(VK_RETURN);
    EXPECT_EQ(Story(), c.story);
    EXPECT_FALSE(tree.IsEditing());
    EXPECT_EQ(tree.GetItemText(Item("B"), 2), c.cell);
    Reset();
    Open();  // the next edit opens, and ends
    user::PressKey(VK_RETURN);
    EXPECT_EQ(Story(), kKept);
  }
}

TEST_F(TreeEdit, OpensOnlyWhatShowsAndIsAllowed) {
  Answer(LVN_BEGINLABELEDIT, 1);
  EXPECT_FALSE(tree.EditCell(Item("B"), 2)) << "refused";
  Answer(LVN_BEGINLABELEDIT, 0, [&] {
    EXPECT_FALSE(tree.EditCell(Item("C"), 1)) << "in the notification";
    tree.DeleteItem(Item("B"));
  });
  EXPECT_FALSE(tree.EditCell(Item("B"), 2)) << "deleted in the notification";
  Answer(LVN_BEGINLABELEDIT, 0, [&] { tree.DestroyWindow(); });
  EXPECT_FALSE(tree.EditCell(Item("D"), 2)) << "the grid went in the notification";
  Reset();
  tree.SetColumnWidth(1, 0);
  for (const int column : {-1, 1, 4}) EXPECT_FALSE(tree.EditCell(Item("B"), column)) << "hidden or not there";
  tree.Expand(Item("A"), TVE_COLLAPSE);
  EXPECT_FALSE(tree.EditCell(Item("B"), 2)) << "under a closed row";
  EXPECT_EQ(Story(), "TVN_ITEMEXPANDING A collapse") << "nobody was asked";
}

TEST_F(TreeEdit, FollowsItsCell) {
  for (int i = 0; i < 30; ++i) tree.InsertItem("more", 2);
  Open();
  const auto place = [&] { return tree.GetListEdit()->GetRect(); };
  tree.SetColumnWidth(0, 150);
  tree.SetScrollPos(true, 1);
  EXPECT_EQ(place(), tree.GetCellRect(Item("B"), 2));
  tree.SetScrollPos(true, 2);
  EXPECT_TRUE(place().IsEmpty()) << "under the header";
  EXPECT_TRUE(tree.IsEditing());

  tree.SetColumnWidth(0, 700);
  EXPECT_TRUE(tree.EditCell(tree.GetItemAtRow(20), 2));
  EXPECT_EQ(place().Width(), 100) << "scrolled into view";
  EXPECT_TRUE(tree.EditCell(tree.GetItemAtRow(20), 0));
  EXPECT_EQ(tree.GetScrollPos(false), 0) << "and back";
}

}  // namespace
}  // namespace platform
