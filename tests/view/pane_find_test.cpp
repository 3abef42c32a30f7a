// Find and Find Next in a pane.

#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

using platform::CDialog;

constexpr std::uint32_t kFind = 32820, kFindNext = 39512;
constexpr platform::UINT kColumn = 13013, kText = 13014, kWhole = 13015;

constexpr const char* kName = "Name";
constexpr const char* kAddress = "Address";

class FindTest : public PaneStage {
 protected:
  // What the user sees, and the path of the selected row.
  std::string Find(std::size_t pane, const std::string& column, const std::string& text, bool whole = false) {
    display.Give(platform::DialogAnswer{{
        [=](CDialog& dialog) {
          auto& box = static_cast<platform::CComboBox&>(*dialog.GetDlgItem(kColumn));
          EXPECT_EQ(box.GetText(), kAddress) << "it opens on the addresses";
          EXPECT_EQ(dialog.GetDlgItem(kText)->GetText(), "") << "and without the last text";
          EXPECT_EQ(platform::GetFocus(), dialog.GetDlgItem(kText)->GetHandle());
          box.PeerPicked(column == kName ? 0 : 1);
          platform::user::TypeText(text);
          static_cast<platform::CCheckBox&>(*dialog.GetDlgItem(kWhole)).SetCheck(whole);
        },
        &platform::user::PressOk,
    }});
    return Run(pane, kFind);
  }
  std::string Next(std::size_t pane) { return Run(pane, kFindNext); }
  std::string Run(std::size_t pane, std::uint32_t command) {
    shown.clear();
    EXPECT_TRUE(Pane(pane).RouteCommand(command));
    if (shown.starts_with("dialog: Find\n")) shown.erase(0, 13);
    std::string path;
    for (HTREEITEM row = Tree(pane).GetSelectedItem(); row != 0; row = Tree(pane).GetParentItem(row)) {
      path = Tree(pane).GetItemText(row, 0) + (path.empty() ? "" : "/") + path;
    }
    return shown + path;
  }
};

TEST_F(FindTest, FindNextWalksFromHitToHitDownToTheLast) {
  OpenView();
  host.ClearTranscript();
  EXPECT_EQ(Find(0, kName, "T"), "PORT");
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n") << "a hit on a module opens nothing";
  EXPECT_THAT(host.Asked("Read"), testing::IsEmpty()) << "rows are made without the target";
  EXPECT_EQ(Next(0), "PORT/PDATA");
  EXPECT_TRUE(Record("PORT").IsExpanded());
  EXPECT_THAT(host.Asked("Read"), testing::Not(testing::IsEmpty()));
  EXPECT_EQ(platform::GetFocus(), Pane(0).GetTreeWindow());
  EXPECT_EQ(Next(0), "PORT/PDATA/TOP");
  EXPECT_TRUE(Tree(0).IsExpanded(Row(0, "PORT/PDATA")));
  EXPECT_EQ(Next(0), "TIMER");
  EXPECT_EQ(Next(0), "TIMER/TCNT");
  EXPECT_EQ(State(0, kFindNext), "enabled");
  EXPECT_EQ(Next(0), "message: No More Register Name found\nTIMER/TCNT");
  EXPECT_EQ(State(0, kFindNext), "disabled");
  EXPECT_EQ(Find(0, kName, "null"), "PORT/null") << "a register may be called like a stand-in row";
}

