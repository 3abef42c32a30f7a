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
using conformance::kName;
using conformance::kNameDialog;
using conformance::kPickDialog;
using testing::ElementsAre;
using testing::HasSubstr;
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
  MessageBox("Error saving file");
  MessageBox("Too big.\nAt most FF.", MB_ICONEXCLAMATION, "Edit PORT");
  MessageBox("No library", MB_ICONSTOP);
  MessageBeep();
  EXPECT_THAT(lines, ElementsAre("message: Error saving file",
                                 "message [exclamation] \"Edit PORT\": Too big.\\nAt most FF.",
                                 "message [stop]: No library", "beep"));
  EXPECT_EQ(display.GetAnswerCount(), 1u);
}

struct AnswerCase {
  const char* name;
  std::vector<Answer> answers;
  int result;
  std::vector<std::string> lines;
  const char* failure;  // empty for none
};

TEST_F(HeadlessDisplayTest, ADialogTakesTheNextAnswerAndEverySlipIsAFailure) {
  const DialogStep ok = [](CDialog& dialog) { user::PressOk(dialog); };
  const DialogStep cancel = [](CDialog& dialog) { user::PressCancel(dialog); };
  const DialogStep nothing = [](CDialog&) {};
  const AnswerCase cases[] = {
      {"ok", {DialogAnswer{{ok}}}, IDOK, {"dialog: Name"}, ""},
      {"cancel by its button", {DialogAnswer{{cancel}}}, IDCANCEL, {"dialog: Name"}, ""},
      {"cancelled in one word", {CancelAnswer{}}, IDCANCEL, {"dialog: Name"}, ""},
      {"no answer", {}, IDCANCEL, {"dialog: Name", "(cancelled)"}, "no answer is left for: dialog: Name"},
      {"an answer to something else",
       {FileAnswer{"c:\\a.io"}},
       IDCANCEL,
       {"dialog: Name", "(cancelled)"},
       "the next answer is of another kind than: dialog: Name"},
      {"open behind the last step",
       {DialogAnswer{{nothing}}},
       IDCANCEL,
       {"dialog: Name", "(cancelled)"},
       "no step is left that ends: dialog: Name"},
      {"steps behind the end",
       {DialogAnswer{{ok, nothing}}},
       IDOK,
       {"dialog: Name"},
       "steps are left over behind the end of: dialog: Name"},
      {"an answer that is meant for a dialog that runs by itself",
       {DialogAnswer{{ok}, true}},
       IDCANCEL,
       {"dialog: Name", "(cancelled)"},
       "the next answer is for a dialog that runs by itself, not for: Name"},
  };
  for (const AnswerCase& row : cases) {
    SCOPED_TRACE(row.name);
    lines.clear();
    failures.clear();
    for (const Answer& answer : row.answers) display.Give(answer);
    CDialog dialog(kNameDialog, nullptr);
    EXPECT_EQ(dialog.DoModal(), row.result);
    EXPECT_EQ(lines, row.lines);
    EXPECT_THAT(failures, *row.failure != 0
                              ? testing::Matcher<std::vector<std::string>>(ElementsAre(row.failure))
                              : IsEmpty());
    EXPECT_EQ(display.GetAnswerCount(), 0u);
  }
}

TEST_F(HeadlessDisplayTest, WhereTheOwnerWantsItAnUnansweredDialogIsSimplyCancelled) {
  SetDisplay(nullptr);
  HeadlessDisplay lenient(
      HeadlessDisplay::Unanswered::Cancel, [this](const std::string& line) { lines.push_back(line); },
      [this](const std::string& text) { failures.push_back(text); });
  SetDisplay(&lenient);
  CDialog dialog(kPickDialog, nullptr);
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_EQ(RunFileDialog({}), std::nullopt);
  EXPECT_THAT(lines, ElementsAre("dialog: Pick", "(cancelled)", "file dialog: , , ", "(cancelled)"));
  EXPECT_THAT(failures, IsEmpty());
  SetDisplay(&display);
}

