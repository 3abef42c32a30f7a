// The text of a grid: titles, rule, rows; in memory and as a file.

#include "frame/controls/tree_text_dump.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <numeric>

#include "platform/base/files.h"
#include "platform/base/text.h"
#include "tests/frame/controls/tree_grid_stage.h"
#include "tests/support/temp_dir.h"

namespace pvw::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

TEST(TreeDumpLayout, ColumnsShareALineByTheirPixels) {
  struct Row {
    const char* name;
    std::vector<int> pixels;
    std::vector<std::size_t> widths;
    std::string titles;
  };
  const Row rows[] = {
      {"a title that just fits, and two that don't",
       {30, 20, 45, 745},
       {3, 2, 4, 75},
       "OneFour" + std::string(71, ' ')},
      {"one alone has it all", {7, 0, 0, 0}, {85, 0, 0, 0}, "One" + std::string(82, ' ')},
      {"all are hidden", {0, 0, 0, 0}, {0, 0, 0, 0}, ""},
      {"the widest there are",
       {32767, 32767, 32767, 1},
       {28, 28, 28, 0},
       "One" + std::string(25, ' ') + "Two" + std::string(25, ' ') + "Three" + std::string(23, ' ')},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::vector<DumpColumn> columns = {
        {"One", row.pixels[0]}, {"Two", row.pixels[1]}, {"Three", row.pixels[2]}, {"Four", row.pixels[3]}};
    const DumpHeader header = LayOutHeader(columns);
    EXPECT_THAT(header.widths, ElementsAreArray(row.widths));
    EXPECT_EQ(header.titles, row.titles);
    EXPECT_EQ(header.rule,
              std::string(std::accumulate(row.pixels.begin(), row.pixels.end(), std::size_t{0}), '-'));
  }
}

TEST(TreeDumpLayout, ATextThatIsTooLongKeepsItsLastCharacterBelowTheTop) {
  struct Row {
    const char* name;
    unsigned page;
    std::size_t level, width;
    std::string cell, written;
  };
  const Row rows[] = {
      {"fits to the last", 65001, 1, 4, "abcd", "abcd"},
      {"is cut", 65001, 1, 4, "abcdefg", "abcg"},
      {"in a hidden column", 65001, 3, 0, "abc", ""},
      {"at the top it isn't cut", 65001, 0, 2, "abc", "abc"},
      {"two bytes are one column", 65001, 1, 3, "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F",
       "\xC3\xA4\xC3\xB6\xC3\x9F"},
      {"half a character gives way to a blank", 932, 1, 4, "\x83\x41\x83\x42\x83\x43z", "\x83\x41 z"},
      {"a wide last character alone, in one column", 932, 1, 1, "ab\x83\x5C", " "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    platform::SetAnsiCodePage(row.page);
    std::string out;
    AppendRow(out, {row.level, false, false, {"", row.cell}}, std::vector<std::size_t>{30, row.width});
    EXPECT_EQ(out.substr(30), row.written + '\n');
  }
  platform::SetAnsiCodePage(65001);
  std::string out;
  AppendRow(out, {1, false, false, {"a", "b"}}, std::vector<std::size_t>{0, 0});
  EXPECT_EQ(out, "") << "a line that nothing is left of is no line";
}

class TreeDumpTest : public TreeGridStage {
 protected:
  void Narrow() { SetWidths(tree, {240, 80, 60, 60}); }  // 46, 15, 11, 11 columns
  TempDir dir;
  const std::string header = "Name" + std::string(42, ' ') + "Address" + std::string(8, ' ') + "Value" +
                             std::string(6, ' ') + "Access     \n" + std::string(440, '-') + '\n';
};

TEST_F(TreeDumpTest, ShowsTheTreeAsItIsOnTheScreen) {
  Narrow();
  EXPECT_EQ(tree.GetDumpText(), header) << "no rows";
  Fill("-PORT\n  DATA|H'1000|FF|RW\n    BIT0\n  -DIR|H'1001\n    BIT1||1\nTIMER\n  null\nEMPTY\n");
  const auto line = [](std::string first, const std::string& address = "", const std::string& value = "",
                       const std::string& access = "") {
    first.resize(46, ' ');
    first.resize(46 + 15, ' ');
    first.replace(46, address.size(), address);
    return first + value + std::string(11 - value.size(), ' ') + access +
           std::string(11 - access.size(), ' ') + '\n';
  };
  const std::string rows = line("[-]-- PORT") + line(" |[+]-- DATA", "H'1000", "FF", "RW") +
                           line(" |[-]-- DIR", "H'1001") + line(" | | |--- BIT1", "", "1") +
                           line("[+]-- TIMER") + line(" |--- EMPTY");
  EXPECT_EQ(tree.GetDumpText(), header + rows);

  tree.MarkChanged(items["DIR"]);
  const std::string path = dir.Write("out.txt", "old");
  EXPECT_TRUE(tree.DumpToFile(path));
  std::string on_disk = platform::ReadNativeFile(dir.Native("out.txt").string())->bytes;
  EXPECT_EQ(std::ranges::count(on_disk, '\r'), 8);
  std::erase(on_disk, '\r');
  EXPECT_EQ(on_disk, header + rows);

  tree.SetHeaderShown(false);
  EXPECT_EQ(tree.GetDumpText(), rows) << "the widths of the last file hold on";
}

TEST_F(TreeDumpTest, AFileIsWrittenWholeOrStaysAsItWas) {
  Fill("A\n");
  const std::string path = dir.Write("out.txt", "old");
  EXPECT_FALSE(tree.DumpToFile(dir.Path("missing\\out.txt")));
  EXPECT_FALSE(tree.DumpToFile(dir.Path())) << "a directory";

  std::filesystem::permissions(dir.Native("out.txt"), std::filesystem::perms::owner_read);
  EXPECT_FALSE(tree.DumpToFile(path)) << "a read-only file";
  std::filesystem::permissions(dir.Native("out.txt"), std::filesystem::perms::owner_all);

  // The disk is full behind 100 bytes.
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{100, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const bool written = tree.DumpToFile(path);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(written);
  EXPECT_EQ(platform::ReadNativeFile(dir.Native("out.txt").string())->bytes, "old");

  std::filesystem::create_symlink(dir.Native("out.txt"), dir.Native("link.txt"));
  EXPECT_TRUE(tree.DumpToFile(dir.Path("link.txt")));
  EXPECT_NE(platform::ReadNativeFile(dir.Native("out.txt").string())->bytes, "old") << "by way of a link";
  EXPECT_EQ(std::filesystem::status(dir.Native("out.txt")).permissions(), std::filesystem::perms::owner_all);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Native()), {}), 2)
      << "nothing is left beside";
}

TEST_F(TreeDumpTest, DeepAndLongTreesCostTheirRows) {
  HTREEITEM deepest = platform::kTreeRoot;
  for (int level = 0; level < 30000; ++level) {
    const HTREEITEM item = tree.InsertItem("deep", -1, deepest);
    if (level > 0) tree.Expand(deepest, platform::TVE_EXPAND);
    deepest = item;
  }
  for (int row = 0; row < 30000; ++row) tree.InsertItem("last", -1);
  const std::string text = tree.GetDumpText();
  // Every line but that of the first row is as long as its columns, however deep the row.
  EXPECT_EQ(text.size(), 86u + 501u + 60000u * 86u);
}

}  // namespace
}  // namespace pvw::test
