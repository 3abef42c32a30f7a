// A pane's grid as its user sees it, red rows, columns that hide, the edit of a cell; what it keeps between
// two sessions, the file that its text goes to, and the pages of 67 lines that it is printed on.

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <functional>
#include <utility>

#include "frame/controls/row_walk.h"
#include "frame/controls/tree_grid_ctrl.h"
#include "frame/controls/tree_print.h"
#include "host/host_ptr.h"
#include "platform/base/files.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/platform/gui/tree_text.h"
#include "tests/support/fake_host.h"
#include "tests/support/temp_dir.h"

namespace pvw::test {
namespace {

using platform::HTREEITEM;
using testing::ElementsAre;

// Columns Name 200, Address 100, Value 100, Access 100 and room for four rows.
class TreeGridTest : public testing::Test {
 protected:
  // Answers the opening and closing of rows.
  class Owner : public platform::CWnd {
   public:
    explicit Owner(TreeGridTest& test) : m_test(test) {}
    platform::LRESULT WindowProc(const platform::MSG& msg) override {
      if (msg.message != platform::WM_NOTIFY) return CWnd::WindowProc(msg);
      auto& header = *reinterpret_cast<platform::NMHDR*>(msg.lParam);
      if (header.code == platform::LVN_ENDLABELEDIT) ++m_test.edits_ended;
      if (header.code != platform::TVN_ITEMEXPANDING || !m_test.opens) return 0;
      return m_test.opens(reinterpret_cast<platform::NMTREEVIEW&>(header).item) ? 0 : 1;
    }

   private:
    TreeGridTest& m_test;
  };

  TreeGridTest() {
    platform::SetDisplay(&display);
    owner.Create({.style = platform::WS_POPUP | platform::WS_VISIBLE, .rect = {0, 0, 400, 90}});
    tree.Create({.rect = {0, 0, 400, 90}, .parent = owner.GetHandle(), .id = 200});
    tree.SetTreeStyle(platform::SECTreeCtrl::kHasButtons);
    tree.SetHeaderShown(true);
    tree.SetColumnWidth(0, 200);
    for (const int column : {1, 2, 3}) tree.InsertColumn(column, "", platform::TextAlign::Left, 100);
    host.ClearTranscript();
  }
  ~TreeGridTest() override {
    owner.DestroyWindow();
    platform::SetDisplay(nullptr);
  }

  void Fill(const std::string& text) {
    tree.DeleteAllItems();
    platform::FillTree(tree, text, items);
  }
  std::string Rows() const { return platform::ShownRows(tree); }
  void ToggleColumn(platform::UINT column) { tree.Send(platform::WM_COMMAND, column); }
  std::vector<int> Widths() const {
    std::vector<int> widths;
    for (int i = 0; i < tree.GetColumnCount(); ++i) widths.push_back(tree.GetColumnWidth(i));
    return widths;
  }
  // The texts that are drawn in red.
  std::string RedTexts() {
    std::istringstream lines(platform::PaintedText(tree, 0, 90));
    std::string texts;
    for (std::string line; std::getline(lines, line);) {
      const std::size_t red = line.find(" 0000FF ");
      if (line.starts_with("text") && red != std::string::npos) texts += line.substr(red + 8);
    }
    return texts;
  }