TEST_F(HeadlessDisplayTest, AStepMayOpenTheNextModalThing) {
  display.Give(DialogAnswer{{[](CDialog&) { MessageBox("Refused"); }, [](CDialog&) { RunFileDialog({}); },
                             [](CDialog& dialog) { user::PressOk(dialog); }}});
  display.Give(FileAnswer{"c:\\a.io"});
  CDialog dialog(kNameDialog, nullptr);
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDOK));
  EXPECT_THAT(lines, ElementsAre("dialog: Name", "message: Refused", "file dialog: , , "));
  EXPECT_THAT(failures, IsEmpty());
}

TEST_F(HeadlessDisplayTest, WhatAStepPostsComesBeforeTheNextStep) {
  CDialog dialog(kNameDialog, nullptr);
  display.Give(DialogAnswer{{[](CDialog& open) { PostMessage(open.GetHandle(), WM_COMMAND, IDOK); },
                             [](CDialog&) { ADD_FAILURE() << "the dialog has ended"; }}});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDOK));
  EXPECT_THAT(failures, ElementsAre("steps are left over behind the end of: dialog: Name"));
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
    if (left == 0 && !endless) EndDialog(IDOK);
    return 0;
  }
  void PostNcDestroy() override {
    left = 0;
    worker.Join();
    CDialog::PostNcDestroy();
  }
  int left = 5;
  int counted = 0;
  bool endless = false;
  gui::Worker worker;
};
const MessageTable CCountdown::kMessages{&CDialog::kMessages, {OnMessage<&CCountdown::OnTimer>(WM_TIMER)}};

TEST_F(HeadlessDisplayTest, ADialogThatRunsByItselfTakesNoOrdinaryAnswer) {
  display.SetRunningByThemselves({kEmptyDialog});
  display.Give(FileAnswer{"c:\\next.io"});
  CCountdown dialog;
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDOK));
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
  CDialog idle(kEmptyDialog, nullptr);
  idle.DoModal();
  CCountdown endless;
  endless.endless = true;
  endless.DoModal();
  struct CStubborn : CDialog {
    CStubborn() : CDialog(kNameDialog, nullptr) {}
    void OnCancel() override {}
  } stubborn;
  display.Give(CancelAnswer{});
  EXPECT_EQ(stubborn.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_THAT(failures, ElementsAre("nothing can end: dialog: Empty", "nothing can end: dialog: Empty",
                                    "no step is left that ends: dialog: Name",
                                    "the dialog refuses to be cancelled: Name"));
}

TEST_F(HeadlessDisplayTest, ABoxInsideACallOfAWorkerDoesntWaitForThatWorker) {
  display.SetRunningByThemselves({kEmptyDialog});
  CCountdown inner;
  gui::Worker worker;
  int result = 0;
  worker.Start([&] { gui::CallUi([&] { result = inner.DoModal(); }); });
  worker.Join();
  EXPECT_EQ(result, static_cast<int>(IDOK));
  EXPECT_EQ(inner.counted, 5);
}

TEST_F(HeadlessDisplayTest, AFileDialogShowsWhereItStartsAndAddsTheExtension) {
  const FileDialogRequest request{.save = true,
                                  .default_extension = "txt",
                                  .filter = "Text File (*.txt)|*.txt||",
                                  .directory = "c:\\work",
                                  .name = "io.txt"};
  display.Give(FileAnswer{"c:\\a.b\\view"});
  display.Give(FileAnswer{"c:\\work\\view.lst"});
  display.Give(CancelAnswer{});
  EXPECT_EQ(RunFileDialog(request), "c:\\a.b\\view.txt");
  EXPECT_EQ(RunFileDialog(request), "c:\\work\\view.lst");
  EXPECT_EQ(RunFileDialog(request), std::nullopt);
  EXPECT_EQ(lines.front(), "file dialog: Text File (*.txt)|*.txt||, c:\\work, io.txt");
  EXPECT_EQ(lines.size(), 3u);
}

