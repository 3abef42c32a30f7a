// The records that a definition file of each version yields. What all versions do alike is told once for the
// three; tables follow for what one of them reads in its own way.

#include "model/io_rec_module1.h"
#include "model/io_rec_module2.h"
#include "model/io_rec_module3.h"
#include "model/io_rec_reg2.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using platform::E_FAIL;
using platform::S_OK;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

// PORT with PDATA, a byte, and PCTRL, a word at an odd address.
std::string Port(int version) {
  switch (version) {
    case 1:
      return Definition(1, "[port]\nPDATA=FF0000 B I\nPCTRL=FF0003 W\n");
    case 2:
      return Definition(2,
                        "[PORT]\nREG0=D\nreg1=C\n[D]\nid=PDATA 0xFF0000 B I H\n[C]\nid=PCTRL 0xFF0003 W\n");
    default:
      return Definition(3,
                        "[PORT]\naddr=FF0000\nreg0=D\nreg1=C\n[D]\nname=PDATA\nreladdr=0\n"
                        "[C]\nname=PCTRL\nreladdr=3\nsize=16\n");
  }
}

class EveryVersion : public RecordTree, public testing::TestWithParam<int> {
 protected:
  std::string Access() const { return GetParam() == 3 ? " | RW" : ""; }
};

INSTANTIATE_TEST_SUITE_P(FileVersions, EveryVersion, testing::Values(1, 2, 3));

TEST_P(EveryVersion, AnOpenedModuleShowsItsRegistersWithTheirValues) {
  EXPECT_EQ(Load(Port(GetParam())), S_OK);
  EXPECT_EQ(Rows(), "PORT\n");
  EXPECT_TRUE(Record("PORT").HasChildren()) << "nobody knows yet";
  EXPECT_THAT(host.Asked("ReadDirect"), IsEmpty());
  EXPECT_TRUE(Open("PORT"));
  EXPECT_EQ(RowsOf("PORT"),
            "PDATA | H'00FF0000 | 00" + Access() + "\nPCTRL | H'00FF0003 | 0304" + Access() + "\n");
  EXPECT_THAT(host.Asked("ReadDirect"),
              ElementsAre("ReadDirect 00FF0000-00FF0000 width 1", "ReadDirect 00FF0003-00FF0004 width 1"));
  EXPECT_FALSE(Record("PORT/PCTRL").HasChildren());
  EXPECT_FALSE(Record("PORT").IsEditable());
  EXPECT_TRUE(Record("PORT/PCTRL").IsEditable());
}

TEST_P(EveryVersion, TheFileMovesWithTheEffectiveBase) {
  Load(Port(GetParam()), 0x1FF0000);
  ASSERT_TRUE(Open("PORT", false));
  EXPECT_EQ(Record("PORT/PCTRL").GetAddressText(1), "H'01FF0004");
  EXPECT_EQ(Record("PORT/PCTRL").GetValueText(), "0000") << "without a target nothing is read";
  Record("PORT").Relocate(0x10);
  EXPECT_EQ(Record("PORT/PCTRL").GetAddressText(0), "H'01FEFFF3");
}

TEST_P(EveryVersion, TheHostSeesInWhichOrderRegistersAreMadeParsedAndRead) {
  Load(Port(GetParam()));
  EXPECT_THAT(host.Transcript(), ElementsAre("GetService IQNumberFormat"));
  host.ClearTranscript();
  Record("PORT").LoadChildren(&file, host.Debugger());
  std::string asked;
  for (const std::string& line : host.Transcript()) {
    if (line == "GetService IQNumberFormat") asked += 'N';
    if (line == "GetService IQAddressFormat") asked += 'A';
    if (line.starts_with("ReadDirect")) asked += 'R';
  }
  // Made with N, parsed with NA.
  EXPECT_EQ(asked, GetParam() == 1 ? "NNARNNAR" : "NNNARNAR");
}

