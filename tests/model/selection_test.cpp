// The selection on its way: from its text, onto the tree, and out of the tree again at a reload.

#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using testing::IsEmpty;

TEST_F(RecordTreeTest, ATextIsReadAsFarAsItGoes) {
  const struct {
    const char* what;
    const char* text;
    const char* rows;
  } kRows[] = {
      {"the first character isn't looked at", "xA?", "A +!\n"},
      {"an empty nested selection", "{A?{}B?{", "A +!\nB +!\n"},
      {"empty names", "{?{??}}", " +!\n +!\n +!\n"},
      {"a bracket inside a name", "{A{B?{C}D?}}", "A{B +!\n  C}D +!\n"},
      {"broken off inside", "{A?{B?{C?", "A +!\n  B +!\n    C +!\n"},
      {"too many brackets end the nesting", "{A?{B?}}}C?}", "A +!\n  B +!\n}}C +!\n"},
  };
  for (const auto& row : kRows) {
    data.ParseSelection(row.text);
    EXPECT_EQ(Rows(data.GetSelection()), row.rows) << row.what;
    data.DeleteSelection();
  }
}

TEST_F(RecordTreeTest, ASelectionGoesToTheFirstRecordOfANameAndRepeatsAreMergedBelowModules) {
  data.ParseSelection("{A?{X?X?R?{F?}}A?{Y?}X?{1?}X?{2?}}");
  Load("[Modules]\nModule1=A\nModule2=A\n[A]\nR=0\nr=1\n");
  EXPECT_EQ(Rows(), "A +\nA\nX +!\n  1 +!\nX +!\n  2 +!\n");
  Record("X").SetExpanded(true);
  host.ClearTranscript();
  Refresh();
  EXPECT_THAT(host.Transcript(), IsEmpty()) << "a missing module is never read";
  data.ApplyChildSelection(&Record("A"), {"nothing", "A"});  // looks below A before A has given anything up
  Open("A");
  EXPECT_EQ(Record("A").RemoveChild(3), nullptr) << "there is none";
  data.ApplyChildSelection(&Record("A/r"), {"r", "A"});
  EXPECT_EQ(RowsOf("A"), "R | H'00000000 | 00 +\nr | H'00000000 | 00\n  F +!\nX +!\n");
}

TEST_F(RecordTreeTest, BitFieldsAreSelectedBelowTheirRegister) {
  const std::string text = Definition(3,
                                      "[PORT]\nreg0=A\nreg1=B\n[A]\nname=A\nreladdr=FF\nbitfield0="
                                      "F\nbitfield1=G\n[B]\nname=B\nreladdr=1\nbitfield0=F\n"
                                      "[F]\nname=FIELD\nbit=0\n[G]\nname=GONE\nbit=1\n");
  data.ParseSelection("{PORT?{A?{FIELD?GONE?}B?}}");
  Load(text);
  Open("PORT");
  const std::string fields = "  FIELD |  | 1 | RW +\n";
  const std::string b = "B | H'00000001 | 01 | RW +\n  FIELD |  | 1 | RW\n";
  EXPECT_EQ(RowsOf("PORT"), "A | H'000000FF | FF | RW +\n" + fields + "  GONE |  | 1 | RW +\n" + b);
  // A field of the file that goes missing is no field of the register that takes it in.
  std::string without = text;
  without.replace(without.find("bitfield1"), 9, "ignored=1");
  Load(without);
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT"), "A | H'000000FF | FF | RW +\n" + fields + "  GONE +!\n" + b);
  CIORec& gone = Record("PORT/A/GONE");
  EXPECT_EQ(gone.GetRegister(), Record("PORT/A").GetRegister());
  EXPECT_FALSE(gone.SetValue(host.Debugger(), 0));
}

