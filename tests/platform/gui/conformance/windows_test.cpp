// Birth and death of windows, and the messages between.

#include <gmock/gmock.h>

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

using testing::ElementsAre;

class Windows : public Scenario {};

TEST_F(Windows, AWindowHearsOfItsEndBeforeItsChildrenInTheirOrder) {
  Traced<CWnd> pane("pane");
  Traced<CWnd> first("first");
  Traced<CWnd> second("second");
  Add(pane, 1);
  first.Create({.parent = pane.GetHandle(), .id = 2});
  second.Create({.parent = pane.GetHandle(), .id = 3});
  const HWND handle = second.GetHandle();
  EXPECT_EQ(Story(), "first CREATE\nsecond CREATE\n");
  EXPECT_THAT(pane.GetChildren(), ElementsAre(&first, &second));
  EXPECT_EQ(pane.GetDlgItem(3), &second);
  EXPECT_EQ(second.GetTopLevelParent(), &main);

  pane.DestroyWindow();
  EXPECT_EQ(Story(), "pane DESTROY\nfirst DESTROY\nsecond DESTROY\n");
  EXPECT_THAT(main.GetChildren(), ElementsAre());
  EXPECT_FALSE(second.Exists());
  EXPECT_FALSE(IsWindow(handle));
}

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
  next.DestroyWindow();
}

TEST_F(Windows, CreationThatIsRefusedLeavesNothing) {
  Traced<CWnd> refused("refused");
  refused.On(WM_CREATE, [] { return -1; });
  EXPECT_FALSE(refused.Create({.parent = main.GetHandle()}));
  EXPECT_EQ(Story(), "refused CREATE\nrefused DESTROY\n");

  Traced<CWnd> suicidal("suicidal");
  suicidal.On(WM_CREATE, [&] {
    suicidal.DestroyWindow();
    return 0;
  });
  EXPECT_FALSE(suicidal.Create({.parent = main.GetHandle()}));

  Traced<CWnd> orphan("orphan");
  EXPECT_FALSE(orphan.Create({.parent = 77}));
  EXPECT_THAT(main.GetChildren(), ElementsAre());
}

// A window whose object goes with it.
struct SelfOwned : Traced<CButton> {
  using Traced::Traced;
  void PostNcDestroy() override {
    Note(name + " deleted");
    delete this;
  }
};

TEST_F(Windows, AWindowMayGoInItsOwnHandlerWithTheObject) {
  auto* button = new SelfOwned("button");
  Add(*button, 7, "Gone");
  main.On(WM_COMMAND, [&] {
    button->DestroyWindow();
    return 0;
  });
  stage->Click(*button);
  EXPECT_EQ(Story(),
            "button DOWN\nbutton SETFOCUS\nbutton UP\nmain BN_CLICKED 7\n"
            "button DESTROY\nbutton KILLFOCUS\nmain SETFOCUS\nbutton deleted\n");
}

TEST_F(Windows, AParentMayGoInTheDestroyHandlerOfAChild) {
  auto* pane = new SelfOwned("pane");
  Traced<CWnd> child("child");
  Add(*pane, 1);
  child.Create({.parent = pane->GetHandle()});
  child.On(WM_DESTROY, [&] {
    pane->DestroyWindow();
    return 0;
  });
  Story();
  child.DestroyWindow();
  EXPECT_EQ(Story(), "child DESTROY\npane DESTROY\npane deleted\n");
  EXPECT_FALSE(child.Exists());
}

TEST_F(Windows, PostedMessagesComeInOrderAndOneAtATime) {
  Traced<CWnd> pane("pane");
  Add(pane, 1);
  pane.On(WM_USER + 1, [&] {
    PostMessage(pane.GetHandle(), WM_USER + 3);
    Note("handled");
    return 0;
  });
  PostMessage(pane.GetHandle(), WM_USER + 1);
  PostMessage(pane.GetHandle(), WM_USER + 2);
  Note("posted");
  stage->Settle();
  EXPECT_EQ(Story(), "posted\npane USER+1\nhandled\npane USER+2\npane USER+3\n");
  pane.DestroyWindow();
}

// A window with a handler of each kind, and a base with others.
struct CTold : Traced<CWnd> {
  using Traced::Traced;
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void OnGo() { Note("go"); }
  void OnUpdateGo(CCmdUI& ui) { ui.SetCheck(true), ui.Enable(false); }
  LRESULT OnHead(NMHDR& header) {
    Note("notified by " + std::to_string(header.idFrom));
    return 5;
  }
  void OnTyped() { Note("typed"); }
  LRESULT OnUser(const MSG& msg) {
    Note("ahead");
    const LRESULT result = Default(msg, kMessages);
    Note("behind");
    return result + 1;
  }
};
const MessageTable CTold::kMessages{&CWnd::kMessages,
                                    {
                                        OnMessage<&CTold::OnUser>(WM_USER),
                                        OnCommand<&CTold::OnGo>(32800),
                                        OnUpdate<&CTold::OnUpdateGo>(32800),
                                        OnNotify<&CTold::OnHead>(9, NM_CLICK),
                                        OnControl<&CTold::OnTyped>(9, EN_CHANGE),
                                    }};
struct CTolder : CTold {
  using CTold::CTold;
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  LRESULT OnUserFirst(const MSG& msg) {
    Note("first");
    return Default(msg, kMessages) + 10;
  }
};
const MessageTable CTolder::kMessages{&CTold::kMessages, {OnMessage<&CTolder::OnUserFirst>(WM_USER)}};

TEST_F(Windows, TablesSayWhoHandlesWhatFromTheClassToItsBases) {
  CTolder pane("pane");
  CEdit edit;
  Add(pane, 1);
  edit.Create({.parent = pane.GetHandle(), .id = 9});

  EXPECT_EQ(pane.Send(WM_USER), 11);
  EXPECT_EQ(Story(), "pane USER+0\nfirst\nahead\nbehind\n");

  EXPECT_EQ(pane.Send(WM_COMMAND, 32800), 1);
  EXPECT_EQ(pane.Send(WM_COMMAND, 32801), 0);
  EXPECT_EQ(Story(), "pane COMMAND 32800\ngo\npane COMMAND 32801\n");
  CCmdUI go(32800);
  EXPECT_TRUE(pane.UpdateCommand(go));
  EXPECT_TRUE(go.IsChecked());
  EXPECT_FALSE(go.IsEnabled());
  CCmdUI unknown(32801);
  EXPECT_FALSE(pane.UpdateCommand(unknown));

  NMHDR header{0, 0, NM_CLICK};
  EXPECT_EQ(edit.NotifyParent(header), 5);
  edit.SetText("x");
  EXPECT_EQ(Story(), "notified by 9\npane EN_UPDATE 9\npane EN_CHANGE 9\ntyped\n");
  pane.DestroyWindow();
}

TEST_F(Windows, HelpIsAskedForTheWindowWithTheFocusAndThenForItsParents) {
  Traced<CWnd> pane("pane");
  Traced<CEdit> edit("edit");
  Add(pane, 1);
  edit.Create({.parent = pane.GetHandle(), .id = 9});
  Focus(edit);
  stage->Key(VK_F1);
  EXPECT_EQ(Story(), "edit KEYDOWN F1\nedit HELP\npane HELP\nmain HELP\nedit KEYUP F1\n");

  pane.On(WM_HELP, [] { return 1; });
  stage->Key(VK_F1);
  EXPECT_EQ(Story(), "edit KEYDOWN F1\nedit HELP\npane HELP\nedit KEYUP F1\n");
  pane.DestroyWindow();
}

}  // namespace
}  // namespace platform::conformance
