// Controls of the component's dialogs, on a display without a screen.

#include <gmock/gmock.h>

#include "frame/controls/custom_edit.h"
#include "frame/controls/placeholder_button.h"
#include "frame/controls/sel_combo_box.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/support/fake_host.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

constexpr std::uint32_t kAllowed[] = {13, 37, 6, 0};

class DialogControlsTest : public testing::Test {
 protected:
  DialogControlsTest() {
    platform::SetDisplay(&display);
    owner.Create({.style = platform::WS_POPUP | platform::WS_VISIBLE, .rect = {0, 0, 300, 30}});
  }
  ~DialogControlsTest() override { platform::SetDisplay(nullptr); }
  void TearDown() override { owner.DestroyWindow(); }

  std::string shown;
  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Fail,
                                    [this](const std::string& line) { shown += line + '\n'; },
                                    [](const std::string& text) { ADD_FAILURE() << text; }};
  test::FakeHost host;
  platform::CWnd owner;
};

// The field that refuses what can't be part of a path, and the button that offers placeholders for it.
class PathFieldTest : public DialogControlsTest {
 protected:
  PathFieldTest() { host.global_placeholders.entries = {{"My directory", "MINE", "c:\\mine"}}; }
  void Make() {
    raw_edit.Create({.rect = {0, 0, 200, 20}, .parent = owner.GetHandle(), .id = 1});
    raw_button.Create({.rect = {200, 0, 220, 20}, .parent = owner.GetHandle(), .id = 2});
    ASSERT_TRUE(edit.SubclassDlgItem(1, owner));
    ASSERT_TRUE(button.Attach(2, owner));
    platform::SetFocus(edit.GetHandle());
  }
  void Put(std::string_view text, std::size_t from, std::size_t to) {
    edit.SetText(text);
    edit.SetSel(from, to);
    shown.clear();
  }
  void Pick(std::size_t line) {
    display.Give(platform::MenuAnswer{line});
    shown.clear();
    platform::user::ClickControl(button);
  }
  // The text with a bar for the caret.
  std::string State() const { return std::string(edit.GetText()).insert(edit.GetSelEnd(), "|"); }

  platform::CEdit raw_edit;
  platform::CButton raw_button;
  CUiCustomEditCtrl edit{"/;*?\"<>|", {"\\\\\\"}, kAllowed, &host};
  CUiPlaceholderButtonEB button{&edit, kAllowed, &host, 0};
};

TEST_F(PathFieldTest, ThreeBackslashesAreRefusedHoweverTheyMeetAndATrailByteIsNone) {
  Make();
  Put("a\\\\b\\c", 3, 4);
  edit.ReplaceSel("");
  EXPECT_EQ(edit.GetText(), "a\\\\b\\c") << "what stands between them deleted";
  EXPECT_EQ(shown, "beep\n");

  const test::CodePage page(932);
  Put("\x83\x5C\\", 3, 3);
  platform::user::TypeText("\\");
  EXPECT_EQ(edit.GetText(), "\x83\x5C\\\\");
  EXPECT_EQ(shown, "");
}

TEST_F(PathFieldTest, ATextThatIsNoLongerAllowedGoesBackAllTheSame) {
  Make();
  Put("$(MINE)", 7, 7);
  host.global_placeholders.entries.clear();
  platform::user::TypeText("x");
  EXPECT_EQ(State(), "$(MINE)|");
  EXPECT_EQ(shown, "beep\n");
  platform::user::PressKey(platform::VK_BACK);
  EXPECT_EQ(State(), "$(MINE|");
}

TEST_F(PathFieldTest, APlaceholderMayGoWhileTheMenuIsOpen) {
  Make();
  ASSERT_NE(button.GetImage(), nullptr);
  Put("x", 1, 1);
  host.during["GetGlobalPlaceholders"] = [&, call = 0]() mutable {
    if (++call == 2) host.global_placeholders.entries.clear();
  };
  Pick(5);
  EXPECT_EQ(State(), "x|");
  EXPECT_EQ(shown,
            "menu:\nConfiguration directory\n-\nQBN installation directory\n-\nCustom placeholders\n  My "
            "directory\nbeep\n");
  EXPECT_EQ(platform::GetFocus(), edit.GetHandle());
}