TEST_F(HeadlessDisplayTest, AMenuListsAllItsLinesAndIsPickedByThem) {
  struct COwner : CWnd {
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_COMMAND) got = static_cast<UINT>(msg.wParam);
      return CWnd::WindowProc(msg);
    }
    UINT got = 0;
  } owner;
  owner.Create({WS_POPUP});
  const std::vector<PopupMenuItem> items = {{.text = "Workspace", .id = 1},
                                            {.text = "Locked", .id = 2, .checked = true},
                                            {},
                                            {.text = "Off", .id = 3, .enabled = false},
                                            {.text = "Custom", .items = {{.text = "Mine", .id = 4}}}};
  display.Give(MenuAnswer{5});
  TrackPopupMenu(owner, items, {});
  EXPECT_EQ(owner.got, 4u);
  EXPECT_THAT(lines, ElementsAre("menu:", "Workspace", "[x] Locked", "-", "Off", "Custom", "  Mine"));
  lines.clear();
  display.SetMenuBoxes(true);
  display.Give(CancelAnswer{});
  TrackPopupMenu(owner, {{.text = "Value", .id = 1}, {}}, {});
  EXPECT_THAT(lines, ElementsAre("menu:", "[ ] Value", "-"));
  EXPECT_THAT(failures, IsEmpty());

  owner.got = 0;
  for (const std::size_t line : {2u, 3u, 4u, 6u}) {
    display.Give(MenuAnswer{line});
    TrackPopupMenu(owner, items, {});
  }
  EXPECT_EQ(owner.got, 0u);
  EXPECT_THAT(failures,
              ElementsAre("entry 2 of the menu can't be picked", "entry 3 of the menu can't be picked",
                          "entry 4 of the menu can't be picked", "entry 6 of the menu can't be picked"));
  owner.DestroyWindow();
}

TEST_F(HeadlessDisplayTest, ANewDisplayStartsWithTheUserHere) {
  gui::Activate(false);
  SetDisplay(nullptr);
  SetDisplay(&display);
  CWnd pane;
  pane.Create({WS_POPUP | WS_VISIBLE});
  SetFocus(pane.GetHandle());
  EXPECT_EQ(GetFocus(), pane.GetHandle());
  pane.DestroyWindow();
}

// Drags as the system's own source would.
class PlainSource final : public DragSource {
 public:
  void Feedback(DragEffect effect) override { log += effect == DragEffect::Copy ? "copy " : "none "; }
  Next QueryContinue(bool escape, bool left_down, bool right_down) override {
    if (escape || right_down) return Next::Cancel;
    return left_down ? Next::Go : Next::Drop;
  }
  std::string log;
};

TEST_F(HeadlessDisplayTest, ADragEndsAsTheUserWants) {
  CWnd pane;
  pane.Create({WS_POPUP});
  const std::string carried("FF0000\0", 7);
  PlainSource source;
  for (const DragAnswer how :
       {DragAnswer::Drop, DragAnswer::Escape, DragAnswer::RightButton, DragAnswer::Nowhere}) {
    display.Give(how);
    const DragEffect effect = RunDrag(pane, carried, source);
    EXPECT_EQ(effect == DragEffect::Copy, how == DragAnswer::Drop);
  }
  EXPECT_EQ(source.log, "copy copy copy none ");
  EXPECT_THAT(lines, ElementsAre("drag: FF0000", "drag cancelled", "drag cancelled", "drag refused"));
  pane.DestroyWindow();
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
  display.Advance(1);
  EXPECT_EQ(conformance::Story(), "pane TIMER 1\n");
  display.Advance(200);
  EXPECT_EQ(conformance::Story(),
            "pane TIMER 2\npane TIMER 2\npane TIMER 1\npane TIMER 2\npane TIMER 1\npane TIMER 2\n");
  pane.DestroyWindow();
  conformance::Story();
}

}  // namespace
}  // namespace platform