TEST_P(EveryVersion, ARefreshReadsWhatAPaneHasOpenAndAFailedReadStopsNothing) {
  Load(Port(GetParam()));
  Open("PORT");
  Record("PORT").SetExpanded(true);   // the second pane
  Record("PORT").SetExpanded(false);  // and the first one closes it
  host.Poke(0xFF0000, {0x11, 0, 0, 0x22, 0x33});
  host.FailNext("ReadDirect");
  EXPECT_EQ(Refresh(), S_OK);
  EXPECT_EQ(Record("PORT/PDATA").GetValueText() + Record("PORT/PCTRL").GetValueText(), "002233");
  EXPECT_THAT(messages.Lines(), IsEmpty());
  Record("PORT").SetExpanded(false);
  host.ClearTranscript();
  EXPECT_EQ(Refresh(), S_OK);
  EXPECT_THAT(host.Transcript(), IsEmpty());
}

TEST_P(EveryVersion, AChosenRegisterThatTheFileLosesStaysAsMissingAndComesBack) {
  const std::string access = Access();
  data.ParseSelection("{port?{p c t r l?}}");
  Load(Port(GetParam()));
  EXPECT_EQ(Rows(), "PORT +\n");
  Open("PORT");
  const std::string rows = "PDATA | H'00FF0000 | 00" + access + "\n";
  EXPECT_EQ(RowsOf("PORT"), rows + "PCTRL | H'00FF0003 | 0304" + access + " +\n");

  std::string without = Port(GetParam());
  without.replace(without.find("PCTRL"), 5, "OTHER");
  Load(without);
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT"), rows + "OTHER | H'00FF0003 | 0304" + access + "\nPCTRL +!\n");
  // It is a child of the module like any other, but nothing of it is read or written.
  CIORec& missing = Record("PORT/PCTRL");
  EXPECT_EQ(missing.GetParent(), &Record("PORT"));
  host.ClearTranscript();
  EXPECT_EQ(missing.ReadValue(host.Debugger()), S_OK);
  EXPECT_EQ(missing.WriteValue(host.Debugger()), S_OK);
  EXPECT_FALSE(missing.SetValue(host.Debugger(), 1));
  EXPECT_FALSE(missing.EditValue(host.Debugger(), nullptr, &host));
  EXPECT_THAT(host.Transcript(), IsEmpty());

  Load(Port(GetParam()));
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT"), rows + "PCTRL | H'00FF0003 | 0304" + access + " +\n");
}

TEST_P(EveryVersion, AModuleWithoutASection) {
  Load(Definition(GetParam(), ""));
  EXPECT_EQ(Open("PORT"), GetParam() != 2);
  EXPECT_EQ(Rows(), "PORT\n");
  // Version 1 looks at the section again the next time.
  EXPECT_EQ(Record("PORT").HasChildren(), GetParam() == 1);
  if (GetParam() != 2) {
    EXPECT_THAT(messages.Lines(), IsEmpty());
  } else {
    EXPECT_THAT(messages.Lines(), ElementsAre("message [stop]: Error in I/O file: bit field description of "
                                              "register 'PORT' not found."));
  }
}

TEST_P(EveryVersion, AFileThatIsNotOpenOrNotThereHasNoModules) {
  EXPECT_EQ(data.LoadModules(&file), E_FAIL);
  file.Open(dir.Path("nowhere.io"), 0);
  EXPECT_EQ(data.LoadModules(&file), S_OK);
  EXPECT_EQ(data.GetModule(0), nullptr);
}

