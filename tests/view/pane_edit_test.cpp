// Values that a user edits: typed into a cell, by every way out of it, and in the dialog.

#include "platform/gui/controls.h"
#include "platform/gui/dialog.h"
#include "platform/gui/list_edit.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"
#include "view/hex_value_text.h"

namespace pvw::test {
namespace {

using platform::CDialog;
using platform::DialogAnswer;
namespace user = platform::user;

// The registers of OFF can't be edited while bit 0 of STATUS is set.
constexpr std::string_view kEditDevice =
    "[Modules]\nBaseAddress=0xFF0000\nFileVersion=3\nModule1=PORT\nModule2=OFF\n"
    "[PORT]\nreg0=P0\nreg1=P1\nreg2=P2\n[P0]\nname=PDATA\nreladdr=FF0010\nbitfield0=F0\n"
    "[F0]\nname=MODE\nbit=1\nlen=3\n[P1]\nname=STATUS\nreladdr=FF0011\nwrite=0\n"
    "[P2]\nname=WIDE\nreladdr=FF0012\nsize=16\n"
    "[OFF]\nreg0=Q0\ndep_reg=P1\ndep_bit=0\ndep_val=0\n[Q0]\nname=QDATA\nreladdr=FF0020\n";

enum class Way { Click, Enter, Leave, Escape };

class PaneEdit : public PaneStage {
 protected:
  PaneEdit() {
    frame.path = dir.Write("edit.io", kEditDevice);
    host.error_texts[platform::E_FAIL] = "Target access failed.";
    host.error_texts[static_cast<platform::Status>(0x80040905u)] = "Unknown error.";
    host.error_texts[static_cast<platform::Status>(0x80040906u)] = "Invalid number.";
    OpenRows();
  }
  void OpenRows() {
    OpenView();
    Open(0, "PORT"), Open(0, "PORT/PDATA"), Open(0, "OFF");
    Reset();
  }
  void CloseAll() {
    ClosePane(0), ClosePane(1);
    data.DeleteModules(), data.DeleteSelection();
  }
  // The second pane with a record that the file lacks, selected.
  void SelectMissing() {
    CloseAll();
    OpenView("{PORT?{GONE?}}");
    Open(1, "PORT");
    Tree(1).SelectItem(Row(1, "PORT/GONE"));
  }
  void Reset() {
    host.Poke(0xFF0010, {0xA5, 0x11, 0x12, 0x13});
    Stop(), Stop();
    host.ClearTranscript();
    shown.clear();
  }
  const std::string& Cell(const std::string& path) { return Tree(0).GetItemText(Row(0, path), 2); }
  platform::POINT Point(const std::string& path, platform::UINT part = platform::TVHT_ONITEMLABEL) {
    return Tree(0).GetPartPoint(Row(0, path), part);
  }
  platform::POINT ValuePoint(const std::string& path) {
    const platform::RECT cell = Tree(0).GetCellRect(Row(0, path), 2);
    return {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
  }
  // A click on the value, and the time for a double click.
  bool Begin(const std::string& path) {
    user::Click(Tree(0), ValuePoint(path));
    display.Advance(500);
    return Tree(0).IsEditing();
  }
  void End(Way way) {
    if (way == Way::Click) user::Click(Tree(0), Point("PORT"));
    if (way == Way::Enter) user::PressKey(platform::VK_RETURN);
    if (way == Way::Leave) platform::SetFocus(dock->window->GetHandle());
    if (way == Way::Escape) user::PressKey(platform::VK_ESCAPE);
  }
  void Type(const std::string& path, const std::string& text) {
    ASSERT_TRUE(Begin(path));
    user::PressKey(platform::VK_DELETE);
    user::TypeText(text);
  }
  // What the host was asked for an edit: "parse 4B, read, write 4B, event".
  std::string Calls() {
    std::string calls;
    for (const std::string& line : host.Transcript()) {
      std::string call;
      if (line.starts_with("ParseValue")) call = line.size() > 11 ? "parse " + line.substr(11) : "parse";
      if (line.starts_with("ReadDirect")) call = "read";
      if (line.starts_with("WriteBlock")) call = "write" + line.substr(line.rfind(':') + 1);
      if (line == "FireEvent {2289D0FB-1242-11D5-9690-00B0D0167C2F}") call = "event";
      if (!call.empty()) calls += (calls.empty() ? "" : ", ") + call;
    }
    host.ClearTranscript();
    return calls;
  }
};

TEST_F(PaneEdit, EachWayOutOfACellWritesAtMostOnce) {
  const std::string kTooBig =
      "message [exclamation]: The entered value is too big.\\nMust be less than or equal to ";
  const std::string kInvalid = "message [exclamation]: Invalid number.\n";
  const std::string kRefused = "message [exclamation]: Target access failed.\n";
  const std::string long_text(500, 'F');
  const struct {
    const char* name;
    Way way;
    std::string path, typed, cell, shown, calls;
    const char* fails = nullptr;
  } kRows[] = {
      {"a click shows what was typed, with the prefix, and reads once more", Way::Click, "PORT/PDATA", "4b",
       "H'4b", "", "parse 4b, read, write 4B, event, parse 4b, read"},
      {"a field shows what was typed as it is", Way::Click, "PORT/PDATA/MODE", "0x5", "0x5", "",
       "parse 0x5, write AB, event, parse 0x5"},
      {"a click doesn't mind that a register is for reading", Way::Click, "PORT/STATUS", "22", "H'22", "",
       "parse 22, read, write 22, event, parse 22, read"},
      {"a click checks the digits before the host sees them", Way::Click, "PORT/PDATA", "xyz", "A5",
       "message: Invalid Hex Value\n", ""},
      {"too many digits", Way::Click, "PORT/PDATA", long_text, "A5", kInvalid, "parse " + long_text},
      {"too big for the register", Way::Click, "PORT/PDATA", "100", "A5", kTooBig + "FF.\n",
       "parse 100, read"},
      {"too big for the field", Way::Click, "PORT/PDATA/MODE", "8", "2", kTooBig + "7.\n", "parse 8"},
      {"the target refuses", Way::Click, "PORT/PDATA", "4b", "A5", kRefused, "parse 4b, read, write 4B",
       "WriteBlock"},
      {"the same value", Way::Click, "PORT/PDATA", "a5", "A5", "", "parse a5, read, parse a5, read"},
      {"Enter shows the value", Way::Enter, "PORT/PDATA", "h'4b", "4B", "",
       "parse h'4b, read, write 4B, event"},
      {"Enter checks no digits", Way::Enter, "PORT/PDATA", "D'20", "14", "",
       "parse D'20, read, write 14, event"},
      {"Enter leaves bad text to the host", Way::Enter, "PORT/PDATA", "xyz", "A5", kInvalid, "parse xyz"},
      {"Enter without text", Way::Enter, "PORT/PDATA", "", "A5", kInvalid, "parse"},
      {"Enter minds that a register is for reading, after the write", Way::Enter, "PORT/STATUS", "22", "11",
       "", "parse 22, read, write 22"},
      {"Enter with the same value", Way::Enter, "PORT/PDATA", "A5", "A5", "", "parse A5, read"},
      {"the focus leaves", Way::Leave, "PORT/PDATA", "4b", "4B", "", "parse 4b, read, write 4B, event"},
      {"Escape", Way::Escape, "PORT/PDATA", "4b", "A5", "", ""},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    Reset();
    Type(row.path, row.typed);
    if (row.fails != nullptr) host.FailNext(row.fails);
    End(row.way);
    EXPECT_FALSE(Tree(0).IsEditing());
    EXPECT_EQ(Cell(row.path), row.cell);
    EXPECT_EQ(shown, row.shown);
    EXPECT_EQ(Calls(), row.calls);
    // At rest again: a next edit ends as its own way says.
    Stop();
    const std::string before = Cell(row.path);
    Type(row.path, "3");
    Calls();
    End(Way::Escape);
    EXPECT_EQ(Cell(row.path), before);
    EXPECT_EQ(Calls(), "");
    EXPECT_EQ(platform::GetFocus(), Pane(0).GetTreeWindow()) << "arrow keys go on";
  }
}

TEST_F(PaneEdit, ARegisterThatReadsAsSomethingElseIsWrittenOnce) {
  host.during["WriteBlock"] = [this] { host.FailNext("WriteBlock", 1); };
  Type("PORT/PDATA", "4b");
  End(Way::Click);
  EXPECT_EQ(Calls(), "parse 4b, read, write 4B, event, parse 4b, read");
  EXPECT_EQ(shown, "");
}

TEST_F(PaneEdit, TheRefreshBehindAWriteMarksTheRowThatWasClickedAwayFrom) {
  host.during["FireEvent"] = [this] { Stop(); };
  Type("PORT/PDATA", "abc");
  user::PressKey(platform::VK_BACK);
  End(Way::Click);
  EXPECT_THAT(Rows(0), testing::HasSubstr("PDATA | H'00FF0010 | AB | RW *\n"));
  Type("PORT/PDATA", "4b");
  End(Way::Enter);
  EXPECT_THAT(Rows(0), testing::HasSubstr("PDATA | H'00FF0010 | 4B | RW *\n"));
}

TEST_F(PaneEdit, DeleteIsTheEditsOwnWhileOneIsOpen) {
  Type("PORT/PDATA", "123");
  user::PressKey(platform::VK_HOME);
  EXPECT_TRUE(platform::gui::Input({0, platform::WM_KEYDOWN, platform::VK_DELETE})) << "no key of the host's";
  EXPECT_EQ(Tree(0).GetListEdit()->GetText(), "23");
}

TEST_F(PaneEdit, OnlyTheValueOfARowThatMayBeEditedTakesTyping) {
  const struct {
    const char* path;
    int column;
    bool opens;
  } kRows[] = {{"PORT/PDATA", 2, true},  {"PORT/PDATA/MODE", 2, true}, {"PORT/STATUS", 2, true},
               {"PORT/PDATA", 0, false}, {"PORT/PDATA", 1, false},     {"PORT/PDATA", 3, false},
               {"PORT", 2, false},       {"OFF/QDATA", 2, false}};
  for (const auto& row : kRows) {
    Tree(0).SelectItem(Row(0, row.path));
    EXPECT_EQ(Tree(0).EditCell(Row(0, row.path), row.column), row.opens) << row.path << ' ' << row.column;
    user::PressKey(platform::VK_ESCAPE);
  }
  Tree(0).SelectItem(0);
  EXPECT_FALSE(Tree(0).EditCell(Row(0, "PORT/PDATA"), 2)) << "no row is selected";
  EXPECT_EQ(shown, "");

  EXPECT_TRUE(Begin("PORT/PDATA"));
  host.Poke(0xFF0011, {0x10});
  std::ignore = data.ReadValues(host.Debugger());
  End(Way::Escape);
  EXPECT_TRUE(Begin("OFF/QDATA")) << "the condition is met now, which the end of an edit looks at";

  SelectMissing();
  EXPECT_FALSE(Tree(1).EditCell(Row(1, "PORT/GONE"), 2));
}

// Names, and the cells beside the value, are refused at the beginning. A control that ended one of them all
// the same gets its old text back, and the open edit written.
TEST_F(PaneEdit, TheEndOfAnotherCellWritesWhatTheOpenEditHolds) {
  const auto end = [this](platform::UINT code, int column) {
    platform::NMLVDISPINFO record;
    record.hdr = {Pane(0).GetTreeWindow(), 200, code};
    record.item = {platform::LVIF_TEXT, Tree(0).GetRowOfItem(Row(0, "PORT/PDATA")), column, 0, 0, "4b"};
    const platform::LRESULT result =
        Pane(0).Send(platform::WM_NOTIFY, 200, reinterpret_cast<platform::LPARAM>(&record));
    return std::to_string(result) + " " + record.item.pszText + " | " + Cell("PORT/PDATA") + " | " + Calls();
  };
  for (const auto& [code, column, name] :
       {std::tuple(platform::LVN_ENDLABELEDIT, 3, "RW"), {platform::TVN_ENDLABELEDIT, 0, "PDATA"}}) {
    const std::string kept = std::string("1 ") + name;
    Reset();
    EXPECT_EQ(end(code, column), kept + " | A5 | ") << "no edit is open";
    Type("PORT/PDATA", "4b");
    EXPECT_EQ(end(code, column), kept + " | 4B | parse 4b, read, write 4B, event");
    End(Way::Escape);
    Type("PORT/PDATA", "xyz");
    EXPECT_EQ(end(code, column), kept + " | 4B | ");
    EXPECT_EQ(shown, column == 0 ? "" : "message: Invalid Hex Value\n");
    End(Way::Escape);
  }
}

TEST_F(PaneEdit, AnythingMayGoWhileAnEditEnds) {
  const std::map<std::string, std::function<void()>> kActs = {
      {"the pane is closed", [this] { ClosePane(0); }},
      {"the host destroys its window", [this] { host.Ui().DestroyDock(dock->window->GetHandle()); }},
      {"another file is loaded", [this] { Pane(0).LoadIOFile(frame.path, 0); }},
      {"the module is closed", [this] { Close(0, "PORT"); }}};
  for (const Way way : {Way::Click, Way::Enter, Way::Leave}) {
    for (const auto& [name, act] : kActs) {
      for (const std::string moment : {"xyz", "100", "refused", "ParseValue", "FireEvent"}) {
        SCOPED_TRACE(testing::Message()
                     << name << " while " << moment << " by way " << static_cast<int>(way));
        const bool in_call = moment == "ParseValue" || moment == "FireEvent";
        Type("PORT/PDATA", in_call || moment == "refused" ? "4b" : moment);
        if (moment == "refused") host.FailNext("WriteBlock");
        bool done = false;
        const auto once = [&done, &act = act] {
          if (!std::exchange(done, true)) act();
        };
        (in_call ? host.during[moment] : meanwhile) = once;
        End(way);
        host.during.clear();
        EXPECT_TRUE(done);
        EXPECT_FALSE(panes[0] != nullptr && panes[0]->Exists() && Tree(0).IsEditing());
        CloseAll();
        OpenRows();
      }
    }
  }
  Type("PORT/PDATA", "4b");
  ClosePane(0);
  EXPECT_EQ(Calls(), "") << "an edit that goes with its pane writes nothing";
}

TEST_F(PaneEdit, ADoubleClickAndEnterOpenTheDialogOrSayWhyNot) {
  const std::string kNotEditable = "message [exclamation] \"Edit OFF\": QDATA Not Editable\n";
  const std::string kDialog = "dialog: Edit PDATA at H'00FF0010\n";
  const struct {
    const char* path;
    platform::UINT part;  // 0: Enter
    std::string shown;
  } kRows[] = {
      {"PORT/PDATA", platform::TVHT_ONITEMLABEL, kDialog},
      {"PORT/PDATA", platform::TVHT_ONITEMICON, kDialog},
      {"PORT/PDATA", platform::TVHT_ONITEMINDENT, kDialog},
      {"PORT/PDATA", platform::TVHT_ONCOLUMN, kDialog},
      {"PORT/PDATA", platform::TVHT_ONITEMBUTTON, ""},
      {"PORT/PDATA", platform::TVHT_NOWHERE, ""},
      {"PORT/PDATA", 0, kDialog},
      {"PORT/PDATA/MODE", 0, "dialog: Edit MODE at H'00FF0010\n"},
      {"PORT", platform::TVHT_ONITEMLABEL, ""},
      {"PORT", 0, ""},
      {"OFF/QDATA", platform::TVHT_ONCOLUMN, kNotEditable},
      {"OFF/QDATA", platform::TVHT_NOWHERE, kNotEditable},
      {"OFF/QDATA", 0, kNotEditable},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::string(row.path) + " part " + std::to_string(row.part));
    Tree(0).SelectItem(Row(0, row.path));
    if (row.shown.starts_with("dialog")) display.Give(platform::CancelAnswer{});
    if (row.part != 0) {
      user::DoubleClick(Tree(0), Point(row.path, row.part));
    } else {
      platform::SetFocus(Pane(0).GetTreeWindow());
      user::PressKey(platform::VK_RETURN);
    }
    display.Advance(1000);
    EXPECT_FALSE(Tree(0).IsEditing());
    EXPECT_EQ(shown, row.shown);
    EXPECT_THAT(Calls(), testing::Not(testing::HasSubstr("event")));
    shown.clear();
    if (row.part == platform::TVHT_ONITEMBUTTON) Open(0, "PORT/PDATA");
  }
  SelectMissing();
  platform::SetFocus(Pane(1).GetTreeWindow());
  user::PressKey(platform::VK_RETURN);
  EXPECT_EQ(shown, "") << "a record that the file lacks";
}

TEST_F(PaneEdit, WhatTheDialogAcceptsIsWrittenAndTold) {
  const auto edit = [this](
                        const char* text, const std::function<void()>& act = [] {}) {
    display.Give(DialogAnswer{{[=](CDialog& dialog) {
      user::TypeText(text);
      act();
      user::PressOk(dialog);
    }}});
    Tree(0).SelectItem(Row(0, "PORT/PDATA/MODE"));
    platform::SetFocus(Pane(0).GetTreeWindow());
    user::PressKey(platform::VK_RETURN);
    return Calls();
  };
  EXPECT_EQ(edit("5"), "parse 5, write AB, event");
  EXPECT_EQ(edit("5"), "parse 5, write AB, event") << "an unchanged value is written all the same";
  host.FailNext("WriteBlock");
  EXPECT_EQ(edit("3"), "parse 3, write A7");
  EXPECT_THAT(shown, testing::EndsWith("message [exclamation]: Target access failed.\n"));

  Reset();
  EXPECT_THAT(edit("1", [this] { Pane(0).LoadIOFile(frame.path, 0); }), testing::EndsWith("parse 1"))
      << "its record has gone";
  Open(0, "PORT"), Open(0, "PORT/PDATA");
  Reset();
  EXPECT_THAT(edit("1", [this] { ClosePane(0); }), testing::EndsWith("parse 1, write A3, event"));
}

TEST(HexValueText, IsDigitsAndShowsTheHostsPrefix) {
  const struct {
    const char *typed, *shown;  // null: not a text of that kind
  } kRows[] = {{"1F", "H'1F"},   {"0x1F", "H'1F"},  {"0X1f", "H'1f"}, {"H'1F", "H'1F"},
               {"h'1f", "h'1f"}, {"H'", "H'0"},     {"h'", "H'0"},    {"0x", "H'0"},
               {"0", "H'0"},     {"00", "H'00"},    {"", nullptr},    {"G1", nullptr},
               {"1H", nullptr},  {"x1F", nullptr},  {"'1", nullptr},  {"H1F", nullptr},
               {"1H'", nullptr}, {"H'H'", nullptr}, {" 1", nullptr},  {"\xE3\x81\x82", nullptr}};
  for (const auto& row : kRows) {
    EXPECT_EQ(IsHexText(row.typed), row.shown != nullptr) << row.typed;
    if (row.shown == nullptr) continue;
    EXPECT_EQ(NormalizeHexText(row.typed), row.shown) << row.typed;
  }
}

}  // namespace
}  // namespace pvw::test
