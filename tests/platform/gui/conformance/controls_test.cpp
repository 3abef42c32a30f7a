// Edits, combo boxes and buttons: who is told what, and when.

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

class Controls : public Scenario {};

TEST_F(Controls, AnEditIsUpdatedBeforeItIsChanged) {
  Traced<CEdit> edit("edit");
  Add(edit, 9, "1F");
  Focus(edit);
  std::string at_update;
  main.During(WM_COMMAND, [&] { at_update += edit.GetText() + ";"; });
  edit.SetSel(2, 2);
  stage->Type("2");
  EXPECT_EQ(Story(), "edit KEYDOWN 2\nedit CHAR 2\nmain EN_UPDATE 9\nmain EN_CHANGE 9\nedit KEYUP 2\n");
  EXPECT_EQ(at_update, "1F2;1F2;");

  edit.SetText("");
  EXPECT_EQ(Story(), "main EN_UPDATE 9\nmain EN_CHANGE 9\n") << "the program is told too";
}

TEST_F(Controls, EditingKeysWorkBySelectionAndWholeCharacters) {
  Traced<CEdit> edit("edit");
  Add(edit, 9, "a\xC3\xA4z");
  Focus(edit);
  edit.SetSel(4, 4);
  stage->Key(VK_LEFT);
  stage->Key(VK_BACK);
  EXPECT_EQ(edit.GetText(), "az");
  stage->Key(VK_HOME);
  stage->Key(VK_DELETE);
  stage->Type("\xC3\xA4");
  stage->Key(VK_HOME, MK_SHIFT);
  stage->Type("b");
  EXPECT_EQ(edit.GetText(), "bz") << "the selection goes";
  edit.SetText("x\xC3\xA4");
  edit.SetSel(2, 99);
  EXPECT_EQ(edit.GetSelStart(), 1u) << "a place inside a character is its start";
  EXPECT_EQ(edit.GetSelEnd(), 3u);
}

TEST_F(Controls, AReadOnlyEditCanBeWalkedThroughButNotChanged) {
  Traced<CEdit> edit("edit");
  Add(edit, 9, "PORT", ES_READONLY);
  Focus(edit);
  stage->Key(VK_END);
  stage->Key(VK_BACK);
  stage->Type("x");
  edit.ReplaceSel("y");
  EXPECT_EQ(edit.GetText(), "PORT");
  EXPECT_EQ(Story().find("EN_"), std::string::npos);
}

// An edit that takes no "*", as one types.
struct CStrictEdit : Traced<CEdit> {
  using Traced::Traced;
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void OnUpdate() {
    Note(name + " update " + GetText());
    if (GetText().find('*') == std::string::npos) return;
    MessageBeep();
    restoring = true;
    SetText(valid);
  }
  void OnChange() {
    Note(name + " change " + GetText());
    valid = GetText();
    if (restoring) SetSel(caret, caret);
    restoring = false;
    caret = GetSelEnd();
  }
  std::string valid;
  std::size_t caret = 0;
  bool restoring = false;
};
const MessageTable CStrictEdit::kMessages{&CEdit::kMessages,
                                          {
                                              OnReflect<&CStrictEdit::OnUpdate>(EN_UPDATE),
                                              OnReflect<&CStrictEdit::OnChange>(EN_CHANGE),
                                          }};

TEST_F(Controls, AnEditMayRefuseWhatIsTypedAndTheCaretStays) {
  CStrictEdit edit("edit");
  Add(edit, 9);
  Focus(edit);
  stage->Type("ab");
  stage->Key(VK_LEFT);
  edit.caret = edit.GetSelEnd();
  Story();
  stage->Type("*");
  std::string story = Story();
  const std::size_t from = story.find("edit update");
  EXPECT_EQ(story.substr(from, story.rfind("edit KEYUP") - from),
            "edit update a*b\nbeep\nedit update ab\nedit change ab\nedit change ab\n");
  stage->Type("c");
  edit.ReplaceSel("1*2");
  EXPECT_EQ(edit.GetText(), "acb") << "all of a pasted text is refused";
  edit.ReplaceSel("12\r\n34");
  EXPECT_EQ(edit.GetText(), "ac12b") << "a line end ends a pasted text";
}

TEST_F(Controls, AnEditMayGoWhileItIsUpdated) {
  struct SelfOwned : Traced<CEdit> {
    using Traced::Traced;
    void PostNcDestroy() override { delete this; }
  };
  auto* edit = new SelfOwned("edit");
  Add(*edit, 9);
  Focus(*edit);
  main.During(WM_COMMAND, [&] { edit->DestroyWindow(); });
  stage->Type("ab");
  EXPECT_EQ(Story(),
            "edit KEYDOWN A\nedit CHAR a\nmain EN_UPDATE 9\n"
            "edit DESTROY\nedit KILLFOCUS\nmain SETFOCUS\n"
            "main KEYDOWN B\nmain CHAR b\nmain KEYUP B\n");
}

TEST_F(Controls, AComboBoxTellsWhatIsTypedAndWhatIsPicked) {
  Traced<CComboBox> combo("combo");
  Add(combo, 9);
  combo.AddString("100");
  combo.AddString("200");
  Focus(combo);
  stage->Type("5");
  EXPECT_EQ(Story(),
            "combo KEYDOWN 5\ncombo CHAR 5\nmain CBN_EDITUPDATE 9\nmain CBN_EDITCHANGE 9\ncombo KEYUP 5\n");
  EXPECT_EQ(combo.GetCurSel(), -1);

  std::string at_pick;
  main.During(WM_COMMAND, [&] { at_pick = combo.GetText(); });
  combo.PeerPicked(1);
  combo.PeerPicked(2);
  EXPECT_EQ(Story(), "main CBN_SELCHANGE 9\n");
  EXPECT_EQ(at_pick, "200") << "the text is the entry's by then";

  combo.SetCurSel(0);
  combo.SetCurSel(7);
  EXPECT_EQ(Story(), "") << "what the program sets nobody is told";
  EXPECT_EQ(combo.GetText(), "100");
  EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST_F(Controls, AComboBoxWithoutAnEditShowsItsEntriesAlone) {
  Traced<CComboBox> combo("combo");
  Add(combo, 9, {}, CBS_DROPDOWNLIST);
  combo.AddString("Name");
  combo.AddString("Address");
  combo.SetText("Address");
  EXPECT_EQ(combo.GetCurSel(), 1);
  combo.SetText("Value");
  EXPECT_EQ(combo.GetText(), "Address");
  Focus(combo);
  stage->Key(VK_UP);
  EXPECT_EQ(combo.GetText(), "Name");
  EXPECT_EQ(Story(), "combo KEYDOWN Up\nmain CBN_SELCHANGE 9\ncombo KEYUP Up\n");
}

TEST_F(Controls, AButtonIsClickedInsideItsRelease) {
  Traced<CButton> button("button");
  Add(button, 9, "Go");
  stage->Click(button);
  EXPECT_EQ(Story(), "button DOWN\nbutton SETFOCUS\nbutton UP\nmain BN_CLICKED 9\n");
  stage->Press(button, {3, 3});
  stage->Release(button, {3, 300});
  EXPECT_EQ(Story(), "button DOWN\nbutton UP\n") << "let go beside it";
  button.EnableWindow(false);
  EXPECT_EQ(Story(), "button KILLFOCUS\nmain SETFOCUS\n") << "a disabled control has no use for keys";
  button.Clicked();
  EXPECT_EQ(Story(), "");
}

}  // namespace
}  // namespace platform::conformance
