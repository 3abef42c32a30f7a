// Who has the keyboard, and who gets it back.

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

class Focuses : public Scenario {
 protected:
  Focuses() {
    Add(first, 1);
    Add(second, 2);
  }
  Traced<CEdit> second{"second"};
  Traced<CEdit> first{"first"};
};

TEST_F(Focuses, MovingItTellsTheOldWindowAndThenTheNew) {
  SetFocus(first.GetHandle());
  SetFocus(second.GetHandle());
  SetFocus(second.GetHandle());
  SetFocus(0);
  EXPECT_EQ(Settled(), "first SETFOCUS\nfirst KILLFOCUS\nsecond SETFOCUS\nsecond KILLFOCUS\n");
  stage->Type("b");
  EXPECT_EQ(Story(), "") << "keys go nowhere now";
  second.EnableWindow(false);
  stage->Click(second);
  SetFocus(second.GetHandle());
  EXPECT_EQ(Story(), "") << "nor does it go into a disabled control";
}

TEST_F(Focuses, WhoeverItIsTakenFromBeforeItHeardIsOnlyToldToLetGo) {
  Focus(first);
  first.During(WM_KILLFOCUS, [&] {
    first.handlers.clear();
    SetFocus(first.GetHandle());
  });
  SetFocus(second.GetHandle());
  EXPECT_EQ(Story(), "first KILLFOCUS\nsecond KILLFOCUS\nfirst SETFOCUS\n");
  EXPECT_EQ(GetFocus(), first.GetHandle());
}

TEST_F(Focuses, WhoLeavesTheProgramFindsItWhereItWas) {
  Focus(first);
  stage->Leave();
  EXPECT_EQ(Story(), "first KILLFOCUS\n");
  EXPECT_EQ(GetFocus(), 0u);
  stage->ComeBack();
  EXPECT_EQ(Story(), "first SETFOCUS\n");

  // An edit that closes as it is left gives the focus to its owner, which mustn't call the user back.
  first.During(WM_KILLFOCUS, [&] { SetFocus(second.GetHandle()); });
  stage->Leave();
  EXPECT_EQ(Story(), "first KILLFOCUS\n");
  stage->ComeBack();
  EXPECT_EQ(Story(), "second SETFOCUS\n");
}

TEST_F(Focuses, ItComesBackToTheFirstThatIsAliveOfTheWindowAndItsParents) {
  Traced<CWnd> pane("pane");
  Traced<CWnd> grid("grid");
  Traced<CEdit> edit("edit");
  Add(pane, 3);
  grid.Create({.parent = pane.GetHandle(), .id = 4});
  edit.Create({.parent = grid.GetHandle(), .id = 5});
  Focus(edit);
  stage->InNextBox([&] {
    edit.DestroyWindow();
    grid.EnableWindow(false);
  });
  MessageBox("Invalid Hex Value");
  EXPECT_EQ(Settled(), "message: Invalid Hex Value\nedit KILLFOCUS\nedit DESTROY\npane SETFOCUS\n");
  pane.ShowWindow(false);
  EXPECT_EQ(Settled(), "pane KILLFOCUS\nmain SETFOCUS\n");
}

TEST_F(Focuses, AReleaseOrCharacterBelongsToWhoHadTheKey) {
  Focus(first);
  first.On(WM_KEYDOWN, [&] {
    SetFocus(second.GetHandle());
    return 1;
  });
  stage->Type("a");
  EXPECT_EQ(Story(), "first KEYDOWN A\nfirst KILLFOCUS\nsecond SETFOCUS\n");
  EXPECT_EQ(second.GetText(), "");
}

// Takes Escape before the window that has the focus sees it.
struct CTaker : Traced<CWnd> {
  using Traced::Traced;
  bool PreTranslateMessage(const MSG& msg) override {
    if (msg.message != WM_KEYDOWN || !IsKeyDown(VK_ESCAPE)) return false;
    Note(name + " takes it" + (IsKeyDown(VK_SHIFT) ? " shifted" : ""));
    return true;
  }
};

TEST_F(Focuses, ParentsMayTakeAKeyAheadOfTheWindowAndHelpBehindItNearestFirst) {
  CTaker outer("outer");
  CTaker inner("inner");
  Traced<CEdit> edit("edit");
  Add(outer, 3);
  inner.Create({.parent = outer.GetHandle()});
  edit.Create({.parent = inner.GetHandle()});
  Focus(edit);
  stage->Key(VK_ESCAPE, MK_SHIFT);
  inner.On(WM_HELP, [] { return 1; });
  stage->Key(VK_F1);
  EXPECT_EQ(Story(), "inner takes it shifted\nedit KEYDOWN F1\nedit HELP\ninner HELP\nedit KEYUP F1\n");
}

}  // namespace
}  // namespace platform::conformance
