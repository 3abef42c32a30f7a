// Values that are accepted in the edit dialog while something else happens.

#include "model/edit_hook.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

// What the dialog's user does.
struct Dialog {
  bool accept = true;
  std::function<void()> meanwhile = [] {};
};
Dialog* g_dialog = nullptr;

bool RunDialog(IQNumberFormat*, IQComponentHost*, std::uint64_t& value, std::uint32_t, const std::string&) {
  g_dialog->meanwhile();
  value = 1;
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
  bool Edit(const std::string& path) { return Record(path).EditValue(host.Debugger(), nullptr, &host); }

  Dialog dialog;
};

TEST_F(EditValueTest, NothingIsWrittenWhenTheDialogIsCancelledOrThereIsNoneOrTheRecordLeavesTheTreeUnderIt) {
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
  EXPECT_THAT(host.Asked("WriteBlock"), testing::IsEmpty());
}

}  // namespace
}  // namespace pvw::test
