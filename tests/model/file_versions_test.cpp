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

TEST_P(EveryVersion, AnOpenedModuleMakesParsesReadsAndShowsItsRegisters) {
  EXPECT_EQ(Load(Port(GetParam())), S_OK);
  EXPECT_EQ(Rows(), "PORT\n");
  EXPECT_TRUE(Record("PORT").HasChildren()) << "nobody knows yet";
  EXPECT_THAT(host.Transcript(), ElementsAre("GetService IQNumberFormat"));
  host.ClearTranscript();
  EXPECT_TRUE(Open("PORT"));
  std::string asked;
  for (const std::string& line : host.Transcript()) {
    if (line == "GetService IQNumberFormat") asked += 'N';
    if (line == "GetService IQAddressFormat") asked += 'A';
    if (line.starts_with("ReadDirect")) asked += 'R';
  }
  // Made with N, parsed with NA.
  EXPECT_EQ(asked, GetParam() == 1 ? "NNARNNAR" : "NNNARNAR");
  EXPECT_THAT(host.Asked("ReadDirect"),
              ElementsAre("ReadDirect 00FF0000-00FF0000 width 1", "ReadDirect 00FF0003-00FF0004 width 1"));
  EXPECT_EQ(RowsOf("PORT"),
            "PDATA | H'00FF0000 | 00" + Access() + "\nPCTRL | H'00FF0003 | 0304" + Access() + "\n");
  EXPECT_FALSE(Record("PORT/PCTRL").HasChildren() || Record("PORT").IsEditable());
  EXPECT_TRUE(Record("PORT/PCTRL").IsEditable());
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
  Refresh();
  EXPECT_THAT(host.Transcript(), IsEmpty());
  Record("PORT").Relocate(0x10);
  EXPECT_EQ(Record("PORT/PCTRL").GetAddressText(1), "H'00FEFFF4");
}

TEST_P(EveryVersion, AChosenRegisterThatTheFileLosesStaysAsMissingAndComesBack) {
  const std::string rows = "PDATA | H'00FF0000 | 00" + Access() + "\n";
  const std::string word = " | H'00FF0003 | 0304" + Access();
  data.ParseSelection("{port?{p c t r l?}}");
  Load(Port(GetParam()));
  EXPECT_EQ(Rows(), "PORT +\n");
  Open("PORT");

  std::string without = Port(GetParam());
  without.replace(without.find("PCTRL"), 5, "OTHER");
  Load(without);
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT"), rows + "OTHER" + word + "\nPCTRL +!\n");
  // It is a child of the module like any other, but nothing of it is read or written.
  CIORec& missing = Record("PORT/PCTRL");
  host.ClearTranscript();
  EXPECT_EQ(missing.ReadValue(host.Debugger()), S_OK);
  EXPECT_EQ(missing.WriteValue(host.Debugger()), S_OK);
  EXPECT_FALSE(missing.SetValue(host.Debugger(), 1));
  EXPECT_FALSE(missing.EditValue(host.Debugger(), nullptr, &host));
  EXPECT_THAT(host.Transcript(), IsEmpty());

  Load(Port(GetParam()));
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT"), rows + "PCTRL" + word + " +\n");
}

TEST_P(EveryVersion, AModuleWithoutASection) {
  const bool fault = GetParam() == 2;
  Load(Definition(GetParam(), ""));
  EXPECT_EQ(Open("PORT"), !fault);
  EXPECT_EQ(Rows(), "PORT\n");
  EXPECT_EQ(Record("PORT").HasChildren(), GetParam() == 1) << "looks at the section again the next time";
  const std::string text =
      "message [stop]: Error in I/O file: bit field description of register 'PORT' not found.";
  EXPECT_THAT(messages.Lines(), ElementsAreArray(std::vector<std::string>(fault ? 1 : 0, text)));
}

TEST_F(RecordTreeTest, TheVersionIsTheFirstButForTwoAndThreeAndTheListOfModulesEndsAtAGap) {
  EXPECT_EQ(data.LoadModules(&file), E_FAIL) << "no open file";
  file.Open(dir.Path("nowhere.io"), 0);
  EXPECT_EQ(data.LoadModules(&file), S_OK);
  EXPECT_EQ(data.GetModuleCount(), 0u);
  const auto load = [&](const std::string& version) {
    Load("[Modules]\n" + version + "\nModule1=M\nModule2=M\nModule4=M\n");
    EXPECT_EQ(data.GetModuleCount(), 2u);
    return data.GetModule(1);
  };
  for (const char* version : {"", "FileVersion=0", "FileVersion=4", "FileVersion=abc", "FileVersion=0x2 x"}) {
    EXPECT_NE(dynamic_cast<CIORecModule1*>(load(version)), nullptr) << version;
  }
  EXPECT_NE(dynamic_cast<CIORecModule2*>(load("FileVersion=0x2")), nullptr);
  EXPECT_NE(dynamic_cast<CIORecModule3*>(load("FileVersion=03")), nullptr);
}

