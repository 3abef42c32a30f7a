// Loading another definition by the Set I/O File dialog.

#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

using platform::CDialog;

constexpr std::uint32_t kLoad = 32773;
constexpr platform::UINT kEdit = 9001, kBrowse = 9002, kSave = 13001;
constexpr const char* kNotThere = "message [exclamation]: File \"";

class LoadTest : public PaneStage {
 protected:
  LoadTest() {
    dir.Write("other.io", "[Modules]\nFileVersion=3\nModule1=OTHER\n");
    std::filesystem::create_directory(dir.Native("folder.io"));
    host.paths.configuration_directory = dir.Path();
  }
  static void SetPath(CDialog& dialog, const std::string& path) { dialog.GetDlgItem(kEdit)->SetText(path); }
  static bool SavesPath(CDialog& dialog) {
    return static_cast<platform::CCheckBox*>(dialog.GetDlgItem(kSave))->GetCheck();
  }
  std::string Run(std::size_t pane, std::vector<platform::DialogStep> steps) {
    shown.clear();
    display.Give(platform::DialogAnswer{std::move(steps)});
    EXPECT_TRUE(Pane(pane).RouteCommand(kLoad));
    if (shown.starts_with("dialog: Set I/O File\n")) shown.erase(0, 21);
    return shown;
  }
};

TEST_F(LoadTest, TheDialogEndsOnlyWithAPathThatNamesAFile) {
  OpenView();
  frame.save_path = true;
  const auto refused = [&](const std::string& path) {
    return Run(0, {[&](CDialog& dialog) {
                     EXPECT_EQ(dialog.GetDlgItem(kEdit)->GetText(), frame.path);
                     EXPECT_TRUE(SavesPath(dialog));
                     SetPath(dialog, path);
                     platform::user::PressOk(dialog);
                     EXPECT_EQ(platform::GetFocus(), dialog.GetDlgItem(kEdit)->GetHandle());
                   },
                   &platform::user::PressCancel});
  };
  const auto not_there = [&](const std::string& path) {
    return kNotThere + path + "\" does not exist.\\nPlease enter an existing file.\n";
  };
  EXPECT_EQ(refused(""), "message [exclamation]: This entry is empty, please supply entry.\n");
  EXPECT_EQ(refused("$(CONFIGDIR)\\nowhere.io"), not_there(dir.Path("nowhere.io")));
  EXPECT_EQ(refused("other"), not_there(dir.Path("other"))) << "looked for as typed";
  EXPECT_EQ(refused("folder.io"), not_there(dir.Path("folder.io")));
  std::string dots = dir.Path() + "\\";
  while (dots.size() < 256) dots += ".\\";
  EXPECT_EQ(refused(dots + "other.io"), not_there(dots + "other.io")) << "too long for a path";
  EXPECT_FALSE(frame.dirty);
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
}

TEST_F(LoadTest, TheCommandRunsInTheFirstPaneAndKeepsThePathAsTheUserLeftIt) {
  OpenView("{PORT?{PDATA?}}");
  EXPECT_EQ(
      Run(1, {[](CDialog& dialog) { SetPath(dialog, "$(CONFIGDIR)\\other.io"); }, &platform::user::PressOk}),
      "dialog: Loading...\n");
  EXPECT_EQ(Rows(0), "[+] 0 OTHER\n");
  EXPECT_EQ(Rows(1), "[-] 3 PORT\n  [ ] 3 PDATA\n") << "what was selected and is missing";
  EXPECT_EQ(frame.path, "$(CONFIGDIR)\\other.io");
  EXPECT_FALSE(frame.save_path);
  EXPECT_TRUE(frame.dirty);
  EXPECT_EQ(platform::GetFocus(), Pane(0).GetTreeWindow());
  ClosePane(0);
  EXPECT_TRUE(Pane(1).RouteCommand(kLoad)) << "does nothing";
}

TEST_F(LoadTest, BrowseStartsAtThePathAndAsksForItToBeSaved) {
  OpenView();
  const auto browse = [](CDialog& dialog) { platform::user::ClickControl(*dialog.GetDlgItem(kBrowse)); };
  display.Give(platform::DialogAnswer{{browse, [&](CDialog& dialog) { EXPECT_FALSE(SavesPath(dialog)); },
                                       browse, [&](CDialog& dialog) { EXPECT_TRUE(SavesPath(dialog)); },
                                       &platform::user::PressOk}});
  display.Give(platform::CancelAnswer{});
  display.Give(platform::FileAnswer{dir.Path("other")});
  EXPECT_TRUE(Pane(0).RouteCommand(kLoad));
  EXPECT_THAT(shown, testing::HasSubstr("file dialog: I/O Files (*.io)|*.io| All Files (*.*)|*.*||, " +
                                        dir.Path() + "\\, \n"));
  EXPECT_EQ(frame.path, dir.Path("other.io"));
  EXPECT_TRUE(frame.save_path);
  EXPECT_EQ(Rows(0), "[+] 0 OTHER\n");
}

}  // namespace
}  // namespace pvw::test
