// The layout of the text dump: padding, cutting by columns, bars and prefixes.

#include "ioview/interim/text_dump.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/base/text.h"

namespace ioview::interim {
namespace {

class CodePage {
 public:
  explicit CodePage(unsigned page) { platform::SetAnsiCodePage(page); }
  ~CodePage() { platform::SetAnsiCodePage(65001); }
};

TEST(FitColumn, CutsByColumnsAndKeepsTheLastCharacter) {
  struct {
    const char* what;
    unsigned page;
    std::string text;
    std::size_t width;
    std::string fitted;
  } const cases[] = {
      {"one too wide", 65001, "abcde", 4, "abce"},
      {"code points of any length", 65001, "\u65E5\u00E4\U0001F600yz", 3, "\u65E5\u00E4z"},
      {"double-byte characters, cut", 932, "\x83\x5C\x81\x5C\x95\x5C", 4, "\x83\x5C\x95\x5C"},
      {"a double-byte last character behind an odd column", 932, "abc\x83\x5C", 4, "ab\x83\x5C"},
      {"half a character of room before a double one", 932, "a\x83\x5C\x81\x5C\x95\x5C", 4, "a \x95\x5C"},
  };
  for (const auto& row : cases) {
    const CodePage page(row.page);
    EXPECT_EQ(FitColumn(row.text, row.width, true), row.fitted) << row.what;
    EXPECT_EQ(platform::ColumnCount(row.fitted), row.width) << row.what;
  }
  EXPECT_EQ(FitColumn("abcde", 4, false), "abcde");
}

TEST(TextDump, DrawsTheTreeInTheFirstColumn) {
  struct {
    const char* what;
    RowText row;
    std::string column;  // the first 34 columns
  } const cases[] = {
      {"childless, also when it counts as open",
       {0, false, true, {"M"}},
       " |--- M                           "},
      {"below a module", {1, true, false, {"R"}}, " |[+]-- R                         "},
      {"below a register", {2, false, false, {"F"}}, " | | |--- F                       "},
      {"too long a name",
       {1, false, false, {"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234"}},
       " | |--- ABCDEFGHIJKLMNOPQRSTUVWXY4"},
      {"no name and no room", {14, true, true, {""}}, " | | | | | | | | | | | | | |[-]-- "},
      {"far beyond", {1'000'000'000'000, true, true, {"N"}}, " | | | | | | | | | | | | | | | | N"},
  };
  for (const auto& row : cases) {
    std::string line;
    AppendRow(line, row.row);
    EXPECT_EQ(line, row.column + std::string(51, ' ') + '\n') << row.what;
  }
}

TEST(TextDump, CutsCellsBelowTheTopAlone) {
  const std::string wide = "0123456789ABCDEFGHIJ";
  std::string line;
  AppendRow(line, {0, false, false, {std::string(40, 'n'), wide, "v", wide}});
  EXPECT_EQ(line, " |--- " + std::string(40, 'n') + wide + "v" + std::string(16, ' ') + wide + '\n');

  line.clear();
  AppendRow(line, {1, false, false, {"n", wide, "v", wide}});
  EXPECT_EQ(line, " | |--- n" + std::string(25, ' ') + "0123456789ABCDEFJ" + "v" + std::string(16, ' ') +
                      "0123456789ABCDEFJ\n");
}

}  // namespace
}  // namespace ioview::interim
