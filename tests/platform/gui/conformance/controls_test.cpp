// Edits, combo boxes and buttons: who is told what, and when.

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

class Controls : public Scenario {};

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

  Traced<CEdit> fixed("fixed");
  Add(fixed, 10, "PORT", ES_READONLY);
  Focus(fixed);
  stage->Key(VK_END);
  stage->Key(VK_BACK);
  stage->Type("x");
  fixed.ReplaceSel("y");
  EXPECT_EQ(fixed.GetText(), "PORT");
}

TEST_F(Controls, AnEditMayRefuseWhatIsTypedAndTheCaretStays) {
  Traced<CEdit> edit("edit");
  Add(edit, 9);
  Focus(edit);
  stage->Type("ab");
  stage->Key(VK_LEFT);
  bool restoring = false;
  main.During(WM_COMMAND, [&] {
    Note("with " + edit.GetText());
    if (restoring) edit.SetSel(1, 1);
    if (edit.GetText().find('*') == std::string::npos) return;
    restoring = true;
    edit.SetText("ab");
  });
  Story();
  stage->Type("*");
  const std::string story = Story();
  const std::size_t from = story.find("main EN_UPDATE");
  EXPECT_EQ(story.substr(from, story.rfind("edit KEYUP") - from),
            "main EN_UPDATE 9\nwith a*b\nmain EN_UPDATE 9\nwith ab\nmain EN_CHANGE 9\nwith ab\n"
            "main EN_CHANGE 9\nwith ab\n");
  edit.ReplaceSel("1*2");
  EXPECT_EQ(edit.GetText(), "ab") << "all of a pasted text is refused";
  restoring = false;
  stage->Type("c");
  edit.ReplaceSel("12\r\n34");
  EXPECT_EQ(edit.GetText(), "ac12b") << "a line end ends a pasted text";
}

TEST_F(Controls, AComboBoxTellsWhatIsTypedAndWhatIsPicked) {
  Traced<CComboBox> combo("combo");
  Add(combo, 9);
  for (const char* text : {"100", "200"}) combo.AddString(text);
  Focus(combo);
  stage->Type("5");
  EXPECT_EQ(Story(),
            "combo KEYDOWN 5\ncombo CHAR 5\nmain CBN_EDITUPDATE 9\nmain CBN_EDITCHANGE 9\ncombo KEYUP 5\n");
  EXPECT_EQ(combo.GetCurSel(), -1);
  main.During(WM_COMMAND, [&] { Note("with " + combo.GetText()); });
  combo.PeerPicked(1);
  combo.PeerPicked(2);
  combo.SetCurSel(0);
  EXPECT_EQ(Story(), "main CBN_SELCHANGE 9\nwith 200\n") << "what the program sets nobody is told";
  EXPECT_EQ(combo.GetText(), "100");
  combo.SetCurSel(7);
  stage->Type("200");
  SetFocus(0);
  stage->Settle();
  EXPECT_EQ(combo.GetCurSel(), -1) << "who types an entry's text and leaves picks nothing";
}

TEST_F(Controls, AComboBoxWithoutAnEditShowsItsEntriesAlone) {
  Traced<CComboBox> combo("combo");
  Add(combo, 9, {}, CBS_DROPDOWNLIST);
  combo.AddString("Name");
  combo.AddString("Address");
  combo.SetText("Address");
  EXPECT_EQ(combo.GetCurSel(), 1);
  combo.SetText("Value");
  Focus(combo);
  stage->Key(VK_UP);
  EXPECT_EQ(combo.GetText(), "Name");
  EXPECT_EQ(Story(), "combo KEYDOWN Up\nmain CBN_SELCHANGE 9\ncombo KEYUP Up\n");
}

TEST_F(Controls, AButtonIsClickedInsideItsRelease) {
  Traced<CButton> button("button");
  Add(button, 9, "Go");
  stage->Click(button);
  stage->Press(button, {3, 3});
  stage->Release(button, {3, 300});  // beside it
  EXPECT_EQ(Story(), "button DOWN\nbutton SETFOCUS\nbutton UP\nmain BN_CLICKED 9\nbutton DOWN\nbutton UP\n");
  button.EnableWindow(false);
  button.Clicked();
  EXPECT_EQ(Story(), "button KILLFOCUS\nmain SETFOCUS\n") << "a disabled control has no use for keys";
}

}  // namespace
}  // namespace platform::conformance
