// Values that are typed into a cell, and what may go while an edit ends.

#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

namespace user = platform::user;

// The registers of OFF can't be edited while bit 0 of STATUS is set.
constexpr std::string_view kEditDevice =
    "[Modules]\nBaseAddress=0xFF0000\nFileVersion=3\nModule1=PORT\nModule2=OFF\n"
    "[PORT]\nreg0=P0\nreg1=P1\n[P0]\nname=PDATA\nreladdr=FF0010\nbitfield0=F0\n"
    "[F0]\nname=MODE\nbit=1\nlen=3\n[P1]\nname=STATUS\nreladdr=FF0011\nwrite=0\n"
    "[OFF]\nreg0=Q0\ndep_reg=P1\ndep_bit=0\ndep_val=0\n[Q0]\nname=QDATA\nreladdr=FF0020\n";

enum class Way { Click, Enter, Leave, Escape };

class PaneEdit : public PaneStage {
 protected:
  PaneEdit() {
    frame.path = dir.Write("edit.io", kEditDevice);
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
  void Reset() {
    host.Poke(0xFF0010, {0xA5, 0x11, 0x12, 0x13});
    Stop(), Stop();
    host.ClearTranscript();
    shown.clear();
  }
  const std::string& Cell(const std::string& path) { return Tree(0).GetItemText(Row(0, path), 2); }
  // A click on the value, and the time for a double click.
  bool Begin(const std::string& path) {
    const platform::RECT cell = Tree(0).GetCellRect(Row(0, path), 2);
    user::Click(Tree(0), {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2});
    display.Advance(500);
    return Tree(0).IsEditing();
  }
  void End(Way way) {
    if (way == Way::Click) {
      user::Click(Tree(0), Tree(0).GetPartPoint(Row(0, "PORT"), platform::TVHT_ONITEMLABEL));
    }
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

TEST_F(PaneEdit, ARegisterThatReadsAsSomethingElseIsWrittenOnce) {
  host.during["WriteBlock"] = [this] { host.FailNext("WriteBlock", 1); };
  Type("PORT/PDATA", "4b");
  End(Way::Click);
  EXPECT_EQ(Calls(), "parse 4b, read, write 4B, event, parse 4b, read");
  EXPECT_EQ(shown, "");
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

  CloseAll();
  OpenView("{PORT?{GONE?}}");
  Open(1, "PORT");
  Tree(1).SelectItem(Row(1, "PORT/GONE"));
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

}  // namespace
}  // namespace pvw::test
