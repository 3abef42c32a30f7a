// The opening of the second pane's rows, with its dialog and its worker.

#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"
#include "view/dlg_progress.h"

namespace pvw::test {
namespace {

using platform::CDialog;
using platform::DialogAnswer;
using platform::DialogStep;

TEST(RowsToOpen, AreTwoLevelsDeepAndTopLevelOnesAllOfThem) {
  platform::SECTreeCtrl tree;
  const auto add = [&](const char* name, HTREEITEM parent) { return tree.InsertItem(name, 0, parent); };
  EXPECT_EQ(NextRowToOpen(tree, 0), 0u);
  add("leaf", platform::kTreeRoot);
  const HTREEITEM module = add("module", platform::kTreeRoot);
  add("plain", module);
  add("deeper", add("field", add("register", module)));
  add("plain", module);
  add("field", add("last", module));
  add("end", platform::kTreeRoot);
  std::string names;
  for (HTREEITEM row = NextRowToOpen(tree, 0); row != 0; row = NextRowToOpen(tree, row)) {
    names += tree.GetItemText(row, 0) + ' ';
  }
  EXPECT_EQ(names, "leaf module register last end ");
  tree.DeleteAllItems();
  EXPECT_EQ(NextRowToOpen(tree, module), 0u) << "a row that is gone";
}

class ProgressTest : public PaneStage {
 protected:
  // Modules M0 and on, all selected, with one register each.
  void OpenModules(int count, const std::string& first = {}) {
    std::string text = "[Modules]\nFileVersion=1\n";
    std::string sections;
    std::string selection = "{" + first;
    for (int i = 0; i < count; ++i) {
      const std::string name = "M" + std::to_string(i);
      text += "Module" + std::to_string(i + 1) + "=" + name + "\n";
      sections += "[" + name + "]\nR=FF00" + std::to_string(10 + i) + "\n";
      selection += name + "?{R?}";
    }
    dir.Write("device.io", text + sections);
    OpenView(selection + "}");
  }
  int OpenRows(std::size_t pane = 1) {
    int open = 0;
    for (HTREEITEM row = Tree(pane).GetRootItem(); row != 0; row = Tree(pane).GetNextSiblingItem(row)) {
      open += Tree(pane).IsExpanded(row) ? 1 : 0;
    }
    return open;
  }
  DialogStep Once(int open, std::function<void(CDialog&)> act) {
    return {[=, this](CDialog&) { return OpenRows() == open; }, std::move(act)};
  }
  static constexpr const char* kLoading = "dialog: Loading...\n";
};

TEST_F(ProgressTest, OpensWhatTheCountSays) {
  const struct {
    const char* name;
    int modules;
    bool locked, running;
    int open;
    std::string shown;
  } kRows[] = {
      {"no row, no dialog", 0, false, false, 0, ""},
      {"one row is worth a dialog", 1, false, false, 1, kLoading},
      {"many rows", 40, false, false, 40, kLoading},
      {"a locked view keeps them closed, and the dialog ends", 3, true, false, 0, kLoading},
      {"while the target runs none is opened", 3, false, true, 0, ""},
  };
  for (const auto& row : kRows) {
    OpenModules(row.modules);
    frame.locked = row.locked;
    host.target_running = row.running ? platform::S_OK : platform::E_FAIL;
    Pane(1).RebuildTree();
    EXPECT_EQ(OpenRows(), row.open) << row.name;
    EXPECT_EQ(shown, row.shown) << row.name;
    frame.locked = false;
    ClosePane(0), ClosePane(1);
    data.DeleteModules(), data.DeleteSelection();
    shown.clear();
  }
}

TEST_F(ProgressTest, ATopLevelRowWithoutChildrenCostsTheLastRowItsTurn) {
  dir.Write("device.io",
            "[Modules]\nFileVersion=2\nModule1=BAD\nModule2=PORT\nModule3=TIMER\n[BAD]\n"
            "[PORT]\nreg0=P0\n[P0]\nid=P0 0xFF0010 B A H\n[TIMER]\nreg0=T0\n[T0]\nid=T0 0xFF0020 B A H\n");
  OpenView("{BAD?PORT?{P0?}TIMER?{T0?}}");
  Pane(1).RebuildTree();
  EXPECT_TRUE(Tree(1).IsExpanded(Row(1, "PORT")));
  EXPECT_FALSE(Tree(1).IsExpanded(Row(1, "TIMER")));
}

TEST_F(ProgressTest, ADeepSelectionEndsWhenNothingIsLeftToOpen) {
  OpenView("{OLD?{A?{B?{C?}}}}");
  Pane(1).RebuildTree();
  EXPECT_EQ(Rows(1), "[-] 3 OLD\n  [-] 3 A\n    [+] 3 B\n");
  EXPECT_EQ(shown, kLoading);
}

TEST_F(ProgressTest, TheBarFollowsTheCountAndNothingOpensAfterCancel) {
  OpenModules(12);
  for (int i = 0; i < 500; ++i) {
    const int open = i % 12;
    int bar = -1;
    const auto cancel = [&](CDialog& dialog) {
      dialog.Send(platform::WM_TIMER, 1);
      bar = static_cast<platform::CProgress*>(dialog.GetDlgItem(13024))->GetPos();
      if (i % 2 == 0) {
        platform::user::PressCancel(dialog);
      } else {
        platform::user::PressKey(platform::VK_ESCAPE);
      }
    };
    display.Give(DialogAnswer{{Once(open, cancel)}, true});
    Pane(1).RebuildTree();
    display.Settle();
    ASSERT_EQ(bar, open * 100 / 12);
    ASSERT_EQ(OpenRows(), open);
  }
}

TEST_F(ProgressTest, ItEndsWithItsPane) {
  OpenModules(5);
  display.Give(DialogAnswer{{Once(2, [&](CDialog&) { ClosePane(1); })}, true});
  Pane(1).RebuildTree();
  EXPECT_FALSE(Record("M1").IsExpanded());

  // Inside of a read, and so inside of the worker's call.
  ClosePane(0);
  data.DeleteModules(), data.DeleteSelection();
  OpenModules(5);
  int reads = 0;
  host.during["ReadDirect"] = [&] {
    if (++reads == 3) ClosePane(1), ClosePane(0);
  };
  Pane(1).RebuildTree();
  EXPECT_EQ(reads, 3);
  EXPECT_FALSE(Record("M2").IsExpanded());
}

TEST_F(ProgressTest, ALoadInTheMidstOfItStartsAnew) {
  OpenModules(6);
  display.Give(
      DialogAnswer{{Once(2, [&](CDialog&) { Pane(0).LoadIOFile(dir.Path("device.io"), 0); })}, true});
  Pane(1).RebuildTree();
  EXPECT_EQ(OpenRows(), 6);
  EXPECT_EQ(shown, std::string(kLoading) + kLoading);
}

TEST_F(ProgressTest, TwoDialogsShareOneCountAndBothEnd) {
  OpenModules(6);
  display.Give(DialogAnswer{{Once(2,
                                  [&](CDialog&) {
                                    CDlgProgress inner(4, Pane(0));
                                    inner.DoModal();
                                  })},
                            true});
  Pane(1).RebuildTree();
  EXPECT_LE(OpenRows(0) + OpenRows(1), 6) << "each lowers the count for both";
  EXPECT_EQ(shown, std::string(kLoading) + kLoading);
}

}  // namespace
}  // namespace pvw::test
