// Where a display without a screen puts drawings and pages, and how large its text is.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/base/text.h"
#include "platform/headless/recording_dc.h"
#include "platform/headless/text_metrics.h"
#include "platform/headless/text_printer.h"

namespace platform {
namespace {

using testing::ElementsAre;

TEST(RecordingDCTest, EachOperationIsALineAndWhatLiesOutsideTheClipIsNone) {
  RecordingDC dc({0, 0, 100, 50});
  dc.Text({3, 0, 97, 17}, "say \"a\\b\"\n", 0x0000FF, {}, TextAlign::Left);
  dc.FocusRect({0, 0, 9, 9});
  dc.Fill({0, 50, 100, 67}, 0);
  dc.Text({100, 0, 120, 17}, "gone", 0, {}, TextAlign::Left);
  EXPECT_THAT(dc.GetLines(), ElementsAre("text 3,0,97,17 0000FF \"say \\\"a\\\\b\\\"\\n\"", "focus 0,0,9,9"));
}

TEST(TextMetricsTest, AFontIsAsLargeAsItsRuleSays) {
  struct Row {
    const char* name;
    LOGFONT font;
    SIZE of_two;
  };
  const Row rows[] = {
      {"the dialog font", {}, {12, 13}},
      {"11 points", {0, 0, 110, "Courier New"}, {18, 17}},
      {"height and width", {11, 8, 0, "Courier New"}, {16, 11}},
      {"height alone", {11, 0, 0, "Courier New"}, {12, 11}},
      {"a size out of a broken file is held", {2147483647, 0, 0, "Arial"}, {10000, 10000}},
      {"a height below all others", {-2147483647 - 1, 0, 0, "Arial"}, {12000, 11250}},
  };
  for (const Row& row : rows) EXPECT_EQ(MeasureText(row.font, "io"), row.of_two) << row.name;
  EXPECT_EQ(MeasureText({}, "\xC3\xA4"), (SIZE{6, 13})) << "a character of two bytes is one column";
}

TEST(TextPrinterTest, PagesAreTextWithAFormFeedBetweenThem) {
  const std::string path = testing::TempDir() + "pages.txt";
  TextPrinter printer(path);
  ASSERT_TRUE(printer.StartDocument("io"));
  printer.StartPage();
  printer.TextOut({0, 0}, "Name");
  printer.TextOut({0, 100}, "PORT");
  printer.EndPage();
  printer.StartPage();
  printer.TextOut({0, 0}, "Name");
  printer.EndPage();
  printer.EndDocument();
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  EXPECT_EQ(text.str(), "Name\nPORT\n\fName\n");
  std::filesystem::remove(path);

  EXPECT_FALSE(TextPrinter(testing::TempDir() + "no such directory/pages.txt").StartDocument("io"));
}

}  // namespace
}  // namespace platform
