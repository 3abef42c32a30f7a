// Values that are typed into a cell or into the dialog, and a pane between its host, its rows and its frame:
// what a user on a whole host doesn't come by.

#include "host/host_ptr.h"
#include "platform/gui/controls.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "resources/ids.h"
#include "tests/view/pane_stage.h"
#include "view/dlg_edit_memory.h"
#include "view/drag_source.h"

namespace pvw::test {
namespace {

using platform::CDialog;
namespace user = platform::user;

// The registers of OFF can't be edited while bit 0 of STATUS is set.
constexpr std::string_view kEditDevice =
    "[Modules]\nBaseAddress=0xFF0000\nFileVersion=3\nModule1=PORT\nModule2=OFF\n"
    "[PORT]\nreg0=P0\nreg1=P1\n[P0]\nname=PDATA\nreladdr=FF0010\nbitfield0=F0\n"
    "[F0]\nname=MODE\nbit=1\nlen=3\n[P1]\nname=STATUS\nreladdr=FF0011\nwrite=0\n"
    "[OFF]\nreg0=Q0\ndep_reg=P1\ndep_bit=0\ndep_val=0\n[Q0]\nname=QDATA\nreladdr=FF0020\n";

class PaneEdit : public PaneStage {
 protected:
  PaneEdit() {
    frame.path = dir.Write("edit.io", kEditDevice);
    OpenView();
    Open(0, "PORT"), Open(0, "PORT/PDATA"), Open(0, "OFF");
    Reset();
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
  static void Escape() { user::PressKey(platform::VK_ESCAPE); }
  void Type(const std::string& path, const std::string& text) {
    ASSERT_TRUE(Begin(path));
    user::PressKey(platform::VK_DELETE);
    user::TypeText(text);
  }
  // What went to the target since the last time.
  std::string Written() {
    std::string written;
    for (const std::string& line : host.Asked("WriteBlock")) written += line.substr(line.rfind(':') + 1);
    host.ClearTranscript();
    return written;
  }
};

TEST_F(PaneEdit, ARegisterThatReadsAsSomethingElseIsWrittenOnce) {
  host.during["WriteBlock"] = [this] { host.FailNext("WriteBlock", 1); };
  Type("PORT/PDATA", "4b");
  user::Click(Tree(0), Tree(0).GetPartPoint(Row(0, "PORT"), platform::TVHT_ONITEMLABEL));
  EXPECT_EQ(Written(), " 4B");
  EXPECT_EQ(shown, "");
}

TEST_F(PaneEdit, OnlyTheValueOfASelectedRowThatMayBeEditedTakesTyping) {
  Tree(0).SelectItem(Row(0, "PORT/PDATA"));
  for (const int column : {0, 1, 2, 3}) {
    EXPECT_EQ(Tree(0).EditCell(Row(0, "PORT/PDATA"), column), column == 2) << column;
    Escape();
  }
  Tree(0).SelectItem(0);
  EXPECT_FALSE(Tree(0).EditCell(Row(0, "PORT/PDATA"), 2)) << "no row is selected";
  EXPECT_FALSE(Begin("OFF/QDATA"));
  EXPECT_TRUE(Begin("PORT/PDATA"));
  host.Poke(0xFF0011, {0x10});
  std::ignore = data.ReadValues(host.Debugger());
  Escape();
  EXPECT_TRUE(Begin("OFF/QDATA")) << "the condition is met now, which the end of an edit looks at";
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
    return std::to_string(result) + " " + record.item.pszText + " | " + Cell("PORT/PDATA") + " |" + Written();
  };
  for (const auto& [code, column, name] :
       {std::tuple(platform::LVN_ENDLABELEDIT, 3, "RW"), {platform::TVN_ENDLABELEDIT, 0, "PDATA"}}) {
    const std::string kept = std::string("1 ") + name;
    Reset();
    EXPECT_EQ(end(code, column), kept + " | A5 |") << "no edit is open";
    Type("PORT/PDATA", "4b");
    EXPECT_EQ(end(code, column), kept + " | 4B | 4B");
    Escape();
    Type("PORT/PDATA", "xyz");
    EXPECT_EQ(end(code, column), kept + " | 4B |");
    EXPECT_EQ(shown, column == 0 ? "" : "message: Invalid Hex Value\n");
    Escape();
  }
}

// Runs it with these steps of its user: the value, or "cancelled".
std::string RunDialog(FakeHost& host, platform::HeadlessDisplay& display, std::uint32_t bits,
                      std::vector<platform::DialogStep> steps) {
  display.Give(platform::DialogAnswer{std::move(steps)});
  CDlgEditMemory dialog(GetService<IQNumberFormat>(&host, IID_IQNumberFormat), 0, bits, "Edit R", &host,
                        nullptr);
  return dialog.DoModal() == static_cast<int>(platform::IDOK) ? std::to_string(dialog.GetValue())
                                                              : "cancelled";
}

TEST_F(PaneStage, TheEditDialogLimitsTheNewValueToItsWidth) {
  const struct {
    std::uint32_t bits;
    const char *typed, *limit;  // an empty limit: accepted
    const char* result = "cancelled";
  } kRows[] = {{0, "1", "0"},
               {33, "1FFFFFFFF", "", "8589934591"},
               {63, "8000000000000000", "7FFFFFFFFFFFFFFF"},
               {64, "FFFFFFFFFFFFFFFF", "", "18446744073709551615"}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.bits) + " bits, " + row.typed);
    shown.clear();
    const auto enter = [&](CDialog&) { user::TypeText(row.typed), user::PressKey(platform::VK_RETURN); };
    const auto cancel = [](CDialog&) { user::PressKey(platform::VK_ESCAPE); };
    const std::string limit = row.limit;
    std::vector<platform::DialogStep> steps = {enter};
    if (!limit.empty()) steps.push_back(cancel);
    EXPECT_EQ(RunDialog(host, display, row.bits, std::move(steps)), row.result);
    const std::string message =
        "message [exclamation]: The entered value is too big.\\nMust be less than or equal to " + limit +
        ".\n";
    EXPECT_EQ(shown, "dialog: Edit R\n" + (limit.empty() ? "" : message));
  }
}

