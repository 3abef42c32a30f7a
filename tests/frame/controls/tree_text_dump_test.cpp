// The text of a grid: how columns share a line, and the file that it goes to.

#include "frame/controls/tree_text_dump.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <numeric>

#include "platform/base/files.h"
#include "tests/frame/controls/tree_grid_stage.h"
#include "tests/support/temp_dir.h"

namespace pvw::test {
namespace {

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

class TreeDumpTest : public TreeGridStage {};

TEST_F(TreeDumpTest, AFileIsWrittenWholeOrStaysAsItWas) {
  const TempDir dir;
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
