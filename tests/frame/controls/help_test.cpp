// Help on a control of a dialog and for a pane, through help files beside a component and engines of both
// kinds.

#include <gmock/gmock.h>

#include <filesystem>

#include "frame/controls/dlg_with_help.h"
#include "frame/controls/html_help.h"
#include "platform/base/system.h"
#include "tests/frame/controls/modules/help_module.h"
#include "tests/support/scopes.h"
#include "tests/support/temp_dir.h"

namespace pvw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kDialog = 9003;
constexpr std::uint32_t kControl = 9001;
constexpr platform::HWND kItem = 77;

// A component "c:\...\PvwIO.dll" is loaded, and its file is the system's help engine too.
class HelpTest : public testing::Test {
 protected:
  HelpTest() {
    std::filesystem::copy_file(BINARY_DIR "/test_modules/help_module.so", dir.Native("PvwIO.dll"));
    loaded_ = platform::LoadLibrary(dir.Path("PvwIO.dll"));
    component = platform::GetProc<test::HelpModule*()>(loaded_, "GetHelpModule")();
    component->app.m_helpFilePath = "c:\\own.chm";
    platform::System().help_engine = dir.Path("PvwIO.dll");
    platform::System().system_directory = dir.Path();
    ForgetEngine();
  }
  ~HelpTest() override {
    ForgetEngine();
    platform::FreeLibrary(loaded_);
  }
  static void ForgetEngine() {
    platform::FreeLibrary(g_hHtmlHelpLibrary);
    g_hHtmlHelpLibrary = nullptr;
    g_pHtmlHelpEntry = nullptr;
    g_bHtmlHelpUnavailable = false;
  }

  // Whether a dialog serves the request.
  bool Ask(std::uint32_t control = kControl, std::uint32_t type = platform::HELPINFO_WINDOW) {
    CDlgWithHelp dialog(kDialog, nullptr);
    EXPECT_TRUE(dialog.Create({.style = platform::WS_POPUP}));
    asked = std::to_string(dialog.GetHandle());
    const platform::HELPINFO info{type, control, kItem};
    const bool served = dialog.Send(platform::WM_HELP, 0, reinterpret_cast<platform::LPARAM>(&info)) != 0;
    dialog.DestroyWindow();
    return served;
  }
  const std::vector<std::string>& Calls() const { return component->calls; }

  const test::TempDir dir;
  test::HelpModule* component;
  std::string asked;  // the dialog's handle

 private:
  const test::SystemAnswers before_;
  platform::HMODULE loaded_;
};

// 0xA32B2329 is 2737513257: 0x80000000, dialog 9003 in the upper half, control 9001 in the lower.

TEST_F(HelpTest, AsksTheEngineForTheControlsPopup) {
  EXPECT_FALSE(Ask()) << "there is no help file";
  dir.Write("PvwIO.chm", "");
  dir.Write("PvwIO.hlp", "");
  platform::System().version_major = 5;
  for (const std::uint32_t control : {0u, 0xFFFFFFFFu}) EXPECT_FALSE(Ask(control)) << control;
  EXPECT_TRUE(Ask(kControl, 2)) << "a menu item: it is answered for, without help";
  EXPECT_THAT(Calls(), IsEmpty());

  EXPECT_TRUE(Ask());
  EXPECT_THAT(Calls(),
              ElementsAre("html 77 " + dir.Path("PvwIO.chm") + "::/CONTEXT.TXT 17: 9001 2737513257 0"))
      << "a .chm file comes before a .hlp file";
  component->result = 0;
  EXPECT_FALSE(Ask()) << "not served: the system goes on";
}

TEST_F(HelpTest, AnOldSystemShowsTheOldKindOfFile) {
  const std::string hlp = dir.Path("PvwIO.hlp");
  dir.Write("PvwIO.hlp", "");
  platform::System().version_major = 6;
  platform::System().version_minor = 0;
  EXPECT_TRUE(Ask());
  EXPECT_THAT(Calls(), IsEmpty()) << "the first system without the engine";
  platform::System().version_major = 5;
  platform::System().version_minor = 2;
  EXPECT_TRUE(Ask());
  EXPECT_THAT(Calls(), ElementsAre("win " + asked + " " + hlp + " 8 2737513257")) << "the last with it";
  EXPECT_EQ(component->application_path, hlp);
  EXPECT_EQ(component->app.m_helpFilePath, "c:\\own.chm") << "put back";
  platform::System().help_engine.clear();
  EXPECT_TRUE(Ask()) << "also where the machine has no engine";
}

TEST_F(HelpTest, TakesTheNamedEngineElseTheUsualOneAndElseNoneEver) {
  const auto call = [] { return CallHtmlHelp(5, "c:\\a.chm", 15, 3); };
  component->result = 9;
  EXPECT_EQ(call(), 9u);
  EXPECT_THAT(Calls(), ElementsAre("html 5 c:\\a.chm 15: 3"));

  ForgetEngine();
  platform::System().help_engine = dir.Path("missing.dll");
  std::filesystem::rename(dir.Native("PvwIO.dll"), dir.Native("hhctrl.ocx"));
  EXPECT_EQ(call(), 9u) << "the usual one lies among the system's own";

  ForgetEngine();
  std::filesystem::rename(dir.Native("hhctrl.ocx"), dir.Native("elsewhere.dll"));
  platform::System().help_engine.clear();
  EXPECT_EQ(call(), 0u);
  platform::System().help_engine = dir.Path("elsewhere.dll");
  EXPECT_EQ(call(), 0u) << "it isn't looked for again";
}

TEST_F(HelpTest, ATopicFollowsThePathOfTheApplicationsHelpFile) {
  EXPECT_EQ(ShowHelpTopic(5, "::/a.htm", 15, 3), 1u);
  EXPECT_EQ(ShowHelpTopic(5, nullptr, 15, 0), 1u);
  component->app.m_helpFilePath.clear();
  EXPECT_EQ(ShowHelpTopic(5, nullptr, 15, 0), 0u) << "no path, no call";
  EXPECT_THAT(Calls(), ElementsAre("html 5 c:\\own.chm::/a.htm 15: 3", "html 5 c:\\own.chm 15: 0"));
}

}  // namespace
}  // namespace pvw
