// Modal things: what they block, who has the focus meanwhile, and how they end.

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

// The dialog with a name in it, its controls members of the class.
struct CNameDialog : Traced<CDialog> {
  explicit CNameDialog(std::string window_name) : Traced(std::move(window_name), kNameDialog, nullptr) {}
  void DoDataExchange(CDataExchange& dx) override {
    DDX_Control(dx, kName, edit);
    DDX_Control(dx, IDOK, ok);
    DDX_Text(dx, kName, text);
    DDX_Check(dx, kAll, all);
  }
  void OnInitDialog() override {
    CDialog::OnInitDialog();
    if (in_init) in_init();
  }
  Traced<CEdit> edit{"edit"};
  Traced<CButton> ok{"ok"};
  std::string text;
  bool all = false;
  std::function<void()> in_init;
};

class Modals : public Scenario {
 protected:
  Modals() {
    Add(behind, 1);
    Focus(behind);
  }
  ~Modals() override { behind.DestroyWindow(); }
  Traced<CEdit> behind{"behind"};
};

TEST_F(Modals, ADialogOpensTakesTheFocusAndGivesItBackBeforeItGoes) {
  CNameDialog dialog("dialog");
  dialog.text = "PORT";
  stage->InNextDialog({[&](CDialog&) {
                         EXPECT_EQ(dialog.edit.GetText(), "PORT");
                         EXPECT_EQ(dialog.edit.GetSelEnd() - dialog.edit.GetSelStart(), 4u);
                         stage->Type("B");
                       },
                       [&](CDialog& open) {
                         static_cast<CCheckBox*>(open.GetDlgItem(kAll))->Clicked();
                         Note("behind the edit");
                         stage->Click(dialog.ok);
                       }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDOK));
  stage->Settle();
  EXPECT_EQ(dialog.text, "B");
  EXPECT_TRUE(dialog.all);
  EXPECT_EQ(GetFocus(), behind.GetHandle());
  EXPECT_EQ(Story(),
            "dialog CREATE\nedit CREATE\nok CREATE\n"
            "dialog EN_UPDATE 11\ndialog EN_CHANGE 11\n"
            "dialog: Name\nbehind KILLFOCUS\nedit SETFOCUS\n"
            "edit KEYDOWN B\nedit CHAR B\ndialog EN_UPDATE 11\ndialog EN_CHANGE 11\nedit KEYUP B\n"
            "dialog BN_CLICKED 12\nbehind the edit\n"
            "ok DOWN\nedit KILLFOCUS\nok SETFOCUS\nok UP\ndialog BN_CLICKED 1\n"
            "ok KILLFOCUS\nbehind SETFOCUS\ndialog DESTROY\nedit DESTROY\nok DESTROY\n");
}

TEST_F(Modals, WhatIsBehindGetsNoInput) {
  CNameDialog dialog("dialog");
  stage->InNextDialog({[&](CDialog&) {
                         Story();
                         stage->Click(behind);
                         EXPECT_EQ(Story(), "");
                         EXPECT_EQ(GetFocus(), dialog.edit.GetHandle());
                       },
                       [&](CDialog& open) { open.EndDialog(7); }});
  EXPECT_EQ(dialog.DoModal(), 7);
}

TEST_F(Modals, AWishForTheFocusBehindIsGrantedAtTheEnd) {
  Traced<CEdit> other("other");
  Add(other, 2);
  CNameDialog dialog("dialog");
  stage->InNextDialog({[&](CDialog& open) {
    Story();
    SetFocus(other.GetHandle());
    EXPECT_EQ(Story(), "");
    EXPECT_EQ(GetFocus(), dialog.edit.GetHandle());
    open.EndDialog(IDOK);
  }});
  dialog.DoModal();
  stage->Settle();
  EXPECT_EQ(GetFocus(), other.GetHandle());
  EXPECT_EQ(Story(), "edit KILLFOCUS\nother SETFOCUS\ndialog DESTROY\nedit DESTROY\nok DESTROY\n");
  other.DestroyWindow();
}

TEST_F(Modals, AControlChosenInTheInitHasTheFocusWhenTheDialogShowsAndNotBefore) {
  CNameDialog dialog("dialog");
  dialog.in_init = [&] {
    Story();
    SetFocus(dialog.ok.GetHandle());
    MessageBox("Early");
    Note("init done");
  };
  stage->InNextDialog({[&](CDialog& open) { open.EndDialog(IDOK); }});
  dialog.DoModal();
  stage->Settle();
  EXPECT_EQ(Story(),
            "message: Early\nbehind KILLFOCUS\ninit done\ndialog: Name\nok SETFOCUS\n"
            "ok KILLFOCUS\nbehind SETFOCUS\ndialog DESTROY\nedit DESTROY\nok DESTROY\n");
}

TEST_F(Modals, ADialogThatIsEndedInItsInitNeverShows) {
  CNameDialog dialog("dialog");
  dialog.in_init = [&] { dialog.EndDialog(3); };
  EXPECT_EQ(dialog.DoModal(), 3);
  dialog.in_init = [&] { dialog.DestroyWindow(); };
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  stage->Settle();
  EXPECT_EQ(Story().find("dialog: "), std::string::npos);
  EXPECT_EQ(GetFocus(), behind.GetHandle());
}

