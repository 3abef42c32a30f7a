// Values on their way to the target: typed into a cell, and accepted in the edit dialog.

#include "model/edit_hook.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The dialog: what it was opened with, and what its user does.
struct Dialog {
  std::string opened;
  std::uint64_t answer = 0;
  bool accept = true;
  std::function<void()> meanwhile = [] {};
};
Dialog* g_dialog = nullptr;

bool RunDialog(IQNumberFormat*, IQComponentHost*, std::uint64_t& value, std::uint32_t bits,
               const std::string& caption) {
  std::ostringstream opened;
  opened << caption << ", " << std::hex << value << " of " << std::dec << bits << " bits";
  g_dialog->opened = opened.str();
  g_dialog->meanwhile();
  value = g_dialog->answer;
  return g_dialog->accept;
}

class EditValueTest : public RecordTreeTest {
 protected:
  EditValueTest() {
    g_dialog = &dialog;
    SetEditValueHook(RunDialog);
    LoadPort();
  }
  ~EditValueTest() { SetEditValueHook(nullptr); }

  void LoadPort() {
    Load(Definition(2,
                    "[PORT]\nreg0=B\nreg1=L\n[B]\nid=R%s 0x10 B A D BITS\n[L]\nid=LONG 0x20 L A\n"
                    "[BITS]\nbit1=MODE 3\n"));
    Open("PORT");
  }
  bool Set(const std::string& path, std::uint64_t value) {
    return Record(path).SetValue(host.Debugger(), value);
  }
  bool Edit(const std::string& path) { return Record(path).EditValue(host.Debugger(), nullptr, &host); }
  std::vector<std::string> Writes() const { return host.Asked("WriteBlock"); }

  Dialog dialog;
};

TEST_F(EditValueTest, ARegisterTakesWhatFitsAndDiffersFromTheTarget) {
  EXPECT_FALSE(Set("PORT/R%s", 0x100));
  EXPECT_FALSE(Set("PORT/LONG", 0x100000000));
  const std::string too_big =
      "message [exclamation]: The entered value is too big.\\nMust be less than or equal to ";
  EXPECT_THAT(messages.Lines(), ElementsAre(too_big + "FF.", too_big + "FFFFFFFF."));
  // The target is read before: what it has by now counts, not what was shown.
  host.Poke(0x10, {0x77});
  EXPECT_FALSE(Set("PORT/R%s", 0x77));
  EXPECT_FALSE(Set("PORT", 1));
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_TRUE(Set("PORT/R%s", 0xFF));
  EXPECT_TRUE(Set("PORT/LONG", 0xFFFFFFFF));
  EXPECT_THAT(Writes(), ElementsAre("WriteBlock 00000010-00000010 flag 0: FF",
                                    "WriteBlock 00000020-00000023 flag 0: FF FF FF FF"));
}

TEST_F(EditValueTest, AFailedWriteKeepsTheValueUntilTheNextRefresh) {
  host.FailAll("WriteBlock");
  dialog.answer = 0x44;
  EXPECT_FALSE(Set("PORT/R%s", 0x33));
  EXPECT_EQ(Record("PORT/R%s").GetValueText(), "051");
  EXPECT_FALSE(Edit("PORT/R%s"));
  EXPECT_EQ(Record("PORT/R%s").GetValueText(), "068");
  EXPECT_EQ(messages.Lines().size(), 2u);
  Refresh();
  EXPECT_EQ(Record("PORT/R%s").GetValueText(), "016");
}

TEST_F(EditValueTest, TheDialogOpensOnTheTargetsValueAndItsAnswerIsWrittenEvenUnchanged) {
  host.Poke(0x10, {0xA5});
  dialog.answer = 0xA5;
  EXPECT_TRUE(Edit("PORT/R%s"));
  EXPECT_EQ(dialog.opened, "Edit R%s at H'00000010, a5 of 8 bits");
  dialog.answer = 2;
  EXPECT_TRUE(Edit("PORT/R%s/MODE"));
  EXPECT_EQ(dialog.opened, "Edit MODE at H'00000010, 2 of 3 bits");
  EXPECT_EQ(Writes(), std::vector<std::string>(2, "WriteBlock 00000010-00000010 flag 0: A5"));
}

TEST_F(EditValueTest, NothingIsWrittenWhenTheDialogIsCancelledOrThereIsNone) {
  dialog.accept = false;
  dialog.answer = 1;
  EXPECT_FALSE(Edit("PORT/R%s"));
  EXPECT_FALSE(Edit("PORT/R%s/MODE"));
  SetEditValueHook(nullptr);
  EXPECT_FALSE(Edit("PORT/LONG"));
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(EditValueTest, ARecordThatLeavesTheTreeUnderItsDialogIsNotWritten) {
  dialog.meanwhile = [this] { Load(Definition(1, "")); };
  for (const char* path : {"PORT/R%s", "PORT/LONG", "PORT/R%s/MODE"}) {
    // This one lives on in the selection, the others are destroyed.
    Record("PORT").SetSelected(true);
    Record("PORT/R%s").SetSelected(true);
    EXPECT_FALSE(Edit(path)) << path;
    LoadPort();
  }
  EXPECT_THAT(Writes(), IsEmpty());
}

}  // namespace
}  // namespace pvw::test