TEST_F(PaneStage, TheEditDialogMayGoInItsOwnMessage) {
  const auto destroy = [this](CDialog& dialog) {
    meanwhile = [&dialog] { dialog.DestroyWindow(); };
    user::TypeText("x"), user::PressKey(platform::VK_RETURN);
  };
  EXPECT_EQ(RunDialog(host, display, 8, {destroy}), "cancelled");
  EXPECT_FALSE(meanwhile) << "there was a message";
}

TEST_F(PaneStage, ADeepSelectionIsWalkedWithoutRecursion) {
  std::string selection = "{OLD?";
  for (int i = 0; i < 20000; ++i) selection += "{A?";
  selection += std::string(20001, '}');
  OpenView(selection);
  Pane(0).SaveState(store, "K");
  std::string text;
  store.ReadString("IOSelection IOWnd0", "", text);
  EXPECT_TRUE(text == selection);
}

TEST_F(PaneStage, TheHostIsToldOfAPanesCommands) {
  host.Ui().NameWindow(dock->window->GetHandle(), "dock");
  OpenView();
  EXPECT_EQ(
      host.Asked("AddPopupMenu").front(),
      "AddPopupMenu window1 202 owner 1 PvwIO [32817 32826 32773 32819 32771 32774 32820 32821 32777 32778 "
      "32768 32769]");
  EXPECT_EQ(host.Asked("AddPaneToolbar").front(),
            "AddPaneToolbar dock 204 0 owner 1 PvwIO - - - - [32773 32771 32774]");
  EXPECT_THAT(host.Asked("AddAccelerators"), testing::IsEmpty()) << "no resource library is loaded";
  ClosePane(0), ClosePane(1);
  EXPECT_THAT(host.Ui().Live(), testing::IsEmpty());
  EXPECT_THAT(host.Ui().Owners(), testing::IsEmpty());
}

TEST_F(PaneStage, AHostWithoutServicesGetsItsPanesAllTheSame) {
  panes[0] = std::make_unique<CPvwIOInstanceCtrl>(&file, &data, 0, nullptr, nullptr, 0);
  panes[0]->SetFrame(&frame);
  ASSERT_TRUE(panes[0]->CreatePane(dock->window->GetHandle(), 0));
  for (const std::uint32_t command : {32817, 32777, 32778, 32768, 32769}) {
    EXPECT_TRUE(Pane(0).RouteCommand(command)) << command;
  }
  platform::CCmdUI customize(32778);
  EXPECT_TRUE(Pane(0).UpdateCommand(customize));
  EXPECT_FALSE(customize.IsEnabled());
}

TEST_F(PaneStage, TheSecondPaneFindsWhatTheFileLacksAndLoadsNothingAlone) {
  OpenView("{TIMER?{TCNT?OLD?}}");
  display.Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
    static_cast<platform::CComboBox&>(*dialog.GetDlgItem(13013)).PeerPicked(0);
    platform::user::TypeText("old");
    platform::user::PressOk(dialog);
  }}});
  EXPECT_TRUE(Pane(1).RouteCommand(32820));
  EXPECT_EQ(shown, "dialog: Find\n");
  EXPECT_EQ(Tree(1).GetSelectedItem(), Row(1, "TIMER/OLD"));
  ClosePane(0);
  EXPECT_TRUE(Pane(1).RouteCommand(32773));
  EXPECT_EQ(shown, "dialog: Find\n");
}

TEST(DropSource, ShowsWhatADropWouldDo) {
  struct CursorDisplay final : platform::HeadlessDisplay {
    CursorDisplay() : HeadlessDisplay(Unanswered::Fail) { platform::SetDisplay(this); }
    ~CursorDisplay() override { platform::SetDisplay(nullptr); }
    void SetDragCursor(const platform::PictureResource& cursor) override { cursors.push_back(cursor.id); }
    std::vector<std::uint32_t> cursors;
  } display;
  using platform::DragEffect;
  CCtrlDropSource copying(true);
  copying.Begin();
  for (const DragEffect effect : {DragEffect::None, DragEffect::Copy, DragEffect::Copy, DragEffect::None}) {
    copying.Feedback(effect);
  }
  CCtrlDropSource moving(false);
  moving.Feedback(DragEffect::Copy);
  EXPECT_THAT(display.cursors,
              testing::ElementsAre(IDC_DROP_NONE, IDC_DROP_COPY, IDC_DROP_NONE, IDC_DROP_MOVE))
      << "only when it differs";
}

}  // namespace
}  // namespace pvw::test