TEST_F(FindTest, WhatIsComparedIsTheCellByCaseInsensitiveTextInTheColumnThatWasPicked) {
  OpenView();
  struct Row {
    const char* name;
    const char* column;
    const char* text;
    bool whole;
    const char* found;
  };
  const std::string no_name = "message: Register Name not found\n";
  const std::string no_address = "message: Register Address Not found\n";
  const Row rows[] = {
      {"part of a name in another case", kName, "dAt", false, "PORT/PDATA"},
      {"a whole name", kName, "tcnt", true, "TIMER/TCNT"},
      {"part of a name as a whole one", kName, "PD", true, nullptr},
      {"a field by name", kName, "low", true, "PORT/PDATA/LOW"},
      {"an address with its prefix", kAddress, "h'00ff0020", true, "TIMER/TCNT"},
      {"a whole address without it", kAddress, "00FF0020", true, nullptr},
      {"part of an address", kAddress, "0011", false, "PORT/null"},
      {"a name among the addresses", kAddress, "TCNT", false, nullptr},
      {"the empty cell of a field or a module", kAddress, " ", false, nullptr},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Tree(0).SelectItem(0);
    const std::string none = row.column == std::string(kName) ? no_name : no_address;
    EXPECT_EQ(Find(0, row.column, row.text, row.whole), row.found != nullptr ? row.found : none);
    EXPECT_EQ(State(0, kFindNext), row.found != nullptr ? "enabled" : "disabled");
  }
  EXPECT_EQ(Find(0, kAddress, "H'00FF0010", true), "PORT/PDATA");
  EXPECT_EQ(Next(0), "message: No More Register Address Found\nPORT/PDATA");
}

TEST_F(FindTest, TheSearchEndsWithTheDialogOrTheRowsThatItRanOver) {
  OpenView();
  ASSERT_EQ(Find(0, kName, "t"), "PORT");
  display.Give(platform::DialogAnswer{{
      &platform::user::PressOk,
      [](CDialog& dialog) {
        EXPECT_EQ(platform::GetFocus(), dialog.GetDlgItem(kText)->GetHandle());
        platform::user::PressCancel(dialog);
      },
  }});
  EXPECT_EQ(Run(0, kFind), "message: Please Enter Register Name or Address.\nPORT");
  EXPECT_EQ(State(0, kFindNext), "disabled");

  ASSERT_EQ(Find(0, kName, "t"), "PORT");
  Pane(0).LoadIOFile(frame.path, 0);
  EXPECT_EQ(Next(0), "message: No More Register Name found\nPORT");
}

TEST_F(FindTest, EachPaneSearchesItsOwnRows) {
  OpenView("{TIMER?{TCNT?OLD?}}");
  EXPECT_EQ(Find(1, kName, "pdata"), "message: Register Name not found\n");
  EXPECT_EQ(Find(1, kName, "t"), "TIMER");
  EXPECT_EQ(State(0, kFindNext), "disabled");
  EXPECT_EQ(Find(0, kName, "old"), "message: Register Name not found\n");
  EXPECT_EQ(Next(1), "TIMER/TCNT");
  EXPECT_EQ(Find(1, kName, "old"), "TIMER/OLD") << "one that the file lacks";
}

TEST_F(FindTest, ALockedViewStaysClosedButItsRowsAreFound) {
  OpenView();
  frame.locked = true;
  EXPECT_EQ(Find(0, kName, "low"), "PORT/PDATA/LOW");
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
  EXPECT_EQ(Next(0), "message: No More Register Name found\nPORT/PDATA/LOW") << "it was the last hit";
}

TEST_F(FindTest, AModuleWithAFaultIsLeftOutUntilItCountsAsOpen) {
  dir.Write("device.io",
            "[Modules]\nFileVersion=2\nModule1=BAD\nModule2=GOOD\n[BAD]\nreg0=B0\nreg1=GONE\n"
            "[B0]\nid=FIRST 0xFF0010 B A H\n[GOOD]\nreg0=G0\n[G0]\nid=LAST 0xFF0020 B A H\n");
  OpenView();
  const std::string fault = "message [stop]: Error in I/O file: register description 'GONE' not found.\n";
  EXPECT_EQ(Find(0, kName, "first"), fault + "message: Register Name not found\n");
  EXPECT_EQ(Rows(0), "[ ] 2 BAD\n[+] 0 GOOD\n");
  EXPECT_EQ(Find(0, kName, "last"), fault + "GOOD/LAST") << "the others are searched all the same";

  Pane(0).LoadIOFile(frame.path, 0);
  EXPECT_FALSE(Open(0, "BAD"));
  EXPECT_EQ(Find(0, kName, "first"), "BAD/FIRST");
  host.ClearTranscript();
  Stop();
  EXPECT_EQ(host.Asked("ReadDirect").size(), 1u) << "what was never parsed has no address to read";
}

}  // namespace
}  // namespace pvw::test
