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
    Add(other, 2);
    Focus(behind);
  }
  Traced<CEdit> behind{"behind"};
  Traced<CEdit> other{"other"};
};

TEST_F(Modals, ADialogOpensTakesTheFocusAndGivesItBackBeforeItGoes) {
  CNameDialog dialog("dialog");
  dialog.text = "PORT";
  stage->InNextDialog({[&](CDialog&) {
                         EXPECT_EQ(dialog.edit.GetSelEnd() - dialog.edit.GetSelStart(), 4u);
                         stage->Type("B");
                       },
                       [&](CDialog& open) {
                         static_cast<CCheckBox*>(open.GetDlgItem(kAll))->Clicked();
                         Note("behind the edit");
                         stage->Click(dialog.ok);
                       }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDOK));
  EXPECT_EQ(dialog.text, "B");
  EXPECT_TRUE(dialog.all);
  EXPECT_EQ(Settled(),
            "dialog CREATE\nedit CREATE\nok CREATE\n"
            "dialog EN_UPDATE 11\ndialog EN_CHANGE 11\n"
            "dialog: Name\nbehind KILLFOCUS\nedit SETFOCUS\n"
            "edit KEYDOWN B\nedit CHAR B\ndialog EN_UPDATE 11\ndialog EN_CHANGE 11\nedit KEYUP B\n"
            "dialog BN_CLICKED 12\nbehind the edit\n"
            "ok DOWN\nedit KILLFOCUS\nok SETFOCUS\nok UP\ndialog BN_CLICKED 1\n"
            "ok KILLFOCUS\nbehind SETFOCUS\ndialog DESTROY\nedit DESTROY\nok DESTROY\n");
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
  EXPECT_EQ(Settled(),
            "message: Early\nbehind KILLFOCUS\ninit done\ndialog: Name\nok SETFOCUS\n"
            "ok KILLFOCUS\nbehind SETFOCUS\ndialog DESTROY\nedit DESTROY\nok DESTROY\n");
}

TEST_F(Modals, ADialogThatIsEndedInItsInitNeverShows) {
  CNameDialog dialog("dialog");
  dialog.in_init = [&] { dialog.EndDialog(3); };
  EXPECT_EQ(dialog.DoModal(), 3);
  dialog.in_init = [&] { dialog.DestroyWindow(); };
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_EQ(Settled().find("dialog: "), std::string::npos);
  EXPECT_EQ(GetFocus(), behind.GetHandle());
  dialog.in_init = nullptr;
  stage->InNextDialog({[](CDialog& open) { open.EndDialog(4); }});
  EXPECT_EQ(dialog.DoModal(), 4) << "it can run again";
  EXPECT_EQ(CDialog(99, nullptr).DoModal(), -1) << "there is no template";
}

TEST_F(Modals, ADialogInADialogGivesTheFocusBackThoughTheOuterEndsFirst) {
  CNameDialog outer("outer");
  CDialog inner(kEmptyDialog, nullptr);
  stage->InNextDialog({[&](CDialog&) {
    Story();
    Note("inner gave " + std::to_string(inner.DoModal()));
    EXPECT_TRUE(outer.Exists());
    EXPECT_EQ(GetFocus(), outer.edit.GetHandle());
    stage->KeyUp(VK_ESCAPE, 0);  // reaches nobody
  }});
  stage->InNextDialog({[&](CDialog& open) {
                         EXPECT_EQ(GetFocus(), open.GetHandle()) << "it has no controls";
                         stage->Click(outer.ok);
                         SetFocus(other.GetHandle());
                         stage->Key(VK_TAB);
                         outer.EndDialog(5);
                       },
                       [&](CDialog&) { stage->KeyDown(VK_ESCAPE, 0); }});
  EXPECT_EQ(outer.DoModal(), 5);
  EXPECT_EQ(Settled(),
            "dialog: Empty\nedit KILLFOCUS\nedit SETFOCUS\ninner gave 2\n"
            "edit KILLFOCUS\nother SETFOCUS\nouter DESTROY\nedit DESTROY\nok DESTROY\n");
}

TEST_F(Modals, ADialogThatIsDestroyedWhileItRunsIsOver) {
  CNameDialog dialog("dialog");
  dialog.During(WM_COMMAND, [&] {
    if (!dialog.edit.GetText().empty()) dialog.DestroyWindow();
  });
  stage->InNextDialog({[&](CDialog&) {
    Story();
    stage->Type("x");
  }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_EQ(Settled(),
            "edit KEYDOWN X\nedit CHAR x\ndialog EN_UPDATE 11\n"
            "dialog DESTROY\nedit KILLFOCUS\nedit DESTROY\nok DESTROY\nbehind SETFOCUS\n");
}

TEST_F(Modals, TheReleaseOfAPressThatOpenedSomethingIsLost) {
  Traced<CButton> button("button");
  Add(button, 3, "Press");
  behind.During(WM_KILLFOCUS, [] { MessageBox("Too late"); });
  stage->Press(button, {3, 3});
  behind.handlers.clear();
  stage->Release(button, {3, 3});
  EXPECT_EQ(Story(), "button DOWN\nbehind KILLFOCUS\nmessage: Too late\nbutton KILLFOCUS\nbutton SETFOCUS\n");

  stage->Click(button);
  EXPECT_EQ(Story(), "button DOWN\nbutton UP\nmain BN_CLICKED 3\n");
}

}  // namespace
}  // namespace platform::conformance