TEST_F(RecordTreeTest, AnyVersionButTwoAndThreeIsTheFirstAndTheListOfModulesEndsAtAGap) {
  for (const char* version :
       {"", "FileVersion=0\n", "FileVersion=4\n", "FileVersion=abc\n", "FileVersion=0x2 x\n"}) {
    Load(std::string("[Modules]\n") + version + "Module1=M\nModule2=M\nModule4=M\n");
    EXPECT_NE(dynamic_cast<CIORecModule1*>(data.GetModule(1)), nullptr) << version;
    EXPECT_EQ(data.GetModule(2), nullptr);
  }
  Load("[Modules]\nFileVersion=0x2\nModule1=M\n");
  EXPECT_NE(dynamic_cast<CIORecModule2*>(data.GetModule(0)), nullptr);
  Load("[Modules]\nFileVersion=03\nModule1=M\n");
  EXPECT_NE(dynamic_cast<CIORecModule3*>(data.GetModule(0)), nullptr);
}

struct EntryRow {
  const char* what;
  const char* value;
  const char* row;  // address and value of a target that answers with the low bytes of its addresses
};

TEST_F(RecordTreeTest, EntriesOfVersion1) {
  // With the file base FF0000 and the effective base 1FF0000.
  const EntryRow kRows[] = {
      {"relocatable", "FF0000 B I", "H'01FF0000 | 00"},
      {"absolute", "FF0012 W A", "H'00FF0012 | 1213"},
      {"from the file base", "100 L R", "H'00FF0100 | 00010203"},
      {"small letters and a prefix", "0xff0012 w a", "H'00FF0012 | 1213"},
      {"no flag", "FF0010 W", "H'01FF0010 | 1011"},
      {"no size", "FF0010", "H'01FF0010 | 10"},
      {"letters behind the number run on", "FF0010L A", "H'00FF0010 | 10111213"},
      {"a wrong size is a byte", "FF0010 X A", "H'00FF0010 | 10"},
      {"a wrong flag is relocatable", "FF0010 W X", "H'01FF0010 | 1011"},
      {"no address counts as 0", "size W A", "H'01000000 | 00"},
  };
  for (const EntryRow& row : kRows) {
    Load(Definition(1, std::string("[PORT]\nR=") + row.value + "\n"), 0x1FF0000);
    Open("PORT");
    EXPECT_EQ(RowsOf("PORT"), std::string("R | ") + row.row + "\n") << row.what;
  }
}

TEST_F(RecordTreeTest, ALongSectionOfVersion1IsReadWholeAndARepeatedKeyGivesItsFirstValueAgain) {
  std::string section = "[PORT]\n";
  for (int i = 0; i < 20000; ++i) section += "REGISTER" + std::to_string(i) + "=" + std::to_string(i) + "\n";
  Load(Definition(1, section + "register7=FFFF\n"));
  ASSERT_TRUE(Open("PORT", false));
  const CIORec::Records& registers = Record("PORT").GetChildren();
  ASSERT_EQ(registers.size(), 20001u);
  EXPECT_EQ(registers[19999]->GetAddressText(0), "H'00019999");
  EXPECT_EQ(registers[20000]->GetName() + registers[20000]->GetAddressText(0), "register7H'00000007");
}

constexpr const char* kBadAddress =
    "message: 'R' Register Address format is wrong.\\nThe Register Address format must be with prefix "
    "0x.Eg:0x0000FFFF.";
constexpr const char* kBadSize =
    "message: 'R' Register Size format is wrong.\\nThe Register Size format must be only B (Byte),W(Word) or "
    "L(Long Word).";
constexpr const char* kBadFlag =
    "message: 'R' Absolute format is wrong.\\nThe Absolute flag format must be I, A or R.\\n";
constexpr const char* kBadRadix =
    "message: 'R' Register output format is wrong.\\nThe Register output format value must be "
    "H(Hexadecimal),D(Decimal) or B(Binary)";