TEST_F(RecordTreeTest, AReloadKeepsWhatIsSelectedFromTheTopDown) {
  const std::string text = "[Modules]\nModule1=A\nModule2=B\nModule3=C\n[A]\nR=0\nS=1\n[B]\nT=2\n[C]\nU=3\n";
  data.ParseSelection("{A?{R?}C?{U?V?}}");
  Load(text);
  Open("A");
  Open("B");
  Record("A/R").SetSelected(false);
  Record("A/S").SetSelected(true);
  Record("B/T").SetSelected(true);  // below a module that isn't
  data.CollectSelection();
  // C was never opened, so the old selection stands for it.
  EXPECT_EQ(Rows(data.GetSelection()), "A +\n  S | H'00000001 | 01 +\nC +!\n  U +!\n  V +!\n");
  EXPECT_FALSE(data.GetSelection()[0]->IsExpanded()) << "no pane has it open any more";
  file.Close();
  Load("[Modules]\nModule1=C\nModule2=D\n[C]\nU=3\n");
  Open("C");
  EXPECT_EQ(Rows(), "C +\n  U | H'00000003 | 03 +\n  V +!\nD\nA +!\n  S +!\n");
  Load(text);
  Open("A");
  EXPECT_EQ(RowsOf("A"), "R | H'00000000 | 00\nS | H'00000001 | 01 +\n");
  for (const auto& module : data.GetModules())
    EXPECT_EQ(module->SetSelected(false), module->GetName() != "B");
  Load(text);
  EXPECT_EQ(Rows(), "A\nB\nC\n");
  EXPECT_THAT(data.GetSelection(), IsEmpty());
  // Modules of one name take the selections of that name in their order.
  data.DeleteModules();
  file.Close();
  data.ParseSelection("{A?{1?}A?{2?}}");
  Load("[Modules]\nModule1=a\nModule2=A\n");
  for (const auto& module : data.GetModules()) module->SetSelected(true);
  data.CollectSelection();
  EXPECT_EQ(Rows(data.GetSelection()), "A +!\n  1 +!\nA +!\n  2 +!\n");
}

TEST_F(RecordTreeTest, NestingOfAnyDepthIsReadMarkedMergedPrunedAndDestroyed) {
  constexpr int kDepth = 200000;
  std::string text;
  for (int i = 0; i < kDepth; ++i) text += "{A?";
  data.ParseSelection(text + std::string(kDepth, '}') + "B?");
  Load(Definition(1, ""));
  CIORec* deepest = data.GetModule(1);
  int depth = 1;
  for (; !deepest->GetChildren().empty(); ++depth) {
    deepest = deepest->GetChildren()[0].get();
    deepest->UpdateEnabled();
  }
  EXPECT_EQ(depth, kDepth);
  Load("[Modules]\nModule1=A\n[A]\nR=0\n");
  Open("A");
  deepest->UpdateEnabled();
  EXPECT_TRUE(deepest->IsEnabled());
  deepest->SetSelected(false);
  Load(Definition(1, ""));
}

TEST_F(RecordTreeTest, TwentyThousandModulesMeetAsManySelectedOnes) {
  constexpr int kModules = 20000;
  std::string definition = "[Modules]\n";
  std::string sections;
  std::string selection = "{";
  for (int i = 1; i <= kModules; ++i) {
    const std::string name = "MODULE" + std::to_string(i);
    definition += "Module" + std::to_string(i) + "=" + name + "\n";
    sections += "[" + name + "]\nR=1\n";
    selection += "Module " + std::to_string(i + kModules / 2) + "?{r?S?}";
  }
  data.ParseSelection(selection + "}");
  Load(definition + sections);
  EXPECT_EQ(data.GetModuleCount(), std::size_t{kModules} * 3 / 2);
  for (int i = 0; i < kModules; ++i) Open(*data.GetModule(static_cast<std::size_t>(i)), false);
  EXPECT_EQ(RowsOf("MODULE20000"), "R | H'00000001 | 00 +\nS +!\n");
  data.CollectSelection();
  EXPECT_EQ(data.GetSelection().size(), std::size_t{kModules});
}

}  // namespace
}  // namespace pvw::test
