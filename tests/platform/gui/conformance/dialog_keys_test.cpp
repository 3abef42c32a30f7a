// The keys that move about in a dialog.

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

struct CPickDialog : Traced<CDialog> {
  CPickDialog() : Traced("dialog", kPickDialog, nullptr) {}
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void OnMore() { Note("more"); }
  void OnOwnOk() { Note("ok"); }
  void OnCancel() override { Note("asked"); }
};
const MessageTable CPickDialog::kMessages{&CDialog::kMessages,
                                          {
                                              OnCommand<&CPickDialog::OnMore>(kMore),
                                              OnCommand<&CPickDialog::OnOwnOk>(kOwnOk),
                                          }};

class DialogKeys : public Scenario {
 protected:
  // Runs the dialog with one thing done in it, and ends it.
  void Run(CDialog& dialog, const std::function<void(CDialog&)>& step) {
    stage->InNextDialog({[&](CDialog& open) {
      Story();
      step(open);
      open.EndDialog(100);
    }});
    EXPECT_EQ(dialog.DoModal(), 100);
  }
  static UINT FocusId() {
    const CWnd* window = CWnd::FromHandle(GetFocus());
    return window != nullptr ? window->GetId() : 0;
  }
};

TEST_F(DialogKeys, TabGoesRoundAndAltWithALetterGoesWhereItIsUnderlined) {
  CDialog dialog(kNameDialog, nullptr);
  Run(dialog, [&](CDialog& open) {
    auto& box = static_cast<CCheckBox&>(*open.GetDlgItem(kAll));
    stage->Key('A', MK_ALT);
    EXPECT_EQ(FocusId(), kAll);
    EXPECT_TRUE(box.GetCheck()) << "a check box is turned";
    stage->KeyDown(VK_SPACE, 0);
    EXPECT_TRUE(box.GetCheck());
    stage->KeyUp(VK_SPACE, 0);
    EXPECT_FALSE(box.GetCheck()) << "and by a space when it is let go";
    stage->Key('N', MK_ALT);
    EXPECT_EQ(FocusId(), kName) << "a label leads to the control behind it";
    stage->Key('Z', MK_ALT);
    EXPECT_EQ(FocusId(), kName) << "a letter that nobody has does nothing";

    std::string visited;
    const auto tab = [&](int times, UINT modifiers) {
      for (int i = 0; i < times; ++i) {
        stage->Key(VK_TAB, modifiers);
        visited += " " + std::to_string(FocusId());
      }
    };
    tab(4, 0);
    visited += " back";
    tab(3, MK_SHIFT);
    box.EnableWindow(false);
    open.GetDlgItem(IDOK)->ShowWindow(false);
    visited += " without two";
    tab(2, 0);
    EXPECT_EQ(visited, " 12 1 2 11 back 2 1 12 without two 2 11");
  });
}

TEST_F(DialogKeys, EnterPressesTheButtonWithTheFocusElseTheDefaultOne) {
  CPickDialog dialog;
  Run(dialog, [&](CDialog& open) {
    const auto enter = [&](UINT focus) {
      SetFocus(open.GetDlgItem(focus)->GetHandle());
      stage->Key(VK_RETURN);
      return Story();
    };
    EXPECT_EQ(enter(kPick), "dialog BN_CLICKED 21\nok\n") << "in the combo box the default button";
    EXPECT_EQ(enter(kMore), "dialog BN_CLICKED 14\nmore\n") << "on a button that one";
    open.GetDlgItem(kOwnOk)->EnableWindow(false);
    EXPECT_EQ(enter(kPick), "") << "a default button that is disabled isn't pressed";
    stage->Key('M', MK_ALT);
    EXPECT_EQ(FocusId(), kMore);
    EXPECT_EQ(Story(), "dialog BN_CLICKED 14\nmore\n") << "a button is pressed by its letter";
    open.Send(WM_CLOSE);
    EXPECT_EQ(Story(), "dialog CLOSE\ndialog COMMAND 2\nasked\n")
        << "a close is a cancel, which the dialog may refuse";
    EXPECT_TRUE(open.Exists());
  });
}

}  // namespace
}  // namespace platform::conformance
