// A pane's grid as its user sees it: red rows, columns that hide, the edit of a cell.

#include <gmock/gmock.h>

#include "platform/headless/recording_dc.h"
#include "platform/headless/user.h"
#include "tests/frame/controls/tree_grid_stage.h"

namespace pvw::test {
namespace {

using testing::ElementsAre;

class TreeGridTest : public TreeGridStage {
 protected:
  // The texts that are drawn in red.
  std::vector<std::string> RedTexts() {
    const platform::RECT clip = tree.GetClientRect();
    platform::RecordingDC dc(clip);
    tree.Paint(dc, clip);
    std::vector<std::string> texts;
    for (const std::string& line : dc.GetLines()) {
      const std::size_t red = line.find(" 0000FF ");
      if (line.starts_with("text") && red != std::string::npos) texts.push_back(line.substr(red + 8));
    }
    return texts;
  }
};

TEST_F(TreeGridTest, AChangedRowIsRedInAllItsColumnsUntilTheMarksAreCleared) {
  Fill("A|1|2|RW\nB|3|4|R\n");
  tree.MarkChanged(items["B"]);
  tree.MarkChanged(items["B"]);
  EXPECT_THAT(RedTexts(), ElementsAre("\"B\"", "\"3\"", "\"4\""));

  tree.DeleteAllItems();
  Fill("C|5|6|RW\nD|7|8|R\n");
  EXPECT_THAT(RedTexts(), ElementsAre()) << "the mark of a row that is gone passes to no other";

  tree.MarkChanged(items["C"]);
  tree.ClearChanged();
  EXPECT_THAT(RedTexts(), ElementsAre());
}

TEST_F(TreeGridTest, OtherCommandsThanThoseOfTheHeadersMenuHideNoColumn) {
  for (const platform::WPARAM id : {0u, 4u, 32771u}) tree.Send(platform::WM_COMMAND, id);
  tree.Send(platform::WM_COMMAND, 1, 99);
  EXPECT_THAT(Widths(), ElementsAre(200, 100, 100, 100))
      << "the first column, none, another command, and what a control with the id of a column tells";
}

TEST_F(TreeGridTest, AnOpenEditGivesItsTextKeepsTheColumnsAndEndsWithoutAWordOnceItIsClosing) {
  Fill("A|1|2|RW\n");
  std::string text = "left alone";
  EXPECT_FALSE(tree.GetEditText(text));
  ASSERT_TRUE(tree.EditCell(items["A"], 2));
  platform::user::TypeText("1F");
  EXPECT_TRUE(tree.GetEditText(text));
  EXPECT_EQ(text, "1F");
  tree.Send(platform::WM_COMMAND, 2);
  EXPECT_THAT(Widths(), ElementsAre(200, 100, 100, 100)) << "no column hides meanwhile";
  platform::SetFocus(tree.GetHandle());
  EXPECT_EQ(edits_ended, 1);
  EXPECT_FALSE(tree.GetEditText(text));

  ASSERT_TRUE(tree.EditCell(items["A"], 2));
  tree.MarkEditClosing();
  EXPECT_EQ(tree.Send(platform::WM_COMMAND, 32771), 1) << "commands are taken";
  platform::SetFocus(owner.GetHandle());
  EXPECT_TRUE(tree.GetEditText(text));
  tree.DestroyWindow();
  EXPECT_EQ(edits_ended, 1);
}

TEST_F(TreeGridTest, FindsTheRowThatTheSelectionLiesBelow) {
  Fill("-A\n  -a\n    x\n  b\nB\n  c\n    y\nC\n");
  const auto above = [&](const std::string& selected) {
    tree.SelectItem(selected.empty() ? 0 : items[selected]);
    std::string names;
    for (const auto& [row, item] : items) {
      if (tree.HasSelectedDescendant(item)) names += row;
    }
    return names;
  };
  EXPECT_EQ(above("x"), "Aa");
  EXPECT_EQ(above("A"), "") << "a row isn't below itself";
  EXPECT_EQ(above("y"), "Bc") << "below closed rows too";
  EXPECT_EQ(above(""), "");
  EXPECT_FALSE(tree.HasSelectedDescendant(0));
}

}  // namespace
}  // namespace pvw::test