TEST_F(RecordTreeTest, TheLineOfAVersion2Register) {
  const struct {
    const char* what;
    const char* id;
    const char* row;
    std::vector<std::string> faults;
  } kRows[] = {
      {"decimal", "R 0x10 W A D", "R | H'00000010 | 00000", {}},
      {"binary, small letters", "R 0x10 b r b", "R | H'00FF0010 | 00000000", {}},
      {"the address alone", "R 0x10", "R | H'01000010 | 00", {}},
      {"no prefix", "R FF0000 B A", "R | H'00FF0000 | 00", {kBadAddress}},
      {"a prefix with nothing behind it", "R 0x B A", "R | H'01000000 | 00", {kBadAddress}},
      {"a prefix in capitals", "R 0X10 B A", "R | H'00000010 | 00", {kBadAddress}},
      {"a minus at the start belongs to the name", "-0x5 0x10 B A", "-0x5 | H'00000010 | 00", {}},
      {"a prefix of another field", "R 10 B A H 0x", "R | H'00000010 | 00", {}},
      {"a negative address", "R -0x10 B A", "R | H'FFFFFFF0 | 00", {kBadAddress}},
      {"a minus in the bit section's name", "R 0x10 B A H P-0x", "R | H'00000010 | 00", {kBadAddress}},
      {"nothing to read as an address", "R z B A 0x", "R | H'01000000 | 00", {kBadAddress}},
      {"a wrong size", "R 0x10 X A", "R | H'00000010 | 00", {kBadSize}},
      {"a wrong flag", "R 0x10 W X", "R | H'01000010 | 0000", {kBadFlag}},
      {"a wrong radix", "R 0x10 B A X", "R | H'00000010 | 00", {kBadRadix}},
      {"a word for the radix", "R 0x10 B A HEX BITS", "R | H'00000010 | 00", {kBadRadix}},
      {"all of them", "R 10 X Y Z", "R | H'01000010 | 00", {kBadAddress, kBadSize, kBadFlag, kBadRadix}},
  };
  for (const auto& row : kRows) {
    Load(Definition(2, std::string("[PORT]\nreg0=S\n[S]\nid=") + row.id + "\n"), 0x1FF0000);
    messages.Clear();
    EXPECT_EQ(Record("PORT").LoadChildren(&file, nullptr), row.faults.empty()) << row.what;
    EXPECT_EQ(RowsOf("PORT"), std::string(row.row) + "\n") << row.what;
    EXPECT_THAT(messages.Lines(), ElementsAreArray(row.faults)) << row.what;
    CIORec& reg = *Record("PORT").GetChildren()[0];
    EXPECT_TRUE(reg.HasChildren()) << "nobody knows yet";
    reg.LoadChildren(&file, nullptr);
    EXPECT_FALSE(reg.HasChildren());
  }
}

TEST_F(RecordTreeTest, AFaultStopsAVersion2ModuleAndASecondAttemptBeginsAnew) {
  const std::string text =
      Definition(2, "[PORT]\nreg0=A\nreg1=B%1\nreg2=C\n[A]\nid=AA 0x1 B A\n[C]\nid=CC 0x3 B A\n");
  const std::string fault = "message [stop]: Error in I/O file: register description 'B%1' not found.";
  data.ParseSelection("{PORT?{AA?GONE?}}");
  Load(text);
  EXPECT_FALSE(Open("PORT"));
  const std::string rows = "AA | H'00000001 | 01 +\n | H'00000000 | 00\n | H'00000000 | 00\n";
  EXPECT_EQ(RowsOf("PORT"), rows + "GONE +!\n");
  // Open all the same, it takes part in the refresh; what has no description doesn't.
  host.ClearTranscript();
  Refresh();
  EXPECT_THAT(host.Asked("ReadDirect"), ElementsAre("ReadDirect 00000001-00000001 width 1"));
  EXPECT_TRUE(Record("PORT").LoadChildren(&file, nullptr)) << "counts as loaded while it is open";
  CIORec& unread = *Record("PORT").GetChildren()[2];
  EXPECT_FALSE(unread.SetValue(host.Debugger(), 1));
  EXPECT_THAT(host.Asked("WriteBlock"), IsEmpty());

  Record("PORT").SetExpanded(false);
  EXPECT_FALSE(Open("PORT"));
  EXPECT_EQ(RowsOf("PORT"), rows + "GONE +!\n");
  Record("PORT").SetExpanded(false);
  dir.Write("device.io", text + "[B%1]\nid=BB 0x2 B A\n");
  EXPECT_TRUE(Open("PORT"));
  EXPECT_EQ(RowsOf("PORT"), "AA | H'00000001 | 01 +\nBB | H'00000002 | 02\nCC | H'00000003 | 03\nGONE +!\n");
  EXPECT_THAT(messages.Lines(), ElementsAre(fault, fault));
}

