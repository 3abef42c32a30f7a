// The pages of 67 lines that a text is printed on.

#include "frame/controls/tree_print.h"

#include <gmock/gmock.h>

#include <utility>

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

}  // namespace
}  // namespace pvw::test
