// The queue of answers, and what shows.

#include "platform/headless/headless_display.h"

#include <gmock/gmock.h>

#include "platform/gui/menu.h"
#include "platform/headless/user.h"
#include "tests/platform/gui/conformance/stage.h"

namespace platform {
namespace {

using conformance::kEmptyDialog;
using conformance::kNameDialog;

class HeadlessDisplayTest : public testing::Test {
 protected:
  HeadlessDisplayTest() { SetDisplay(&display); }
  ~HeadlessDisplayTest() override { SetDisplay(nullptr); }

  std::vector<std::string> lines;
  std::vector<std::string> failures;
  HeadlessDisplay display{HeadlessDisplay::Unanswered::Fail,
                          [this](const std::string& line) { lines.push_back(line); },
                          [this](const std::string& text) { failures.push_back(text); }};
};

TEST_F(HeadlessDisplayTest, ADialogTakesTheNextAnswerAndEverySlipIsAFailure) {
  const DialogStep ok = [](CDialog& dialog) { user::PressOk(dialog); };
  const DialogStep nothing = [](CDialog&) {};
  const struct {
    std::vector<Answer> answers;
    int result;
    std::string failure;  // about the dialog's name
  } cases[] = {
      {{CancelAnswer{}}, IDCANCEL, ""},
      {{}, IDCANCEL, "no answer is left for: dialog: "},
      {{FileAnswer{}}, IDCANCEL, "the next answer is of another kind than: dialog: "},
      {{DialogAnswer{{nothing}}}, IDCANCEL, "no step is left that ends: dialog: "},
      {{DialogAnswer{{ok, nothing}}}, IDOK, "steps are left over behind the end of: dialog: "},
      {{DialogAnswer{{ok}, true}},
       IDCANCEL,
       "the next answer is for a dialog that runs by itself, not for: "},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.failure);
    lines.clear();
    failures = {""};
    for (const Answer& answer : row.answers) display.Give(answer);
    EXPECT_EQ(CDialog(kNameDialog, nullptr).DoModal(), row.result);
    const bool told = !row.failure.empty();
    EXPECT_EQ(lines.back(), told && row.result == IDCANCEL ? "(cancelled)" : "dialog: Name");
    EXPECT_EQ(failures.back(), told ? row.failure + "Name" : "");
    EXPECT_EQ(display.GetAnswerCount(), 0u);
  }
}

TEST_F(HeadlessDisplayTest, WhatNothingCanEndIsAFailureNotAHang) {
  display.SetRunningByThemselves({kEmptyDialog});
  CDialog(kEmptyDialog, nullptr).DoModal();
  struct CStubborn : CDialog {
    CStubborn() : CDialog(kNameDialog, nullptr) {}
    void OnCancel() override {}
  } stubborn;
  display.Give(CancelAnswer{});
  EXPECT_EQ(stubborn.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_THAT(failures, testing::ElementsAre("nothing can end: dialog: Empty",
                                             "no step is left that ends: dialog: Name",
                                             "the dialog refuses to be cancelled: Name"));
}

TEST_F(HeadlessDisplayTest, OnlyAnEntryThatDoesSomethingIsPickedFromAMenu) {
  conformance::Traced<CWnd> owner("owner");
  owner.Create({WS_POPUP});
  conformance::Story();
  const std::vector<PopupMenuItem> items = {{},
                                            {.text = "Off", .id = 3, .enabled = false},
                                            {.text = "Custom", .items = {{.text = "Mine", .id = 4}}}};
  for (const std::size_t line : {0u, 1u, 2u, 4u}) {
    display.Give(MenuAnswer{line});
    TrackPopupMenu(owner, items, {});
    EXPECT_EQ(failures.back(), "entry " + std::to_string(line) + " of the menu can't be picked");
  }
  EXPECT_EQ(conformance::Story(), "");
  display.Give(MenuAnswer{3});
  TrackPopupMenu(owner, items, {});
  EXPECT_EQ(conformance::Story(), "owner COMMAND 4\n");
}

TEST_F(HeadlessDisplayTest, ControlsStandWhereTheTemplateSaysInUnitsOfTheFont) {
  display.Give(DialogAnswer{{[](CDialog& open) {
    EXPECT_EQ(open.GetRect().Width(), 311);
    EXPECT_EQ(open.GetDlgItem(IDOK)->GetRect(), (RECT{225, 11, 300, 34}));
    user::PressOk(open);
  }}});
  CDialog(kNameDialog, nullptr).DoModal();
}

}  // namespace
}  // namespace platform
