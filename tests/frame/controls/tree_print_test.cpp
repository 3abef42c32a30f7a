// Print: pages of 67 lines, and the way from the grid to the printer.

#include "frame/controls/tree_print.h"

#include <gmock/gmock.h>

#include "platform/base/files.h"
#include "platform/base/system.h"
#include "platform/base/text.h"
#include "tests/frame/controls/tree_grid_stage.h"
#include "tests/support/temp_dir.h"

namespace pvw::test {
namespace {

class PageRecorder final : public platform::Printer {
 public:
  std::vector<std::vector<std::string>> pages;  // lines as "Y TEXT"
  bool page_open = false;

  bool StartDocument(std::string_view) override { return true; }
  void StartPage() override {
    EXPECT_FALSE(std::exchange(page_open, true));
    pages.emplace_back();
  }
  void TextOut(platform::POINT at, std::string_view text) override {
    EXPECT_EQ(at.x, 0);
    pages.back().push_back(std::to_string(at.y) + ' ' + std::string(text));
  }
  void EndPage() override { EXPECT_TRUE(std::exchange(page_open, false)); }
  void EndDocument() override {}
};

TEST(TreePrint, FillsPagesOf67Lines) {
  struct Row {
    const char* name;
    int lines;
    std::vector<std::size_t> pages;
  };
  const Row rows[] = {{"nothing to print", 0, {0}},
                      {"one less than a page", 66, {66}},
                      {"a full page is followed by a heading", 67, {67, 2}},
                      {"65 lines to each further page", 67 + 65 + 1, {67, 67, 3}}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string text;
    for (int line = 0; line < row.lines; ++line) text += std::to_string(line) + " \r\n";
    PageRecorder printer;
    PrintPages(printer, text, "titles ", "---");
    std::vector<std::size_t> sizes;
    for (const auto& page : printer.pages) sizes.push_back(page.size());
    EXPECT_EQ(sizes, row.pages);
    EXPECT_FALSE(printer.page_open);
    if (sizes.size() < 3) continue;
    EXPECT_EQ(printer.pages[0].back(), "6600 66");
    printer.pages[1].resize(3);
    EXPECT_THAT(printer.pages[1], testing::ElementsAre("0 titles", "100 --", "200 67"));
  }
  PageRecorder printer;
  PrintPages(printer, "a\xC3\xA4\n\nb \r\nno end", "", "");
  EXPECT_THAT(printer.pages, testing::ElementsAre(testing::ElementsAre("0 a", "100 ", "200 b", "300 no en")))
      << "a line loses a whole character";
}

class TreePrintTest : public TreeGridStage {
 protected:
  TreePrintTest() : before(platform::System()) { platform::System().temp_directory = dir.Path(); }
  ~TreePrintTest() override { platform::System() = before; }
  void PrintTo(const std::string& native) {
    display.Give(platform::PrintAnswer{native});
    tree.Print();
  }

  TempDir dir;
  const platform::SystemRecord before;
};

TEST_F(TreePrintTest, PrintsWhatShowsByWayOfAFileThatGoesAgain) {
  Fill("-A\n  a|1\n");
  PrintTo(dir.Native("pages").string());
  std::istringstream dump(tree.GetDumpText());
  std::string expected;
  for (std::string line; std::getline(dump, line);) expected += line.substr(0, line.size() - 1) + '\n';
  EXPECT_EQ(platform::ReadNativeFile(dir.Native("pages").string())->bytes, expected);
  EXPECT_EQ(shown, "print dialog\n");
  EXPECT_FALSE(std::filesystem::exists(dir.Native("Treetmp.txt")));

  for (int row = 0; row < 70; ++row) tree.InsertItem("more", -1);
  PrintTo(dir.Native("pages").string());
  const std::string pages = platform::ReadNativeFile(dir.Native("pages").string())->bytes;
  const std::string heading = expected.substr(0, expected.find('-'));
  EXPECT_TRUE(pages.substr(pages.find('\f') + 1).starts_with(heading + std::string(499, '-') + '\n'));
}

TEST_F(TreePrintTest, WhatGoesWrongLeavesNothingBehind) {
  Fill("A\n");
  display.Give(platform::CancelAnswer{});
  dir.Write("Treetmp.txt", "another's");
  tree.Print();
  EXPECT_TRUE(std::filesystem::exists(dir.Native("Treetmp.txt"))) << "cancelled: nothing is written";

  PrintTo(dir.Native("missing/pages").string());
  EXPECT_FALSE(std::filesystem::exists(dir.Native("Treetmp.txt"))) << "the printer takes no document";

  std::filesystem::create_directory(dir.Native("Treetmp.txt"));
  PrintTo(dir.Native("pages").string());
  EXPECT_EQ(platform::ReadNativeFile(dir.Native("pages").string())->bytes, "") << "one empty page";
}

}  // namespace
}  // namespace pvw::test
