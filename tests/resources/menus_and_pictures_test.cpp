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

// The cells of a strip of 16 pixels each, by their pixels; empty unless the strip is whole.
std::vector<std::vector<std::uint32_t>> Cells(std::uint32_t id, int height) {
  const platform::PictureResource* picture = platform::LoadBitmap(id);
  if (picture == nullptr || picture->height != height || picture->width % 16 != 0) return {};
  std::vector<std::vector<std::uint32_t>> cells(static_cast<std::size_t>(picture->width / 16));
  if (picture->pixels.size() != cells.size() * 16 * static_cast<std::size_t>(height)) return {};
  for (std::size_t i = 0; i < picture->pixels.size(); ++i) {
    cells[i / 16 % cells.size()].push_back(picture->pixels[i]);
  }
  return cells;
}

TEST(Pictures, EachButtonAndEachKindOfRowHasOneOfItsOwn) {
  auto buttons = Cells(204, 15);
  EXPECT_EQ(buttons.size(), 8u);
  std::ranges::copy(Cells(203, 15), std::back_inserter(buttons));
  EXPECT_EQ(std::set(buttons.begin(), buttons.end()).size(), 9u);
  EXPECT_EQ(Cells(11003, 15).size(), 1u);
  const auto rows = Cells(11004, 16);
  EXPECT_EQ(std::set(rows.begin(), rows.end()).size(), 4u);
  for (const auto& cell : rows) EXPECT_EQ(cell.front(), 0xFFFFFFFFu) << "the mask shows at the corners";
}

}  // namespace
}  // namespace pvw