TEST_F(RecordTreeTest, TheBitSectionOfVersion2) {
  const std::string missing =
      "message [stop]: Error in I/O file: bit field description of register 'R' not found.";
  const struct {
    const char* what;
    std::string section;
    const char* rows;  // with the register's value 5A
    std::vector<std::string> messages;
  } kRows[] = {
      {"in order, length 1 if none is given", "bit4=HIGH 4\nBIT1=ONE\n", "HIGH |  | 5\nONE |  | 1\n", {}},
      {"other keys are skipped", "x=1\nbi=N 1\nBit0=LOW 4 rest\n", "LOW |  | A\n", {}},
      {"a length that is no number is 1", "bit1=ONE x\n", "ONE |  | 1\n", {}},
      {"a key whose number has text behind it", "bit1x=ONE\n", "ONE |  | 1\n", {}},
      {"a key without a number ends it", "bit0=LOW 4\nbitfield=N\nbit4=HIGH 4\n", "LOW |  | A\n", {}},
      {"so does one without a name", "bit0=LOW 4\nbit1=\nbit4=HIGH 4\n", "LOW |  | A\n", {}},
      {"PROTECTION is kept apart", "bit0=LOW 4\nProtection=W\xC3\x84RE 5a\n", "LOW |  | A\n", {}},
      {"PROTECTION without a number ends it too", "protection=RO z\nbit4=HIGH 4\n", "", {}},
      {"a repeated key gives its first value again",
       "bit0=LOW 4\nbit0=HIGH 2\n",
       "LOW |  | A\nLOW |  | A\n",
       {}},
      {"no entry at all", "", "", {missing}},
      {"entries, but none of a field", "x=1\n", "", {}},
  };
  for (const auto& row : kRows) {
    Load(Definition(2, "[PORT]\nreg0=S\n[S]\nid=R 0x5A B A H BITS\n[BITS]\n" + row.section));
    messages.Clear();
    EXPECT_TRUE(Open("PORT"));
    EXPECT_EQ(RowsOf("PORT/R"), row.rows) << row.what;
    const bool kept = row.section.find("5a") != std::string::npos;
    EXPECT_EQ(Record("PORT/R").GetRegister()->GetProtectionTag(), kept ? "W\xC3\x84R" : "") << row.what;
    EXPECT_EQ(Record("PORT/R").GetRegister()->GetProtectionValue(), kept ? 0x5Au : 0u) << row.what;
    EXPECT_THAT(messages.Lines(), ElementsAreArray(row.messages)) << row.what;
  }
}

TEST_F(RecordTreeTest, TheKeysOfABitSectionEndAfter8190BytesOfNames) {
  std::string section;
  for (int i = 1000; i < 2100; ++i) section += "bit" + std::to_string(i) + "=F" + std::to_string(i) + "\n";
  Load(Definition(2, "[PORT]\nreg0=S\n[S]\nid=R 0x0 B A H BITS\n[BITS]\n" + section + "bit202=CUT\n"));
  Open("PORT");
  // 1,023 keys with their zero bytes take 8,184; of the next one, bit2023, six bytes are left.
  const CIORec::Records& fields = Record("PORT/R").GetChildren();
  ASSERT_EQ(fields.size(), 1024u);
  EXPECT_EQ(fields[1022]->GetName() + fields[1023]->GetName(), "F2022CUT");
}