TEST_F(RecordTreeTest, RegistersOfVersions1And3) {
  // With the file base FF0000 and the effective base 1FF0000. The target answers with the low bytes of its
  // addresses.
  const struct {
    const char* what;
    int version;
    const char* value;
    const char* rows;
  } kRows[] = {
      {"relocatable", 1, "FF0000 B I", "R | H'01FF0000 | 00\n"},
      {"absolute, parted by tabs", 1, "FF0012\tW\tA", "R | H'00FF0012 | 1213\n"},
      {"from the file base", 1, "100 L R", "R | H'00FF0100 | 00010203\n"},
      {"letters need no blank between", 1, "FF0010LA", "R | H'00FF0010 | 10111213\n"},
      {"a wrong size is a byte", 1, "FF0010 X A", "R | H'00FF0010 | 10\n"},
      {"no address counts as 0, and nothing behind it is taken", 1, "size W A", "R | H'01000000 | 00\n"},
      {"no more than an address", 3, "reladdr=10", " | H'02000010 | 10 | RW\n"},
      {"every key", 3, "name=R\nreladdr=0x10\nsize=16\nradix=d\nread=1\nwrite=0",
       "R | H'02000010 | 04113 | R\n"},
      {"write only, a size in octal with text behind it", 3, "reladdr=10\nread=0\nsize=040 bits",
       " | H'02000010 | 10111213 | W\n"},
      {"a size and flags that there aren't", 3, "reladdr=10\nsize=24\nread=00\nwrite=x",
       " | H'02000010 | 10 | RW\n"},
      {"bit fields up to a gap, whatever is missing in their sections", 3,
       "reladdr=5A\nwrite=0\nbitfield0=A\nbitfield1=B\nbitfield2=C\nbitfield3=D\nbitfield5=A\n"
       "[A]\nname=HIGH\nbit=4\nlen=0x4\n[B]\nname=NOBIT\nlen=2\n[C]\nname=BADLEN\nbit=1\nlen=x",
       " | H'0200005A | 5A | R\n  HIGH |  | 5 | R\n  NOBIT |  | 2 | R\n  BADLEN |  | 1 | R\n   |  | 0 | R\n"},
  };
  for (const auto& row : kRows) {
    // In version 3 the effective base and the module's address are both added, whatever `abs` says.
    const std::string module = row.version == 1 ? "R=" : "addr=1000000\nabs=1\nreg0=S\n[S]\n";
    Load(Definition(row.version, "[PORT]\n" + module + row.value + "\n"), 0x1FF0000);
    Open("PORT");
    EXPECT_EQ(RowsOf("PORT"), row.rows) << row.what;
  }
  EXPECT_THAT(messages.Lines(), IsEmpty());
}

TEST_F(RecordTreeTest, ALongSectionOfVersion1IsReadWholeAndARepeatedKeyGivesItsFirstValueAgain) {
  std::string section = "[PORT]\n";
  for (int i = 0; i < 20000; ++i) section += "REGISTER" + std::to_string(i) + "=" + std::to_string(i) + "\n";
  Load(Definition(1, section + "register7=FFFF\n"));
  ASSERT_TRUE(Open("PORT", false));
  const CIORec::Records& registers = Record("PORT").GetChildren();
  ASSERT_EQ(registers.size(), 20001u);
  EXPECT_EQ(registers[19999]->GetAddressText(0) + registers[19999]->GetValueText(), "H'0001999900");
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
      {"a minus at the start belongs to the name", "-0x5 0x10 B A", "-0x5 | H'00000010 | 00", {}},
      {"a prefix of another field", "R 10 B A H 0x", "R | H'00000010 | 00", {}},
      {"a minus in the bit section's name", "R 0x10 B A H P-0x", "R | H'00000010 | 00", {kBadAddress}},
      {"another size", "R 0x10 Q A D", "R | H'00000010 | 000", {kBadSize}},
      {"another flag acts as I", "R 0x10 W Q H", "R | H'01000010 | 0000", {kBadFlag}},
      {"another radix", "R 0x10 W A Q", "R | H'00000010 | 0000", {kBadRadix}},
      {"a word for the radix", "R 0x10 B A HEX BITS", "R | H'00000010 | 00", {kBadRadix}},
      {"all of them", "R 10 X Y Z", "R | H'01000010 | 00", {kBadAddress, kBadSize, kBadFlag, kBadRadix}},
  };
  for (const auto& row : kRows) {
    Load(Definition(2, std::string("[PORT]\nreg0=S\n[S]\nid=") + row.id + "\n"), 0x1FF0000);
    messages.Clear();
    EXPECT_EQ(Record("PORT").LoadChildren(&file, nullptr), row.faults.empty()) << row.what;
    EXPECT_EQ(RowsOf("PORT"), std::string(row.row) + "\n") << row.what;
    EXPECT_THAT(messages.Lines(), ElementsAreArray(row.faults)) << row.what;
  }
}