TEST_F(PathFieldTest, TheMenuHasRoomForAHundredCommandsAndOneThatIsNoPlaceholder) {
  host.global_placeholders.entries.clear();
  for (int i = 100; i < 300; ++i) {
    const std::string name = "N" + std::to_string(i);
    host.global_placeholders.entries.push_back({"", name, ""});
  }
  host.global_placeholders.entries.push_back({"Other", "AAA", ""});
  host.workspace_placeholders.entries = {{"Elsewhere", "UIPHCBPASSON", ""}, {"hidden", "N100", ""}};
  Make();
  Pick(5);
  EXPECT_THAT(shown, testing::StartsWith("menu:\nConfiguration directory\n-\nQBN installation "
                                         "directory\n-\nCustom placeholders\n  Other\n  N100\n"));
  EXPECT_THAT(shown, testing::EndsWith("  N195\n"))
      << "by name, and 97 of them, for a separator takes a command as well";
  EXPECT_EQ(State(), "$(AAA)|");

  host.global_placeholders.entries.clear();
  Pick(6);
  EXPECT_EQ(State(), "$(AAA)|");
  EXPECT_TRUE(button.RouteCommand(33510)) << "a command that the menu doesn't have";
  EXPECT_EQ(State(), "$(AAA)|");
}

// A combo box with a history at the host.
class SelComboBox : public DialogControlsTest {
 protected:
  SelComboBox() { box.Create({.rect = {0, 0, 100, 14}, .parent = owner.GetHandle(), .id = 312}); }

  std::string& Kept() { return host.session["ws prj cfg MRULABELS_DATAMANAGER_KEY"]; }
  std::string Selection() const {
    return box.GetCurrentText() + ' ' + std::to_string(box.GetSelStart()) + '-' +
           std::to_string(box.GetSelEnd());
  }

  CUiSelComboBox box{&host};
};

TEST_F(SelComboBox, LoadsIntoTheListAndPicksOnlyWhenAsked) {
  Kept() = "1F|0x2" + std::string(100000, '|');
  box.SetText("7");
  box.LoadHistory(false);
  EXPECT_EQ(box.GetStrings().size(), 20u) << "a text that somebody else stored is cut to what is kept";
  EXPECT_EQ(box.GetText(), "7");
  box.LoadHistory(true);
  EXPECT_EQ(box.GetText(), "1F");
  CUiSelComboBox windowless(&host);
  windowless.LoadHistory(true);
  EXPECT_THAT(windowless.GetStrings(), testing::IsEmpty());
}

TEST_F(SelComboBox, WhenACallFailsOrThereIsNoHostNothingIsKeptAndNobodyIsTold) {
  Kept() = "old";
  for (const char* call : {"GetCurrentWorkspace", "GetCurrentProject", "GetCurrentConfiguration", ""}) {
    SCOPED_TRACE(call);
    host.FailNone();
    *call != '\0' ? host.FailAll(call) : box.SetHost(nullptr);
    box.SetText("new");
    box.SaveHistory();
    box.LoadHistory(false);
    EXPECT_THAT(box.GetStrings(), testing::IsEmpty());
  }
  EXPECT_EQ(Kept(), "old");
  EXPECT_THAT(host.Asked("SetSessionValue"), testing::IsEmpty());
}

TEST_F(SelComboBox, RecordsTextAndSelectionAsTheyChange) {
  box.SetText("abc");
  EXPECT_EQ(Selection(), "abc 0-3");
  platform::SetFocus(box.GetHandle());
  EXPECT_EQ(Selection(), "abc 0-0") << "what the edit has";
  platform::user::TypeText("xy");
  EXPECT_EQ(Selection(), "xyabc 2-2");
  platform::user::PressKey(platform::VK_END, platform::MK_SHIFT);
  EXPECT_EQ(Selection(), "xyabc 2-5") << "a key that only selects";
  box.SetEditSel(1, 4);
  platform::user::ClickControl(box);
  EXPECT_EQ(Selection(), "xyabc 1-4");
  box.AddString("picked");
  platform::user::PressKey(platform::VK_DOWN);
  EXPECT_EQ(Selection(), "picked 0-6");
  box.SaveHistory();
  EXPECT_EQ(Kept(), "picked");
}

}  // namespace
}  // namespace pvw