  FakeHost host;
  platform::ScopedBstr no_name{""};
  platform::BSTR none = no_name.Get();
  CSessionStore store{
      GetService<IQDataManager>(&host, IID_IQDataManager), none, none, none, none, ID_SessionStore};
  std::function<bool(HTREEITEM)> opens;  // empty: every row opens and closes
  int edits_ended = 0;
  platform::ItemsByName items;
  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Fail};
  Owner owner{*this};
  CTreeGridCtrl tree;
};

TEST_F(TreeGridTest, AChangedRowIsRedInAllItsColumnsUntilTheMarksAreCleared) {
  Fill("A|1|2|RW\nB|3|4|R\n");
  tree.MarkChanged(items["B"]);
  tree.MarkChanged(items["B"]);
  EXPECT_EQ(RedTexts(), R"("B""3""4")");

  Fill("C|5|6|RW\nD|7|8|R\n");
  EXPECT_EQ(RedTexts(), "") << "the mark of a row that is gone passes to no other";

  tree.MarkChanged(items["C"]);
  tree.ClearChanged();
  EXPECT_EQ(RedTexts(), "");
}

TEST_F(TreeGridTest, AnOpenEditGivesItsTextKeepsTheColumnsAndEndsWithoutAWordOnceItIsClosing) {
  Fill("A|1|2|RW\n");
  std::string text = "left alone";
  EXPECT_FALSE(tree.GetEditText(text));
  for (const platform::WPARAM id : {0u, 4u, 32771u}) tree.Send(platform::WM_COMMAND, id);
  tree.Send(platform::WM_COMMAND, 1, 99);
  EXPECT_THAT(Widths(), ElementsAre(200, 100, 100, 100))
      << "the first column, none, another command, and what a control with the id of a column tells";

  ASSERT_TRUE(tree.EditCell(items["A"], 2));
  platform::user::TypeText("1F");
  EXPECT_TRUE(tree.GetEditText(text));
  EXPECT_EQ(text, "1F");
  ToggleColumn(2);
  EXPECT_THAT(Widths(), ElementsAre(200, 100, 100, 100)) << "no column hides meanwhile";
  platform::SetFocus(tree.GetHandle());
  EXPECT_EQ(edits_ended, 1);
  EXPECT_FALSE(tree.GetEditText(text));

  ASSERT_TRUE(tree.EditCell(items["A"], 2));
  tree.MarkEditClosing();
  EXPECT_EQ(tree.Send(platform::WM_COMMAND, 32771), 1) << "commands are taken";
  platform::SetFocus(owner.GetHandle());
  EXPECT_TRUE(tree.GetEditText(text));
  tree.DestroyWindow();
  EXPECT_EQ(edits_ended, 1);
}

TEST_F(TreeGridTest, AWalkGoesOverTheRowsBelowItsTopAndEndsWhereItsRowHasGone) {
  Fill("-A\n  -a\n    x\n  b\nB\n");
  std::string walked;
  for (RowWalk walk(tree, 1, items["A"]); walk.Row() != 0; walk.Next()) {
    walked += tree.GetItemText(walk.Row(), 0) + std::to_string(walk.Depth());
  }
  EXPECT_EQ(walked, "a0x1b0");
  RowWalk walk(tree, 1, items["A"]);
  tree.DeleteItem(items["a"]);
  walk.Next();
  EXPECT_EQ(walk.Row(), 0u);
}

TEST_F(TreeGridTest, FindsTheRowThatTheSelectionLiesBelow) {
  Fill("-A\n  -a\n    x\n  b\nB\n  c\n    y\nC\n");
  const auto above = [&](HTREEITEM selected) {
    tree.SelectItem(selected);
    std::string names;
    for (const auto& [row, item] : items) {
      if (tree.HasSelectedDescendant(item)) names += row;
    }
    return names;
  };
  EXPECT_EQ(above(items["x"]), "Aa");
  EXPECT_EQ(above(items["A"]), "") << "a row isn't below itself";
  EXPECT_EQ(above(items["y"]), "Bc") << "below closed rows too";
  EXPECT_EQ(above(0), "");
  EXPECT_FALSE(tree.HasSelectedDescendant(0));
}

TEST_F(TreeGridTest, ASessionBringsBackWidthsOpenRowsAndPositions) {
  Fill("-A\n  -a\n    x\n  b\nB\n  -c\n    y\nC\n");
  ToggleColumn(2);
  tree.SetScrollPos(true, 1);
  EXPECT_EQ(tree.SaveState(store, "K"), 0);

  Fill("A\n  a\n    x\n  b\n-B\n  c\n    y\nC\n");
  for (const int column : {0, 1, 2}) tree.SetColumnWidth(column, 50);
  tree.SetColumnWidth(3, 0);
  EXPECT_EQ(tree.LoadState(store, "K"), 0);
  EXPECT_EQ(Rows(), "-A\n  -a\n    .x\n  .b\n+B\n.C\n");
  EXPECT_THAT(Widths(), ElementsAre(200, 100, 0, 100));
  EXPECT_EQ(tree.GetScrollPos(true), 1);
  ToggleColumn(2);
  EXPECT_EQ(tree.GetColumnWidth(2), 100) << "shown again with the width from before it was hidden";

  host.ClearTranscript();
  CTreeGridCtrl one;
  one.SaveState(store, "ONE");
  one.LoadState(store, "ONE");
  one.SaveColumnWidths(GetService<IQSettings>(&host, IID_IQSettings), "ONE");
  EXPECT_THAT(host.Transcript(), testing::Not(testing::Contains(testing::HasSubstr("ColWidth"))))
      << "one column has no width to keep";
}

TEST_F(TreeGridTest, TheOwnerMayRefuseARowOrDoAnythingWhileASessionOpensThem) {
  for (int row = 0; row < 9; ++row) store.WriteInt("KExp" + std::to_string(row), row == 2 ? 0 : 7);
  Fill("A\n  a\n    x\nB\n  b\n");
  opens = [&](HTREEITEM item) { return item != items["A"]; };
  tree.LoadState(store, "K");
  EXPECT_EQ(Rows(), "+A\n-B\n  .b\n") << "A, a and x were numbered 0 to 2 all the same";
  opens = {};
  tree.Expand(items["A"], platform::TVE_EXPAND);
  EXPECT_EQ(Rows(), "-A\n  -a\n    .x\n-B\n  .b\n");

  Fill("A\n  a\nB\n  b\nC\n  c\n");
  opens = [&](HTREEITEM item) {
    if (item == items["A"]) tree.InsertItem("new", -1, item);
    if (item == items["B"]) tree.DeleteItem(item);
    return true;
  };
  tree.LoadState(store, "K");
  EXPECT_EQ(Rows(), "-A\n  .a\n  .new\n+C\n") << "the walk ends with the row that it stands on";

  opens = [&](HTREEITEM) { return tree.DestroyWindow(), true; };
  host.ClearTranscript();
  tree.LoadState(store, "K");
  EXPECT_THAT(host.Asked("GetSessionValue"), testing::Not(testing::Contains(testing::HasSubstr("Scroll"))));
}

TEST(TreeDump, AFileIsWrittenWholeOrStaysAsItWas) {
  const TempDir dir;
  CTreeGridCtrl tree;
  tree.InsertItem(std::string(200, 'A'), -1);
  const std::string path = dir.Write("out.txt", "old");
  const auto content = [&] { return platform::ReadNativeFile(dir.Native("out.txt").string())->bytes; };

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
  EXPECT_EQ(content(), "old");

  std::filesystem::create_symlink(dir.Native("out.txt"), dir.Native("link.txt"));
  EXPECT_TRUE(tree.DumpToFile(dir.Path("link.txt")));
  EXPECT_NE(content(), "old") << "by way of a link";
  EXPECT_EQ(std::filesystem::status(dir.Native("out.txt")).permissions(), std::filesystem::perms::owner_all);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Native()), {}), 2)
      << "nothing is left beside";
}