TEST_F(RecordTreeTest, AFaultStopsAVersion2ModuleAndASecondAttemptOrAReloadBeginsAnew) {
  const std::string text =
      Definition(2, "[PORT]\nreg0=A\nreg1=B%1\nreg2=C\n[A]\nid=AA 0x1 B A\n[C]\nid=CC 0x3 B A\n");
  const std::string mended = text + "[B%1]\nid=BB 0x2 B A\n";
  const std::string fault = "message [stop]: Error in I/O file: register description 'B%1' not found.";
  for (const bool reload : {false, true}) {
    data.ParseSelection("{PORT?{AA?CC?{F?}GONE?}}");
    messages.Clear();
    Load(text);
    for (int attempt = 0; attempt < 2; ++attempt) {
      EXPECT_FALSE(Open("PORT"));
      EXPECT_EQ(RowsOf("PORT"),
                "AA | H'00000001 | 01 +\n | H'00000000 | 00\n | H'00000000 | 00\nCC +!\n  F +!\nGONE +!\n");
      // Open all the same, it takes part in the refresh; what has no description doesn't.
      host.ClearTranscript();
      Refresh();
      EXPECT_THAT(host.Asked("ReadDirect"), ElementsAre("ReadDirect 00000001-00000001 width 1"));
      EXPECT_TRUE(Record("PORT").LoadChildren(&file, nullptr)) << "counts as loaded while it is open";
      EXPECT_FALSE(Record("PORT").GetChildren()[2]->SetValue(host.Debugger(), 1));
      EXPECT_THAT(host.Asked("WriteBlock"), IsEmpty());
      Record("PORT").SetExpanded(false);
    }
    EXPECT_THAT(messages.Lines(), ElementsAre(fault, fault));
    // What was listed as missing is selected where it is found now, with what is below it.
    reload ? void(Load(mended)) : void(dir.Write("device.io", mended));
    EXPECT_TRUE(Open("PORT"));
    EXPECT_EQ(RowsOf("PORT"),
              "AA | H'00000001 | 01 +\nBB | H'00000002 | 02\nCC | H'00000003 | 03 +\n  F +!\nGONE +!\n");
    data.DeleteModules();
    data.DeleteSelection();
    file.Close();
  }
}

TEST_F(RecordTreeTest, TheBitSectionOfVersion2) {
  const struct {
    const char* what;
    const char* section;
    const char* rows;  // with the register's value 5A
    std::string protection = "0";
  } kRows[] = {
      {"no entry at all", "", ""},
      {"in order, length 1 if none is given", "bit4=HIGH 4\nBIT1=ONE\n", "HIGH |  | 5\nONE |  | 1\n"},
      {"other keys are skipped", "x=1\nbi=N 1\nBit0=LOW 4 rest\n", "LOW |  | A\n"},
      {"a length that is no number is 1", "bit1=ONE x\n", "ONE |  | 1\n"},
      {"a key without a number ends it", "bit0=LOW 4\nbitfield=N\nbit4=HIGH 4\n", "LOW |  | A\n"},
      {"so does one without a name", "bit0=LOW 4\nbit1=\nbit4=HIGH 4\n", "LOW |  | A\n"},
      {"PROTECTION is kept apart", "bit0=LOW 4\nProtection=W\xC3\x84RE 5a\n", "LOW |  | A\n", "W\xC3\x84R90"},
      {"PROTECTION without a number ends it too", "protection=RO z\nbit4=HIGH 4\n", ""},
      {"a repeated key gives its first value again", "bit0=LOW 4\nbit0=X 2\n", "LOW |  | A\nLOW |  | A\n"},
  };
  for (const auto& row : kRows) {
    Load(Definition(2, std::string("[PORT]\nreg0=S\n[S]\nid=R 0x5A B A H BITS\n[BITS]\n") + row.section));
    EXPECT_TRUE(Open("PORT"));
    EXPECT_EQ(RowsOf("PORT/R"), row.rows) << row.what;
    const CIORegisterID* reg = Record("PORT/R").GetRegister();
    EXPECT_EQ(reg->GetProtectionTag() + std::to_string(reg->GetProtectionValue()), row.protection)
        << row.what;
  }
  EXPECT_THAT(messages.Lines(), ElementsAre("message [stop]: Error in I/O file: bit field description of "
                                            "register 'R' not found."));
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
