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

constexpr std::uint32_t kOnlyQbnDir[] = {6, 0};
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

  void Make(std::span<const std::uint32_t> allowed = kOnlyQbnDir) {
    raw_edit.Create({.rect = {0, 0, 200, 20}, .parent = owner.GetHandle(), .id = kEdit});
    raw_button.Create({.rect = {200, 0, 220, 20}, .parent = owner.GetHandle(), .id = kButton});
    edit =
        std::make_unique<CUiCustomEditCtrl>("/;*?\"<>|", std::vector<std::string>{"\\\\\\"}, allowed, &host);
    button = std::make_unique<CUiPlaceholderButtonEB>(edit.get(), allowed, &host, 0);
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
  // The text with its selection in brackets, or a bar for the caret.
  std::string State() const {
    std::string text = edit->GetText();
    const bool caret = edit->GetSelStart() == edit->GetSelEnd();
    if (!caret) text.insert(edit->GetSelEnd(), "]");
    return text.insert(edit->GetSelStart(), caret ? "|" : "[");
  }

  std::string shown;
  platform::HeadlessDisplay display;
  test::FakeHost host;
  platform::CWnd owner;
  platform::CEdit raw_edit;
  platform::CButton raw_button;
  std::unique_ptr<CUiCustomEditCtrl> edit;
  std::unique_ptr<CUiPlaceholderButtonEB> button;
};

TEST_F(PathFieldTest, ARefusedChangeLeavesTextAndSelectionAsTheyWere) {
  Make();
  struct Row {
    const char* name;
    const char* text;
    std::size_t from, to;
    bool paste;
    const char* input;
    const char* state;
    bool refused = true;
  };
  const Row rows[] = {
      {"an asterisk at the third position", "abcd", 2, 2, false, "*", "ab|cd"},
      {"over a selection", "abcd", 1, 3, false, "?", "a[bc]d"},
      {"a paste with one forbidden character", "abcd", 4, 4, true, "x<y", "abcd|"},
      {"the third backslash in a row", "c:", 2, 2, false, "\\\\\\", "c:\\\\|"},
      {"two backslashes", "c:", 2, 2, false, "\\\\x", "c:\\\\x|", false},
      {"what stands between backslashes deleted", "a\\\\b\\c", 3, 4, true, "", "a\\\\[b]\\c"},
      {"a placeholder that isn't allowed here", "$(CONFIGDIR", 11, 11, false, ")", "$(CONFIGDIR|"},
      {"one that is", "x", 0, 0, false, "$(QBNDIR)", "$(QBNDIR)|x", false},
      {"one of the user's own", "", 0, 0, true, "$(MINE)", "$(MINE)|", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Put(row.text, row.from, row.to);
    if (row.paste) {
      edit->ReplaceSel(row.input);
    } else {
      platform::user::TypeText(row.input);
    }
    EXPECT_EQ(State(), row.state);
    EXPECT_EQ(shown, row.refused ? "beep\n" : "");
  }
}

TEST_F(PathFieldTest, ATrailByteIsNoBackslash) {
  const test::CodePage page(932);
  Make();
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

TEST_F(PathFieldTest, TheMenuPutsAPlaceholderInThePlaceOfTheSelection) {
  const std::uint32_t with_workspace[] = {13, 37, 6, 0};
  Make(with_workspace);
  ASSERT_NE(button->GetImage(), nullptr);
  Put("a\\b\\c", 1, 3);
  Pick(0);
  EXPECT_EQ(shown,
            "menu:\nConfiguration directory\n-\nQBN installation directory\n-\nCustom placeholders\n  My "
            "directory\n");
  EXPECT_EQ(State(), "a$(CONFIGDIR)|\\c");
  EXPECT_EQ(platform::GetFocus(), edit->GetHandle());
  Pick(5);
  EXPECT_EQ(State(), "a$(CONFIGDIR)$(MINE)|\\c");

  host.during["GetGlobalPlaceholders"] = [&, call = 0]() mutable {
    if (++call == 2) host.global_placeholders.entries.clear();
  };
  Pick(5);
  EXPECT_EQ(State(), "a$(CONFIGDIR)$(MINE)|\\c") << "it went while the menu was open";
  EXPECT_THAT(shown, testing::EndsWith("beep\n"));
  Put("x", 1, 1);
  Pick(2);
  EXPECT_EQ(shown, "menu:\nConfiguration directory\n-\nQBN installation directory\n")
      << "no submenu without any";
  EXPECT_EQ(State(), "x$(QBNDIR)|");
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
  Pick(3);
  EXPECT_THAT(shown, testing::StartsWith(
                         "menu:\nQBN installation directory\n-\nCustom placeholders\n  Other\n  N100\n"));
  EXPECT_THAT(shown, testing::EndsWith("  N197\n")) << "by name, and 99 of them";
  EXPECT_EQ(State(), "$(AAA)|");

  host.global_placeholders.entries.clear();
  Pick(4);
  EXPECT_EQ(State(), "$(AAA)|");
  EXPECT_TRUE(button->RouteCommand(33510)) << "a command that the menu doesn't have";
  EXPECT_EQ(State(), "$(AAA)|");
}

}  // namespace
}  // namespace pvw
