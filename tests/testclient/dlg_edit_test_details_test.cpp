// The dialog in which the user picks the registers that are compared.

#include "platform/gui/dialog.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/headless/user.h"
#include "tests/support/scopes.h"
#include "tests/testclient/client_stage.h"

namespace pvw {
namespace {

using platform::CDialog;
using platform::DialogAnswer;
using platform::DialogStep;
using platform::SECTreeCtrl;
namespace user = platform::user;

class EditTestDetails : public test::ClientStage {
 protected:
  EditTestDetails() {
    // By address PAIR and ONE are the same, and the order of names is another than that of addresses.
    dir.Write("device.io", "[Modules]\nModule1=M\n[M]\nTWO=20 W A\nPAIR=10 B A\nONE=10 L A\nZERO=0 B A\n");
    frame.write_time = platform::GetLastWriteTime(frame.path).value();
  }

  static SECTreeCtrl& List(CDialog& dialog) { return dynamic_cast<SECTreeCtrl&>(*dialog.GetDlgItem(13002)); }
  static std::string Setting(CDialog& dialog) { return dialog.GetDlgItem(13004)->GetText(); }
  // The names from the top, the checked ones with a star.
  static std::string Rows(CDialog& dialog) {
    const SECTreeCtrl& list = List(dialog);
    std::string rows;
    for (std::size_t i = 0; i < list.GetRowCount(); ++i) {
      rows += (i > 0 ? " " : "") + list.GetItemText(list.GetItemAtRow(i), 0) +
              (list.GetItemCheck(list.GetItemAtRow(i)) ? "*" : "");
    }
    return rows;
  }
  static platform::HTREEITEM Row(CDialog& dialog, const std::string& name) {
    SECTreeCtrl& list = List(dialog);
    platform::HTREEITEM row = list.GetRootItem();
    while (row != 0 && list.GetItemText(row, 0) != name) row = list.GetNextSiblingItem(row);
    return row;
  }
  static void Toggle(CDialog& dialog, const std::string& name) {
    SECTreeCtrl& list = List(dialog);
    user::Click(list, list.GetPartPoint(Row(dialog, name), platform::TVHT_ONITEMCHECK));
  }
  static void ClickHeader(CDialog& dialog, int column) {
    user::Click(List(dialog), {column * 100 + 50, List(dialog).GetHeaderHeight() / 2});
  }
  void InDialog(std::function<void(CDialog&)> act) {
    display.Give(DialogAnswer{{DialogStep(std::move(act))}});
    EXPECT_EQ(client->EditDetails(), 0);
    EXPECT_EQ(display.GetAnswerCount(), 0u);
  }
};

TEST_F(EditTestDetails, SortsByTheColumnThatIsClickedAndTurnsItRound) {
  Select({"PAIR"});
  InDialog([](CDialog& dialog) {
    const struct {
      int column;
      const char* rows;
    } kClicks[] = {
        {1, "TWO ONE PAIR* ZERO"}, {1, "ZERO ONE PAIR* TWO"}, {0, "ONE PAIR* TWO ZERO"},
        {0, "ZERO TWO PAIR* ONE"}, {0, "ONE PAIR* TWO ZERO"}, {1, "ZERO ONE PAIR* TWO"},
        {1, "TWO ONE PAIR* ZERO"}, {0, "ONE PAIR* TWO ZERO"}, {0, "ZERO TWO PAIR* ONE"},
        {1, "ZERO ONE PAIR* TWO"},
    };
    EXPECT_EQ(Rows(dialog), "ZERO ONE PAIR* TWO");
    List(dialog).SelectItem(Row(dialog, "TWO"));
    for (const auto& click : kClicks) {
      ClickHeader(dialog, click.column);
      EXPECT_EQ(Rows(dialog), click.rows);
      EXPECT_EQ(List(dialog).GetSelectedItem(), Row(dialog, "TWO"));
    }
    EXPECT_EQ(List(dialog).GetItemText(Row(dialog, "ONE"), 1), "H'00000010");
    user::PressCancel(dialog);
  });
}

TEST_F(EditTestDetails, OKReplacesTheRegistersInTheOrderOfTheRows) {
  Select({"GONE", "TWO"});
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(Setting(dialog), "TWO");
    Toggle(dialog, "TWO");
    EXPECT_EQ(Setting(dialog), "");
    Toggle(dialog, "ZERO");
    Toggle(dialog, "ONE");
    EXPECT_EQ(Setting(dialog), "ZERO, ONE");
    ClickHeader(dialog, 0);
    Toggle(dialog, "PAIR");
    EXPECT_EQ(Setting(dialog), "ONE, PAIR, ZERO");
    static_cast<platform::CCheckBox*>(dialog.GetDlgItem(13003))->Clicked();
    user::PressOk(dialog);
  });
  EXPECT_EQ(Captured(), "1.0&device&1&3&ONE H'00000010 4 10111213&PAIR H'00000010 1 10&ZERO H'00000000 1 0");

  InDialog([](CDialog& dialog) {
    EXPECT_EQ(Rows(dialog), "ZERO* ONE* PAIR* TWO");
    Toggle(dialog, "ONE");
    auto& box = static_cast<platform::CCheckBox&>(*dialog.GetDlgItem(13003));
    EXPECT_TRUE(box.GetCheck());
    box.Clicked();
    user::PressCancel(dialog);
  });
  EXPECT_THAT(Captured(), testing::StartsWith("1.0&device&1&3&ONE")) << "Cancel changes nothing";

  // Without a file there is nothing to pick, and OK picks nothing.
  frame.path = dir.Path("gone.io");
  display.Give(platform::CancelAnswer{});
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(Rows(dialog), "");
    user::PressOk(dialog);
  });
  EXPECT_EQ(Captured(), "1.0&gone&1&0");

  // By whole characters: one byte B1 stands before any character of two.
  const test::CodePage page(932);
  frame.path =
      dir.Write("page.io", "[Modules]\nModule1=M\n[M]\n\x82\xA0=1 B A\n\xB1=1 B A\n\x81\x40=1 B A\n");
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(Rows(dialog), "\xB1 \x81\x40 \x82\xA0");
    user::PressCancel(dialog);
  });
}

}  // namespace
}  // namespace pvw
