// What leaves a pane: files that can't be written, and rows that are dragged out.

#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "resources/ids.h"
#include "tests/view/pane_stage.h"
#include "view/drag_source.h"

namespace pvw::test {
namespace {

using platform::DragAnswer;
using platform::DragEffect;

TEST_F(PaneStage, AFileThatCannotBeWrittenStaysAsItIsAndIsForgotten) {
  OpenView();
  frame.save_dir = "c:\\before";
  frame.save_name = "before.txt";
  dir.Write("old.txt", "old");
  dir.Write("kept.txt", "old");
  std::filesystem::create_directory(dir.Native("sub.txt"));
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  std::filesystem::permissions(dir.Native("kept.txt"), std::filesystem::perms::owner_read);
  const struct {
    const char* name;
    std::string path;
    bool full;
  } kRows[] = {
      {"a directory that isn't there", dir.Path("no\\old.txt"), false},
      {"a directory that takes no files", "c:\\proc\\old.txt", false},
      {"a name that is a directory", dir.Path("sub.txt"), false},
      {"a file that is read only", dir.Path("kept.txt"), false},
      {"a disk that is full, over an old file", dir.Path("old.txt"), true},
  };
  for (const auto& row : kRows) {
    shown.clear();
    display.Give(platform::FileAnswer{row.path});
    const rlimit limit{row.full ? 100 : before.rlim_cur, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);  // no file grows any further
    EXPECT_TRUE(Pane(0).RouteCommand(32774));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(shown,
              "file dialog: Text File (*.txt)|*.txt|All Files (*.*)|*.*||, c:\\before, before.txt\n"
              "message: Error saving file\n")
        << row.name;
    EXPECT_EQ(frame.save_dir + frame.save_name, "c:\\beforebefore.txt") << row.name;
  }
  for (const char* name : {"old.txt", "kept.txt"}) {
    std::ifstream in(dir.Native(name));
    EXPECT_EQ(std::string((std::istreambuf_iterator<char>(in)), {}), "old") << name;
  }
}

TEST_F(PaneStage, AViewThatClosesUnderTheFileDialogWritesNothing) {
  OpenView();
  display.Give(platform::FileAnswer{dir.Path("rows.txt")});
  meanwhile = [&] { ClosePane(0); };
  Pane(0).RouteCommand(32774);
  EXPECT_FALSE(std::filesystem::exists(dir.Native("rows.txt")));
}

TEST_F(PaneStage, ARowIsDraggedOutAsItsAddress) {
  OpenView();
  Open(0, "PORT");
  const struct {
    const char* name;
    const char* row;
    DragAnswer answer;
    std::string shown;
  } kRows[] = {
      {"dropped into a text", "PORT/PDATA", DragAnswer::Drop, "drag: H'00FF0010\n"},
      {"a module has no address", "PORT", DragAnswer::Drop, "drag: \n"},
      {"ended by Escape", "PORT/PDATA", DragAnswer::Escape, "drag cancelled\n"},
      {"ended by the right button", "PORT/PDATA", DragAnswer::RightButton, "drag cancelled\n"},
      {"dropped where no text is taken", "PORT/PDATA", DragAnswer::Nowhere, "drag refused\n"},
  };
  const std::string before = Rows(0);
  for (const auto& row : kRows) {
    shown.clear();
    display.Give(row.answer);
    const platform::HWND tree = Pane(0).GetTreeWindow();
    const platform::POINT from = Tree(0).GetPartPoint(Row(0, row.row), platform::TVHT_ONITEMLABEL);
    const platform::POINT to{from.x + 9, from.y};
    platform::gui::Input({tree, platform::WM_LBUTTONDOWN, 0, platform::PointParam(from)});
    platform::gui::Input({tree, platform::WM_MOUSEMOVE, 0, platform::PointParam(to)});
    platform::gui::Input({tree, platform::WM_LBUTTONUP, 0, platform::PointParam(to)});
    EXPECT_EQ(shown, row.shown) << row.name;
  }
  display.Advance(1000);
  EXPECT_EQ(Rows(0), before);
}

TEST(DropSource, ShowsWhatADropWouldDo) {
  struct CursorDisplay final : platform::HeadlessDisplay {
    CursorDisplay() : HeadlessDisplay(Unanswered::Fail) { platform::SetDisplay(this); }
    ~CursorDisplay() override { platform::SetDisplay(nullptr); }
    void SetDragCursor(const platform::PictureResource& cursor) override { cursors.push_back(cursor.id); }
    std::vector<std::uint32_t> cursors;
  } display;
  CCtrlDropSource copying(true);
  copying.Begin();
  for (const DragEffect effect : {DragEffect::None, DragEffect::Copy, DragEffect::Copy, DragEffect::None}) {
    copying.Feedback(effect);
  }
  CCtrlDropSource moving(false);
  moving.Feedback(DragEffect::Copy);
  EXPECT_THAT(display.cursors,
              testing::ElementsAre(IDC_DROP_NONE, IDC_DROP_COPY, IDC_DROP_NONE, IDC_DROP_MOVE))
      << "only when it differs";
}

}  // namespace
}  // namespace pvw::test
