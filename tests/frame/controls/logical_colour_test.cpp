#include "frame/controls/logical_colour.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/gui/graphics.h"
#include "platform/headless/headless_display.h"

namespace pvw {
namespace {

using platform::COLORREF;
using platform::SystemColour;

TEST(LogicalColour, GoesByExactNameAndIndex) {
  struct Row {
    const char* name;
    int index;
    COLORREF value;
    int result;  // 1: no colour of its own
  };
  const Row rows[] = {{"WHITE", 0, 0xFFFFFF, 0},      {"RED", 4, 0x0000FF, 0},
                      {"LIGHTGREY", 16, 0xDFE1E5, 0}, {"SYSTEM", 17, 0xFFFFFF, 1},
                      {"HIGHLIGHT", 18, 0xFFFFFF, 1}, {"MEDGREY", 19, 0xB3B3B3, 0},
                      {"Red", -1, 0xFFFFFF, 1}};
  for (const Row& row : rows) {
    COLORREF value = 1;
    EXPECT_EQ(ColourIndexFromName(row.name), row.index) << row.name;
    EXPECT_EQ(ColourFromIndex(row.index, value), row.result) << row.name;
    EXPECT_EQ(value, row.value) << row.name;
  }
  EXPECT_EQ(ResolveColour(20, ColourRole::Background), 0xFFFFFFu) << "behind the last";
}

TEST(LogicalColour, TheSystemsTwoAreTakenByRoleAndTheOthersAsTheyStand) {
  platform::HeadlessDisplay display(platform::HeadlessDisplay::Unanswered::Fail);
  platform::SetDisplay(&display);
  EXPECT_EQ(ResolveColour(17, ColourRole::Foreground), GetSysColour(SystemColour::WindowText));
  EXPECT_EQ(ResolveColour(17, ColourRole::Background), GetSysColour(SystemColour::Window));
  EXPECT_EQ(ResolveColour(18, ColourRole::Foreground), GetSysColour(SystemColour::HighlightText));
  EXPECT_EQ(ResolveColour(18, ColourRole::Background), GetSysColour(SystemColour::Highlight));
  EXPECT_EQ(ResolveColour(4, ColourRole::Background), 0x0000FFu);
  platform::SetDisplay(nullptr);
}

}  // namespace
}  // namespace pvw
