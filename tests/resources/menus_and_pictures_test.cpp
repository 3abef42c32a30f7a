// The menus, toolbars and pictures that the component announces, by bare number.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "platform/base/resources.h"

namespace pvw {
namespace {

using testing::ElementsAre;

std::string MenuText(std::span<const platform::MenuItemResource> items, const std::string& indent = "") {
  std::string text;
  for (const platform::MenuItemResource& item : items) {
    text += indent + (item.text == nullptr ? "-" : item.text);
    if (item.id != 0) text += " = " + std::to_string(item.id);
    text += '\n' + MenuText(item.Items(), indent + "  ");
  }
  return text;
}

TEST(Menus, HoldTheCommandsInTheirOrder) {
  EXPECT_EQ(MenuText(platform::LoadMenu(201)->items),
            "&View\n"
            "  CPU\n"
            "    &IO\tCtrl+I = 32770\n");
  EXPECT_EQ(MenuText(platform::LoadMenu(202)->items),
            "&Refresh = 32817\n"
            "Loc&k Refresh = 32826\n"
            "-\n"
            "&Load IO File... = 32773\n"
            "S&elect IO Register... = 32819\n"
            "-\n"
            "&Print = 32771\n"
            "&Save To File... = 32774\n"
            "-\n"
            "&Find...\tCtrl+F = 32820\n"
            "Find &Next\tF3 = 32821\n"
            "-\n"
            "Toolbar display = 32777\n"
            "Customize toolbar... = 32778\n"
            "-\n"
            "Allow Docking = 32768\n"
            "Hide = 32769\n");
}

TEST(Toolbars, HoldVersionSizeCountAndButtons) {
  EXPECT_THAT(platform::LoadToolbar(203)->words, ElementsAre(1, 16, 15, 1, 32770));
  EXPECT_THAT(platform::LoadToolbar(204)->words,
              ElementsAre(1, 16, 15, 8, 32817, 32826, 32773, 32771, 32774, 32819, 32820, 32821));
}

// Every command that a user can pick in a pane explains itself in the status line, as the host takes it.
TEST(Toolbars, EachButtonHasItsStatusLineAndToolTip) {
  for (const std::uint16_t id : platform::LoadToolbar(204)->words.subspan(4)) {
    EXPECT_EQ(std::ranges::count(platform::LoadString(id), '\n'), 1) << id;
  }
}

using Cell = std::vector<std::uint32_t>;

// The cells of a strip; empty unless the strip is whole.
std::vector<Cell> Cells(std::uint32_t id, int width, int height) {
  const platform::PictureResource* picture = platform::LoadBitmap(id);
  if (picture == nullptr || picture->height != height || picture->width % width != 0 ||
      picture->pixels.size() != static_cast<std::size_t>(picture->width * height)) {
    return {};
  }
  std::vector<Cell> cells(static_cast<std::size_t>(picture->width / width));
  for (std::size_t i = 0; i < picture->pixels.size(); ++i) {
    cells[i % static_cast<std::size_t>(picture->width) / static_cast<std::size_t>(width)].push_back(
        picture->pixels[i]);
  }
  return cells;
}

TEST(Pictures, EachButtonAndEachKindOfRowHasOneOfItsOwn) {
  std::vector<Cell> buttons = Cells(204, 16, 15);
  EXPECT_EQ(buttons.size(), 8u);
  const std::vector<Cell> frame = Cells(203, 16, 15);
  buttons.insert(buttons.end(), frame.begin(), frame.end());
  EXPECT_EQ(std::set<Cell>(buttons.begin(), buttons.end()).size(), 9u);
  EXPECT_EQ(Cells(11003, 16, 15).size(), 1u);
  const std::vector<Cell> rows = Cells(11004, 16, 16);
  EXPECT_EQ(std::set<Cell>(rows.begin(), rows.end()).size(), 4u);
  for (const Cell& cell : rows) EXPECT_EQ(cell.front(), 0xFFFFFFFFu) << "the mask shows at the corners";
}

}  // namespace
}  // namespace pvw