TEST_F(RecordTreeTest, TheSectionOfAVersion3Register) {
  const EntryRow kRows[] = {
      {"no more than an address", "reladdr=10", "H'02000010 | 10 | RW"},
      {"every key", "name=R\nreladdr=0x10\nsize=16\nradix=d\nread=1\nwrite=0", "H'02000010 | 04113 | R"},
      {"write only", "name=R\nreladdr=10\nread=0", "H'02000010 | 10 | W"},
      {"neither", "name=R\nreladdr=10\nread=0\nwrite=0", "H'02000010 | 10"},
      {"a size in octal, with text behind it", "name=R\nreladdr=10\nsize=040 bits",
       "H'02000010 | 10111213 | RW"},
      {"a size that there isn't", "name=R\nreladdr=10\nsize=24", "H'02000010 | 10 | RW"},
      {"no address", "name=R", "H'02000000 | 00 | RW"},
      {"a radix of two letters", "name=R\nreladdr=10\nradix=DH", "H'02000010 | 10 | RW"},
      {"flags that aren't", "name=R\nreladdr=10\nread=00\nwrite=x", "H'02000010 | 10 | RW"},
  };
  for (const EntryRow& row : kRows) {
    // Effective base and module address are both added, whatever `abs` says.
    Load(Definition(3, std::string("[PORT]\naddr=1000000\nabs=1\nreg0=S\n[S]\n") + row.value + "\n"),
         0x1FF0000);
    Open("PORT");
    const std::string name = std::string(row.value).starts_with("name") ? "R" : "";
    EXPECT_EQ(RowsOf("PORT"), name + " | " + row.row + "\n") << row.what;
  }
  EXPECT_THAT(messages.Lines(), IsEmpty());
}

TEST_F(RecordTreeTest, TheBitFieldsOfVersion3) {
  Load(
      Definition(3,
                 "[PORT]\nreg0=S\n[S]\nname=R\nreladdr=5A\nwrite=0\n"
                 "bitfield0=A\nbitfield1=B\nbitfield2=C\nbitfield3=D\nbitfield5=A\n"
                 "[A]\nname=HIGH\nbit=4\nlen=0x4\n[B]\nname=NOBIT\nlen=2\n[C]\nname=BADLEN\nbit=1\nlen=x\n"));
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT/R"), "HIGH |  | 5 | R\nNOBIT |  | 2 | R\nBADLEN |  | 1 | R\n |  | 0 | R\n");
  Record("PORT/R").LoadChildren(&file, nullptr);
  EXPECT_EQ(Record("PORT/R").GetChildren().size(), 4u) << "once";
}

TEST_F(RecordTreeTest, SectionsThatNameEachOtherAThousandfoldStopAtALimit) {
  const std::size_t before = CIORec::SetMaxBytes(std::size_t{1} << 20);
  for (int version : {1, 2, 3}) {
    std::string modules = "[Modules]\nFileVersion=" + std::to_string(version) + "\n";
    std::string section = "[M]\nid=R 0x1 B A H M\nreladdr=1\nname=R\n";
    for (int i = 0; i < 1000; ++i) {
      const std::string n = std::to_string(i);
      modules += "Module" + std::to_string(i + 1) + "=M\n";
      section += "reg" + n + "=M\nbitfield" + n + "=M\nbit" + n + "=F\n";
    }
    Load(modules + section);
    std::size_t records = 0;
    for (const auto& module : data.GetModules()) {
      EXPECT_TRUE(Open(*module, false));
      for (const auto& reg : module->GetChildren()) records += 1 + reg->GetChildren().size();
    }
    EXPECT_GT(records, 1000u) << version;
    EXPECT_LT(records, 4000u) << version;
  }
  CIORec::SetMaxBytes(before);
  data.DeleteModules();
  EXPECT_TRUE(CIORec::HasRoom());
}

}  // namespace
}  // namespace pvw::test