TEST_F(Modals, ADialogInADialogGivesTheFocusBackToTheOuter) {
  Traced<CEdit> other("other");
  Add(other, 2);
  CNameDialog outer("outer");
  CNameDialog inner("inner");
  inner.edit.name = "inner edit";
  inner.ok.name = "inner ok";
  stage->InNextDialog({[&](CDialog&) {
                         Story();
                         inner.DoModal();
                       },
                       [&](CDialog& open) {
                         EXPECT_EQ(GetFocus(), outer.edit.GetHandle());
                         open.EndDialog(IDOK);
                       }});
  stage->InNextDialog({[&](CDialog& open) {
    stage->Click(outer.ok);
    SetFocus(other.GetHandle());
    open.EndDialog(IDOK);
  }});
  outer.DoModal();
  stage->Settle();
  EXPECT_EQ(
      Story(),
      "inner CREATE\ninner edit CREATE\ninner ok CREATE\ndialog: Name\nedit KILLFOCUS\ninner edit SETFOCUS\n"
      "inner edit KILLFOCUS\nedit SETFOCUS\ninner DESTROY\ninner edit DESTROY\ninner ok DESTROY\n"
      "edit KILLFOCUS\nother SETFOCUS\nouter DESTROY\nedit DESTROY\nok DESTROY\n");
  other.DestroyWindow();
}

TEST_F(Modals, AnOuterDialogMayBeToldToEndBeforeTheInner) {
  CNameDialog outer("outer");
  CNameDialog inner("inner");
  stage->InNextDialog({[&](CDialog&) {
    Note("inner gave " + std::to_string(inner.DoModal()));
    EXPECT_TRUE(outer.Exists());
  }});
  stage->InNextDialog({[&](CDialog&) { outer.EndDialog(5); },
                       [&](CDialog& open) {
                         Note("inner goes on");
                         open.EndDialog(6);
                       }});
  Note("outer gave " + std::to_string(outer.DoModal()));
  stage->Settle();
  const std::string story = Story();
  EXPECT_NE(story.find("inner goes on\n"), std::string::npos);
  EXPECT_LT(story.find("inner gave 6\n"), story.find("outer gave 5\n"));
  EXPECT_EQ(GetFocus(), behind.GetHandle());
}

TEST_F(Modals, ADialogThatIsDestroyedWhileItRunsIsOver) {
  CNameDialog dialog("dialog");
  dialog.On(WM_COMMAND, [&] {
    if (!dialog.edit.GetText().empty()) dialog.DestroyWindow();
    return 0;
  });
  stage->InNextDialog({[&](CDialog&) {
    Story();
    stage->Type("x");
  }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  stage->Settle();
  EXPECT_EQ(Story(),
            "edit KEYDOWN X\nedit CHAR x\ndialog EN_UPDATE 11\n"
            "dialog DESTROY\nedit KILLFOCUS\nedit DESTROY\nok DESTROY\nbehind SETFOCUS\n");
  EXPECT_EQ(GetFocus(), behind.GetHandle());
}

TEST_F(Modals, ADialogCanRunAgain) {
  CNameDialog dialog("dialog");
  for (int round = 1; round <= 2; ++round) {
    stage->InNextDialog({[&](CDialog& open) { open.EndDialog(round); }});
    EXPECT_EQ(dialog.DoModal(), round);
  }
  CDialog none(99, nullptr);
  EXPECT_EQ(none.DoModal(), -1);
}

TEST_F(Modals, TheReleaseOfAPressThatOpenedSomethingIsLost) {
  Traced<CButton> button("button");
  Add(button, 2, "Press");
  behind.On(WM_KILLFOCUS, [] {
    MessageBox("Too late");
    return 0;
  });
  stage->Press(button, {3, 3});
  behind.handlers.clear();
  stage->Release(button, {3, 3});
  EXPECT_EQ(Story(), "button DOWN\nbehind KILLFOCUS\nmessage: Too late\nbutton KILLFOCUS\nbutton SETFOCUS\n");

  stage->Click(button);
  EXPECT_EQ(Story(), "button DOWN\nbutton UP\nmain BN_CLICKED 2\n");
  button.DestroyWindow();
}

TEST_F(Modals, TheReleaseOfAKeyThatClosedADialogReachesNobody) {
  CNameDialog dialog("dialog");
  stage->InNextDialog({[&](CDialog&) {
    Story();
    stage->KeyDown(VK_ESCAPE, 0);
  }});
  dialog.DoModal();
  stage->KeyUp(VK_ESCAPE, 0);
  stage->Settle();
  EXPECT_EQ(Story(),
            "dialog COMMAND 2\nedit KILLFOCUS\nbehind SETFOCUS\ndialog DESTROY\nedit DESTROY\nok DESTROY\n");
}

TEST_F(Modals, ABoxTakesTheFocusWhileItShowsWhereverItIsAskedFor) {
  behind.On(WM_USER, [&] {
    behind.handlers.clear();
    MessageBox("Error saving file", MB_ICONEXCLAMATION, "IO");
    return 0;
  });
  stage->InNextBox([] { Note("shows"); });
  behind.Send(WM_USER);
  stage->Settle();
  EXPECT_EQ(Story(),
            "behind USER+0\nmessage [exclamation] \"IO\": Error saving file\nbehind KILLFOCUS\nshows\nbehind "
            "SETFOCUS\n");
}

}  // namespace
}  // namespace platform::conformance
