// The field that refuses what can't be part of a path, and the button that offers placeholders for it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "frame/controls/custom_edit.h"
#include "frame/controls/placeholder_button.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/support/fake_host.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

using platform::MenuAnswer;

constexpr std::uint32_t kAllowed[] = {13, 37, 6, 0};
constexpr platform::UINT kEdit = 1, kButton = 2;

class PathFieldTest : public testing::Test {
 protected:
  PathFieldTest()
      : display(
            platform::HeadlessDisplay::Unanswered::Fail,
            [this](const std::string& line) { shown += line + '\n'; },
            [](const std::string& text) { ADD_FAILURE() << text; }) {
    platform::SetDisplay(&display);
    owner.Create({platform::WS_POPUP | platform::WS_VISIBLE, 0, {0, 0, 300, 30}, 0, 0, "", 0});
    host.global_placeholders.entries = {{"My directory", "MINE", "c:\\mine"}};
  }
  ~PathFieldTest() override {
    owner.DestroyWindow();
    platform::SetDisplay(nullptr);
  }

  void Make() {
    raw_edit.Create({.rect = {0, 0, 200, 20}, .parent = owner.GetHandle(), .id = kEdit});
    raw_button.Create({.rect = {200, 0, 220, 20}, .parent = owner.GetHandle(), .id = kButton});
    edit =
        std::make_unique<CUiCustomEditCtrl>("/;*?\"<>|", std::vector<std::string>{"\\\\\\"}, kAllowed, &host);
    button = std::make_unique<CUiPlaceholderButtonEB>(edit.get(), kAllowed, &host, 0);
    ASSERT_TRUE(edit->SubclassDlgItem(kEdit, owner));
    ASSERT_TRUE(button->Attach(kButton, owner));
    platform::SetFocus(edit->GetHandle());
  }
  void Put(std::string_view text, std::size_t from, std::size_t to) {
    edit->SetText(text);
    edit->SetSel(from, to);
    shown.clear();
  }
  void Pick(std::size_t line) {
    display.Give(MenuAnswer{line});
    shown.clear();
    platform::user::ClickControl(*button);
  }
  // The text with a bar for the caret.
  std::string State() const { return std::string(edit->GetText()).insert(edit->GetSelEnd(), "|"); }

  std::string shown;
  platform::HeadlessDisplay display;
  test::FakeHost host;
  platform::CWnd owner;
  platform::CEdit raw_edit;
  platform::CButton raw_button;
  std::unique_ptr<CUiCustomEditCtrl> edit;
  std::unique_ptr<CUiPlaceholderButtonEB> button;
};

TEST_F(PathFieldTest, ThreeBackslashesAreRefusedHoweverTheyMeetAndATrailByteIsNone) {
  Make();
  Put("a\\\\b\\c", 3, 4);
  edit->ReplaceSel("");
  EXPECT_EQ(edit->GetText(), "a\\\\b\\c") << "what stands between them deleted";
  EXPECT_EQ(shown, "beep\n");

  const test::CodePage page(932);
  Put("\x83\x5C\\", 3, 3);
  platform::user::TypeText("\\");
  EXPECT_EQ(edit->GetText(), "\x83\x5C\\\\");
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
  ASSERT_NE(button->GetImage(), nullptr);
  Put("x", 1, 1);
  host.during["GetGlobalPlaceholders"] = [&, call = 0]() mutable {
    if (++call == 2) host.global_placeholders.entries.clear();
  };
  Pick(5);
  EXPECT_EQ(State(), "x|");
  EXPECT_EQ(shown,
            "menu:\nConfiguration directory\n-\nQBN installation directory\n-\nCustom placeholders\n  My "
            "directory\nbeep\n");
  EXPECT_EQ(platform::GetFocus(), edit->GetHandle());
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
  EXPECT_TRUE(button->RouteCommand(33510)) << "a command that the menu doesn't have";
  EXPECT_EQ(State(), "$(AAA)|");
}

}  // namespace
}  // namespace pvw
