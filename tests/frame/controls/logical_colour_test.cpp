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
  const Row rows[] = {{"WHITE", 0, 0xFFFFFF, 0},       {"GREY", 2, 0xA0A0A0, 0},
                      {"RED", 4, 0x0000FF, 0},         {"CYAN", 8, 0xFFFF00, 0},
                      {"DARKYELLOW", 13, 0x008080, 0}, {"LIGHTGREY", 16, 0xDFE1E5, 0},
                      {"SYSTEM", 17, 0xFFFFFF, 1},     {"HIGHLIGHT", 18, 0xFFFFFF, 1},
                      {"MEDGREY", 19, 0xB3B3B3, 0},    {"Red", -1, 0xFFFFFF, 1}};
  for (const Row& row : rows) {
    COLORREF value = 1;
    EXPECT_EQ(ColourIndexFromName(row.name), row.index) << row.name;
    EXPECT_EQ(ColourFromIndex(row.index, value), row.result) << row.name;
    EXPECT_EQ(value, row.value) << row.name;
  }
  for (const int index : {-2147483647 - 1, 20, 2147483647}) {
    COLORREF value = 1;
    EXPECT_EQ(ColourFromIndex(index, value), 1) << index;
    EXPECT_EQ(value, 0xFFFFFFu) << index;
  }
}

TEST(LogicalColour, TheSystemsTwoAreTakenByRoleAndTheOthersAsTheyStand) {
  platform::HeadlessDisplay display(platform::HeadlessDisplay::Unanswered::Fail);
  platform::SetDisplay(&display);
  EXPECT_EQ(ResolveColour(17, ColourRole::Foreground), GetSysColour(SystemColour::WindowText));
  EXPECT_EQ(ResolveColour(17, ColourRole::Background), GetSysColour(SystemColour::Window));
  EXPECT_EQ(ResolveColour(18, ColourRole::Foreground), GetSysColour(SystemColour::HighlightText));
  EXPECT_EQ(ResolveColour(18, ColourRole::Background), GetSysColour(SystemColour::Highlight));
  EXPECT_EQ(ResolveColour(4, ColourRole::Background), 0x0000FFu);
  EXPECT_EQ(ResolveColour(-1, ColourRole::Background), 0xFFFFFFu);
  platform::SetDisplay(nullptr);
}

}  // namespace
}  // namespace pvw
