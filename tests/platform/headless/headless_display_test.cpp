// The queue of answers, what shows, and the virtual clock.

#include "platform/headless/headless_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/gui/common_dialogs.h"
#include "platform/gui/menu.h"
#include "platform/headless/user.h"
#include "tests/platform/gui/conformance/stage.h"

namespace platform {
namespace {

using conformance::kEmptyDialog;
using conformance::kNameDialog;
using conformance::kPickDialog;
using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(HeadlessDisplayTest, BoxesAndBeepsShowAsAUserMeetsThemAndTakeNoAnswer) {
  display.Give(CancelAnswer{});
  MessageBox("Too big.\nAt most FF.", MB_ICONEXCLAMATION, "Edit PORT");
  MessageBox("No library", MB_ICONSTOP);
  MessageBeep();
  EXPECT_THAT(lines, ElementsAre("message [exclamation] \"Edit PORT\": Too big.\\nAt most FF.",
                                 "message [stop]: No library", "beep"));
  EXPECT_EQ(display.GetAnswerCount(), 1u);
}

TEST_F(HeadlessDisplayTest, ADialogTakesTheNextAnswerAndEverySlipIsAFailure) {
  const DialogStep ok = [](CDialog& dialog) { user::PressOk(dialog); };
  const DialogStep nothing = [](CDialog&) {};
  const std::vector<std::string> cancelled = {"dialog: Name", "(cancelled)"};
  const std::vector<std::string> shown = {"dialog: Name"};
  const struct {
    const char* name;
    std::vector<Answer> answers;
    int result;
    std::vector<std::string> lines;
    std::vector<std::string> failures;
  } cases[] = {
      {"cancelled in one word", {CancelAnswer{}}, IDCANCEL, shown, {}},
      {"no answer", {}, IDCANCEL, cancelled, {"no answer is left for: dialog: Name"}},
      {"an answer to something else",
       {FileAnswer{"c:\\a.io"}},
       IDCANCEL,
       cancelled,
       {"the next answer is of another kind than: dialog: Name"}},
      {"open behind the last step",
       {DialogAnswer{{nothing}}},
       IDCANCEL,
       cancelled,
       {"no step is left that ends: dialog: Name"}},
      {"steps behind the end",
       {DialogAnswer{{ok, nothing}}},
       IDOK,
       shown,
       {"steps are left over behind the end of: dialog: Name"}},
      {"an answer that is meant for a dialog that runs by itself",
       {DialogAnswer{{ok}, true}},
       IDCANCEL,
       cancelled,
       {"the next answer is for a dialog that runs by itself, not for: Name"}},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    lines.clear();
    failures.clear();
    for (const Answer& answer : row.answers) display.Give(answer);
    CDialog dialog(kNameDialog, nullptr);
    EXPECT_EQ(dialog.DoModal(), row.result);
    EXPECT_EQ(lines, row.lines);
    EXPECT_EQ(failures, row.failures);
    EXPECT_EQ(display.GetAnswerCount(), 0u);
  }
}

TEST_F(HeadlessDisplayTest, WhereTheOwnerWantsItWhatIsUnansweredIsSimplyCancelled) {
  SetDisplay(nullptr);
  HeadlessDisplay lenient(HeadlessDisplay::Unanswered::Cancel, nullptr,
                          [this](const std::string& text) { failures.push_back(text); });
  SetDisplay(&lenient);
  EXPECT_EQ(CDialog(kPickDialog, nullptr).DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_EQ(RunFileDialog({}), std::nullopt);
  EXPECT_THAT(failures, IsEmpty());
  SetDisplay(&display);
}

// Ends by its timer once its worker has counted down.
struct CCountdown : CDialog {
  CCountdown() : CDialog(kEmptyDialog, nullptr) {}
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void OnInitDialog() override {
    SetTimer(GetHandle(), 1, 200);
    worker.Start([this] {
      for (bool more = true; more;) {
        gui::CallUi([&] {
          if ((more = left > 0)) --left, ++counted;
        });
      }
    });
  }
  LRESULT OnTimer(const MSG&) {
    if (left == 0) EndDialog(IDOK);
    return 0;
  }
  void PostNcDestroy() override {
    left = 0;
    worker.Join();
    CDialog::PostNcDestroy();
  }
  int left = 5;
  int counted = 0;
  gui::Worker worker;
};
const MessageTable CCountdown::kMessages{&CDialog::kMessages, {OnMessage<&CCountdown::OnTimer>(WM_TIMER)}};

TEST_F(HeadlessDisplayTest, ADialogThatRunsByItselfTakesNoOrdinaryAnswerAndAWorkerMayOpenIt) {
  display.SetRunningByThemselves({kEmptyDialog});
  display.Give(FileAnswer{"c:\\next.io"});
  CCountdown dialog;
  gui::Worker worker;
  int result = 0;
  worker.Start([&] { gui::CallUi([&] { result = dialog.DoModal(); }); });
  worker.Join();
  EXPECT_EQ(result, static_cast<int>(IDOK));
  EXPECT_EQ(dialog.counted, 5);
  EXPECT_EQ(display.GetAnswerCount(), 1u);
  EXPECT_THAT(failures, IsEmpty());
}

TEST_F(HeadlessDisplayTest, AStepWithAConditionWaitsForThreads) {
  display.SetRunningByThemselves({kEmptyDialog});
  CCountdown dialog;
  display.Give(DialogAnswer{{DialogStep([&](CDialog&) { return dialog.counted == 3; },
                                        [](CDialog& open) { open.Send(WM_COMMAND, IDCANCEL); })},
                            true});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_EQ(dialog.counted, 3);
  EXPECT_THAT(lines, ElementsAre("dialog: Empty"));
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
  EXPECT_THAT(failures,
              ElementsAre("nothing can end: dialog: Empty", "no step is left that ends: dialog: Name",
                          "the dialog refuses to be cancelled: Name"));
}

TEST_F(HeadlessDisplayTest, AFileDialogShowsWhereItStartsAndAddsTheExtension) {
  const FileDialogRequest request{.save = true,
                                  .default_extension = "txt",
                                  .filter = "Text File (*.txt)|*.txt||",
                                  .directory = "c:\\work",
                                  .name = "io.txt"};
  display.Give(FileAnswer{"c:\\a.b\\view"});
  display.Give(FileAnswer{"c:\\work\\view.lst"});
  EXPECT_EQ(RunFileDialog(request), "c:\\a.b\\view.txt");
  EXPECT_EQ(RunFileDialog(request), "c:\\work\\view.lst");
  EXPECT_EQ(lines.front(), "file dialog: Text File (*.txt)|*.txt||, c:\\work, io.txt");
}

TEST_F(HeadlessDisplayTest, AMenuListsAllItsLinesAndIsPickedByThem) {
  conformance::Traced<CWnd> owner("owner");
  owner.Create({WS_POPUP});
  conformance::Story();
  const std::vector<PopupMenuItem> items = {{.text = "Workspace", .id = 1},
                                            {.text = "Locked", .id = 2, .checked = true},
                                            {},
                                            {.text = "Off", .id = 3, .enabled = false},
                                            {.text = "Custom", .items = {{.text = "Mine", .id = 4}}}};
  display.Give(MenuAnswer{5});
  TrackPopupMenu(owner, items, {});
  EXPECT_EQ(conformance::Story(), "owner COMMAND 4\n");
  EXPECT_THAT(lines, ElementsAre("menu:", "Workspace", "[x] Locked", "-", "Off", "Custom", "  Mine"));
  lines.clear();
  display.SetMenuBoxes(true);
  display.Give(CancelAnswer{});
  TrackPopupMenu(owner, {{.text = "Value", .id = 1}, {}}, {});
  EXPECT_THAT(lines, ElementsAre("menu:", "[ ] Value", "-"));
  EXPECT_THAT(failures, IsEmpty());
  for (const std::size_t line : {2u, 3u, 4u, 6u}) {
    display.Give(MenuAnswer{line});
    TrackPopupMenu(owner, items, {});
    EXPECT_THAT(failures,
                testing::Contains("entry " + std::to_string(line) + " of the menu can't be picked"));
  }
  EXPECT_EQ(conformance::Story(), "");
}

TEST_F(HeadlessDisplayTest, ControlsStandWhereTheTemplateSaysInUnitsOfTheFont) {
  display.Give(DialogAnswer{{[](CDialog& open) {
    EXPECT_EQ(open.GetRect().Width(), 311);
    EXPECT_EQ(open.GetDlgItem(IDOK)->GetRect(), (RECT{225, 11, 300, 34}));
    user::PressOk(open);
  }}});
  CDialog(kNameDialog, nullptr).DoModal();
}

TEST_F(HeadlessDisplayTest, TimeJumpsFromTimerToTimerAndOnlyWhenItIsLet) {
  conformance::Traced<CWnd> pane("pane");
  pane.Create({WS_POPUP});
  SetTimer(pane.GetHandle(), 1, 100);
  SetTimer(pane.GetHandle(), 2, 60);
  conformance::Story();
  display.Settle();
  EXPECT_EQ(conformance::Story(), "");
  display.Advance(99);
  EXPECT_EQ(conformance::Story(), "pane TIMER 2\n");
  display.Advance(201);
  EXPECT_EQ(
      conformance::Story(),
      "pane TIMER 1\npane TIMER 2\npane TIMER 2\npane TIMER 1\npane TIMER 2\npane TIMER 1\npane TIMER 2\n");
}

}  // namespace
}  // namespace platform
