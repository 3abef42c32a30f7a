// The keys that move about in a dialog.

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

struct CPickDialog : Traced<CDialog> {
  CPickDialog() : Traced("dialog", kPickDialog, nullptr) {}
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void DoDataExchange(CDataExchange& dx) override { DDX_Control(dx, kPick, pick); }
  void OnInitDialog() override {
    pick.AddString("Name");
    pick.AddString("Address");
    pick.SetCurSel(1);
    CDialog::OnInitDialog();
  }
  void OnMore() { Note("more"); }
  void OnOwnOk() { EndDialog(IDOK); }
  CComboBox pick;
};
const MessageTable CPickDialog::kMessages{&CDialog::kMessages,
                                          {
                                              OnCommand<&CPickDialog::OnMore>(kMore),
                                              OnCommand<&CPickDialog::OnOwnOk>(kOwnOk),
                                          }};

class DialogKeys : public Scenario {
 protected:
  // Runs the dialog with one thing done in it, and ends it if that hasn't.
  int Run(CDialog& dialog, const std::function<void(CDialog&)>& step) {
    bool ended = true;
    stage->InNextDialog({[&](CDialog& open) {
      Story();
      step(open);
      ended = false;
      open.EndDialog(100);
    }});
    const int result = dialog.DoModal();
    EXPECT_FALSE(ended);
    return result;
  }
  static UINT FocusId() {
    const CWnd* window = CWnd::FromHandle(GetFocus());
    return window != nullptr ? window->GetId() : 0;
  }
};

TEST_F(DialogKeys, TabGoesRoundTheControlsThatCanHaveTheFocus) {
  CDialog dialog(kNameDialog, nullptr);
  Run(dialog, [&](CDialog& open) {
    std::string visited;
    const auto tab = [&](UINT modifiers) {
      stage->Key(VK_TAB, modifiers);
      visited += " " + std::to_string(FocusId());
    };
    EXPECT_EQ(FocusId(), kName);
    for (int i = 0; i < 4; ++i) tab(0);
    visited += " back";
    for (int i = 0; i < 3; ++i) tab(MK_SHIFT);
    open.GetDlgItem(kAll)->EnableWindow(false);
    open.GetDlgItem(IDOK)->ShowWindow(false);
    visited += " without two";
    for (int i = 0; i < 2; ++i) tab(0);
    EXPECT_EQ(visited, " 12 1 2 11 back 2 1 12 without two 2 11");
  });
}

TEST_F(DialogKeys, ADialogWithoutControlsHasTheFocusItselfAndEscapeStillEndsIt) {
  CDialog dialog(kEmptyDialog, nullptr);
  stage->InNextDialog({[&](CDialog& open) {
    EXPECT_EQ(GetFocus(), open.GetHandle());
    stage->Key(VK_TAB);
    stage->Key(VK_ESCAPE);
  }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
}

struct EnterCase {
  const char* name;
  UINT focus;         // where the focus is
  UINT disabled = 0;  // a control that is disabled
  const char* story;
  bool ends;
};

TEST_F(DialogKeys, EnterPressesTheButtonWithTheFocusElseTheDefaultOne) {
  const EnterCase cases[] = {
      {"in the combo box the default button", kPick, 0, "dialog BN_CLICKED 21\n", true},
      {"on a button that one", kMore, 0, "dialog BN_CLICKED 14\nmore\n", false},
      {"a default button that is disabled isn't pressed", kPick, kOwnOk, "", false},
  };
  for (const EnterCase& row : cases) {
    SCOPED_TRACE(row.name);
    CPickDialog dialog;
    std::string story;
    bool ended = false;
    Steps steps;
    steps.emplace_back([&](CDialog& open) {
      if (row.disabled != 0) open.GetDlgItem(row.disabled)->EnableWindow(false);
      SetFocus(open.GetDlgItem(row.focus)->GetHandle());
      Story();
      stage->KeyDown(VK_RETURN, 0);
      story = Story();
      ended = !row.ends;
      if (ended) open.EndDialog(100);
    });
    stage->InNextDialog(std::move(steps));
    EXPECT_EQ(dialog.DoModal(), row.ends ? static_cast<int>(IDOK) : 100);
    stage->KeyUp(VK_RETURN, 0);
    EXPECT_EQ(story, row.story);
  }
}

TEST_F(DialogKeys, AltAndALetterGoWhereItIsUnderlined) {
  CDialog names(kNameDialog, nullptr);
  Run(names, [&](CDialog& open) {
    stage->Key('A', MK_ALT);
    EXPECT_EQ(FocusId(), kAll);
    EXPECT_TRUE(static_cast<CCheckBox*>(open.GetDlgItem(kAll))->GetCheck()) << "a check box is turned";
    stage->Key('N', MK_ALT);
    EXPECT_EQ(FocusId(), kName) << "a label leads to the control behind it";
    stage->Key('Z', MK_ALT);
    EXPECT_EQ(FocusId(), kName) << "a letter that nobody has does nothing";
  });
  CPickDialog picks;
  Run(picks, [&](CDialog&) {
    stage->Key('M', MK_ALT);
    EXPECT_EQ(FocusId(), kMore);
    EXPECT_EQ(Story(), "dialog BN_CLICKED 14\nmore\n") << "a button is pressed";
  });
}

TEST_F(DialogKeys, SpacePressesAButtonAndTurnsACheckBoxWhenItIsLetGo) {
  CDialog dialog(kNameDialog, nullptr);
  Run(dialog, [&](CDialog& open) {
    auto& box = static_cast<CCheckBox&>(*open.GetDlgItem(kAll));
    SetFocus(box.GetHandle());
    stage->KeyDown(VK_SPACE, 0);
    EXPECT_FALSE(box.GetCheck());
    stage->KeyUp(VK_SPACE, 0);
    EXPECT_TRUE(box.GetCheck());
  });
}

TEST_F(DialogKeys, ACloseIsACancelWhichTheDialogMayRefuse) {
  struct CStubborn : CDialog {
    CStubborn() : CDialog(kNameDialog, nullptr) {}
    void OnCancel() override {
      if (++asked == 2) CDialog::OnCancel();
    }
    int asked = 0;
  } dialog;
  stage->InNextDialog({[](CDialog& open) { open.Send(WM_CLOSE); },
                       [&](CDialog& open) {
                         EXPECT_TRUE(open.Exists());
                         open.Send(WM_CLOSE);
                       }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
  EXPECT_EQ(dialog.asked, 2);
}

TEST_F(DialogKeys, ControlsStandWhereTheTemplateSaysInTheDisplaysUnits) {
  CDialog dialog(kNameDialog, nullptr);
  Run(dialog, [&](CDialog& open) {
    const SIZE letters = GetDisplay()->TextExtent({}, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const int base_x = (letters.cx / 26 + 1) / 2;
    const auto x = [&](int units) { return (units * base_x + 2) / 4; };
    const auto y = [&](int units) { return (units * letters.cy + 4) / 8; };
    EXPECT_EQ(open.GetRect().Width(), x(207));
    EXPECT_EQ(open.GetRect().Height(), y(50));
    const RECT ok = open.GetDlgItem(IDOK)->GetRect();
    EXPECT_EQ(ok, (RECT{x(150), y(7), x(150) + x(50), y(7) + y(14)}));
    EXPECT_EQ(open.GetDlgItem(kAll)->GetText(), "&All");
    EXPECT_EQ(open.GetOwner(), main.GetHandle());
  });
}

}  // namespace
}  // namespace platform::conformance
