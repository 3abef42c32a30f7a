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
  g_dialog->opened = caption + ", " + std::to_string(value) + " of " + std::to_string(bits) + " bits";
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
  EXPECT_THAT(messages.Lines(), ElementsAre("message [exclamation]: The entered value is too big.\\n"
                                            "Must be less than or equal to FF."));
  EXPECT_FALSE(Set("PORT/LONG", 0x100000000));
  // The target is read before: what it has by now counts, not what was shown.
  host.Poke(0x10, {0x77});
  EXPECT_FALSE(Set("PORT/R%s", 0x77));
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_TRUE(Set("PORT/R%s", 0xFF));
  EXPECT_TRUE(Set("PORT/LONG", 0xFFFFFFFF));
  EXPECT_THAT(Writes(), ElementsAre("WriteBlock 00000010-00000010 flag 0: FF",
                                    "WriteBlock 00000020-00000023 flag 0: FF FF FF FF"));
}

TEST_F(EditValueTest, TheDialogOpensOnTheTargetsValueAndItsAnswerIsWrittenEvenUnchanged) {
  host.Poke(0x10, {0xA5});
  dialog.answer = 0xA5;
  EXPECT_TRUE(Edit("PORT/R%s"));
  EXPECT_EQ(dialog.opened, "Edit R%s at H'00000010, 165 of 8 bits");
  dialog.answer = 2;
  EXPECT_TRUE(Edit("PORT/R%s/MODE"));
  EXPECT_EQ(dialog.opened, "Edit MODE at H'00000010, 2 of 3 bits");
  EXPECT_EQ(Writes(), std::vector<std::string>(2, "WriteBlock 00000010-00000010 flag 0: A5"));
  dialog.answer = 0x44;
  host.FailNext("WriteBlock");
  EXPECT_FALSE(Edit("PORT/R%s"));
  EXPECT_EQ(Record("PORT/R%s").GetValueText(), "068") << "until the next refresh";
}

TEST_F(EditValueTest, NothingIsWrittenWhenTheDialogIsCancelledOrThereIsNoneOrTheRecordLeavesTheTreeUnderIt) {
  dialog.answer = 1;
  for (const char* path : {"PORT/R%s", "PORT/LONG", "PORT/R%s/MODE"}) {
    dialog.accept = false;
    dialog.meanwhile = [] {};
    EXPECT_FALSE(Edit(path)) << path;
    dialog.accept = true;
    dialog.meanwhile = [this] { Load(Definition(1, "")); };
    // This one lives on in the selection, the others are destroyed.
    Record("PORT").SetSelected(true);
    Record("PORT/R%s").SetSelected(true);
    EXPECT_FALSE(Edit(path)) << path;
    LoadPort();
  }
  SetEditValueHook(nullptr);
  EXPECT_FALSE(Edit("PORT/LONG"));
  EXPECT_THAT(Writes(), IsEmpty());
}

}  // namespace
}  // namespace pvw::test
