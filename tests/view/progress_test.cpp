// The opening of the second pane's rows, with its dialog and its worker.

#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

using platform::CDialog;
using platform::DialogAnswer;
using platform::DialogStep;

class ProgressTest : public PaneStage {
 protected:
  // Modules M0 and on, all selected, with one register each.
  void OpenModules(int count) {
    std::string text = "[Modules]\nFileVersion=1\n";
    std::string sections;
    std::string selection = "{";
    for (int i = 0; i < count; ++i) {
      const std::string name = "M" + std::to_string(i);
      text += "Module" + std::to_string(i + 1) + "=" + name + "\n";
      sections += "[" + name + "]\nR=FF00" + std::to_string(10 + i) + "\n";
      selection += name + "?{R?}";
    }
    dir.Write("device.io", text + sections);
    OpenView(selection + "}");
  }
  int OpenRows() {
    int open = 0;
    for (HTREEITEM row = Tree(1).GetRootItem(); row != 0; row = Tree(1).GetNextSiblingItem(row)) {
      open += Tree(1).IsExpanded(row) ? 1 : 0;
    }
    return open;
  }
  DialogStep Once(int open, std::function<void(CDialog&)> act) {
    return {[=, this](CDialog&) { return OpenRows() == open; }, std::move(act)};
  }
  static constexpr const char* kLoading = "dialog: Loading...\n";
};

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
}

TEST_F(ProgressTest, ALoadInTheMidstOfItStartsAnew) {
  OpenModules(6);
  display.Give(
      DialogAnswer{{Once(2, [&](CDialog&) { Pane(0).LoadIOFile(dir.Path("device.io"), 0); })}, true});
  Pane(1).RebuildTree();
  EXPECT_EQ(OpenRows(), 6);
  EXPECT_EQ(shown, std::string(kLoading) + kLoading);
}

}  // namespace
}  // namespace pvw::test