TEST(TreeDump, DeepAndLongTreesCostTheirRows) {
  CTreeGridCtrl tree;
  tree.SetHeaderShown(true);
  tree.SetColumnWidth(0, 500);
  HTREEITEM deepest = platform::kTreeRoot;
  for (int level = 0; level < 30000; ++level) {
    const HTREEITEM item = tree.InsertItem("deep", -1, deepest);
    if (level > 0) tree.Expand(deepest, platform::TVE_EXPAND);
    deepest = item;
  }
  for (int row = 0; row < 30000; ++row) tree.InsertItem("last", -1);
  // Every line but that of the rule is as long as its columns, however deep the row.
  EXPECT_EQ(tree.GetDumpText().size(), 86u + 501u + 60000u * 86u);
}

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
    pages.back().push_back(std::to_string(at.y) + ' ' + std::string(text));
  }
  void EndPage() override { EXPECT_TRUE(std::exchange(page_open, false)); }
  void EndDocument() override {}
};

TEST(TreePrint, FillsPagesOf67Lines) {
  const std::pair<int, std::vector<std::size_t>> rows[] = {
      {0, {0}}, {66, {66}}, {67, {67, 2}}, {67 + 65 + 1, {67, 67, 3}}};
  for (const auto& [lines, pages] : rows) {
    SCOPED_TRACE(lines);
    std::string text;
    for (int line = 0; line < lines; ++line) text += std::to_string(line) + " \r\n";
    PageRecorder printer;
    PrintPages(printer, text, "titles ", "---");
    std::vector<std::size_t> sizes;
    for (const auto& page : printer.pages) sizes.push_back(page.size());
    EXPECT_EQ(sizes, pages);
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
