// Birth and death of windows, and the messages between.

#include <gmock/gmock.h>

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

using testing::ElementsAre;

class Windows : public Scenario {};

TEST_F(Windows, AHandleFindsNothingOnceItsSlotIsUsedAgain) {
  Traced<CWnd> old("old");
  Add(old, 1);
  const HWND stale = old.GetHandle();
  PostMessage(stale, WM_USER);
  old.DestroyWindow();
  Traced<CWnd> next("next");
  next.Create({.parent = main.GetHandle(), .id = 1});
  Story();

  EXPECT_NE(next.GetHandle(), stale);
  EXPECT_EQ(CWnd::FromHandle(stale), nullptr);
  EXPECT_EQ(SendMessage(stale, WM_USER), 0);
  SetFocus(stale);
  SetTimer(stale, 1, 10);
  stage->Wait(30);
  EXPECT_EQ(Story(), "");
}

TEST_F(Windows, CreationThatIsRefusedLeavesNothing) {
  Traced<CWnd> refused("refused");
  refused.On(WM_CREATE, [] { return -1; });
  EXPECT_FALSE(refused.Create({.parent = main.GetHandle()}));
  EXPECT_EQ(Story(), "refused CREATE\nrefused DESTROY\n");

  Traced<CWnd> suicidal("suicidal");
  suicidal.During(WM_CREATE, [&] { suicidal.DestroyWindow(); });
  EXPECT_FALSE(suicidal.Create({.parent = main.GetHandle()}));

  EXPECT_FALSE(CWnd().Create({.parent = 77}));
  EXPECT_THAT(main.GetChildren(), ElementsAre());
}

// A window whose object goes with it.
template <typename Base>
struct SelfOwned : Traced<Base> {
  using Traced<Base>::Traced;
  void PostNcDestroy() override {
    Note(this->name + " deleted");
    delete this;
  }
};

TEST_F(Windows, AWindowMayGoInItsOwnHandlerWithTheObject) {
  auto* button = new SelfOwned<CButton>("button");
  Add(*button, 7, "Gone");
  main.During(WM_COMMAND, [&] { button->DestroyWindow(); });
  stage->Click(*button);
  EXPECT_EQ(Story(),
            "button DOWN\nbutton SETFOCUS\nbutton UP\nmain BN_CLICKED 7\n"
            "button DESTROY\nbutton KILLFOCUS\nmain SETFOCUS\nbutton deleted\n");

  auto* edit = new SelfOwned<CEdit>("edit");
  Add(*edit, 9);
  Focus(*edit);
  main.During(WM_COMMAND, [&] { edit->DestroyWindow(); });
  stage->Type("ab");
  EXPECT_EQ(Story(),
            "edit KEYDOWN A\nedit CHAR a\nmain EN_UPDATE 9\n"
            "edit DESTROY\nedit KILLFOCUS\nmain SETFOCUS\nedit deleted\n"
            "main KEYDOWN B\nmain CHAR b\nmain KEYUP B\n");
}

TEST_F(Windows, AParentMayGoInTheDestroyHandlerOfAChild) {
  auto* pane = new SelfOwned<CWnd>("pane");
  Traced<CWnd> child("child");
  Add(*pane, 1);
  child.Create({.parent = pane->GetHandle()});
  child.During(WM_DESTROY, [&] { pane->DestroyWindow(); });
  Story();
  child.DestroyWindow();
  EXPECT_EQ(Story(), "child DESTROY\npane DESTROY\npane deleted\n");
  EXPECT_FALSE(child.Exists());
}

TEST_F(Windows, PostedMessagesComeInOrderAndOneAtATime) {
  Traced<CWnd> pane("pane");
  Add(pane, 1);
  pane.During(WM_USER + 1, [&] {
    PostMessage(pane.GetHandle(), WM_USER + 3);
    Note("handled");
  });
  PostMessage(pane.GetHandle(), WM_USER + 1);
  PostMessage(pane.GetHandle(), WM_USER + 2);
  Note("posted");
  EXPECT_EQ(Settled(), "posted\npane USER+1\nhandled\npane USER+2\npane USER+3\n");
}

}  // namespace
}  // namespace platform::conformance
