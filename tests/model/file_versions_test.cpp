// The records that a definition file of each version yields: what all versions do alike, and what one of them
// does in its own way. Behind them modules whose values can be edited only while a bit of a register has a
// certain value.

#include "model/io_rec_module.h"
#include "model/io_rec_module1.h"
#include "model/io_rec_module2.h"
#include "model/io_rec_module3.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using platform::E_FAIL;
using platform::S_OK;
using testing::ElementsAre;
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

TEST_P(EveryVersion, NothingIsReadOrWrittenOfAChosenRegisterThatTheFileLacks) {
  data.ParseSelection("{port?{p c t r l?GONE?}}");
  Load(Port(GetParam()));
  Open("PORT");
  EXPECT_EQ(RowsOf("PORT"), "PDATA | H'00FF0000 | 00" + Access() + "\nPCTRL | H'00FF0003 | 0304" + Access() +
                                " +\nGONE +!\n");
  CIORec& missing = Record("PORT/GONE");
  host.ClearTranscript();
  EXPECT_EQ(missing.ReadValue(host.Debugger()), S_OK);
  EXPECT_EQ(missing.WriteValue(host.Debugger()), S_OK);
  EXPECT_FALSE(missing.SetValue(host.Debugger(), 1));
  EXPECT_FALSE(missing.EditValue(host.Debugger(), nullptr, &host));
  EXPECT_THAT(host.Transcript(), IsEmpty());
}

TEST_F(RecordTreeTest, TheVersionIsTheFirstButForTwoAndThreeAndTheListOfModulesEndsAtAGap) {
  EXPECT_EQ(data.LoadModules(&file), E_FAIL) << "no open file";
  file.Open(dir.Path("nowhere.io"), 0);
  EXPECT_EQ(data.LoadModules(&file), S_OK);
  EXPECT_EQ(data.GetModuleCount(), 0u);
  Load("[Modules]\nModule1=\nModule2=M\n");
  EXPECT_EQ(data.GetModuleCount(), 0u);
  Load(Definition(1, ""));
  EXPECT_TRUE(Open("PORT") && Record("PORT").HasChildren()) << "looks for a section again the next time";
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

TEST_F(RecordTreeTest, AWrongLineOfVersion2CountsAsARelocatableByteAndItsProtectionIsKept) {
  Load(Definition(2, "[PORT]\nreg0=S\n[S]\nid=R 10 X Y Z BITS\n[BITS]\nProtection=W\xC3\x84RE 5a\n"),
       0x1FF0000);
  EXPECT_FALSE(Record("PORT").LoadChildren(&file, nullptr));
  EXPECT_EQ(RowsOf("PORT"), "R | H'01000010 | 00\n");
  EXPECT_EQ(messages.Lines().size(), 4u);
  CIORec& reg = Record("PORT/R");
  reg.LoadChildren(&file, nullptr);
  EXPECT_EQ(reg.GetRegister()->GetProtectionTag(), "W\xC3\x84R") << "three letters of it";
  EXPECT_EQ(reg.GetRegister()->GetProtectionValue(), 0x5Au);
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

// PORT with the register PDATA, which depends by the line or keys `dep` on a register at 20.
std::string Dependent(int version, const std::string& dep) {
  return Definition(version, "[PORT]\naddr=20\n" + dep + "\nreg0=D\n" +
                                 (version == 2 ? "[D]\nid=PDATA 0x10 B A H BITS\n[BITS]\nbit0=LOW\n"
                                                 "[CLK]\nid=CLKCTL 0x20 B A\n[BAD]\nid=BAD 20 B A\n"
                                               : "[D]\nname=PDATA\nreladdr=10\nbitfield0=F\n[F]\nname=LOW\n"
                                                 "bit=0\n[CLK]\nreladdr=0\n[BAD]\nname=BAD\n"));
}

TEST_F(RecordTreeTest, ADependencyFollowsTheBitAsItWasLastRead) {
  data.ParseSelection("{PORT?{GONE?{DEEPER?}}}");
  for (const auto& [version, dep] :
       {std::pair(2, "dep=CLK  3 0"), {3, "dep_reg=clk\ndep_bit=35\ndep_val=0"}}) {
    host.Poke(0x20, {0xF7});
    ASSERT_EQ(Load(Dependent(version, dep)), S_OK);
    ASSERT_TRUE(Open("PORT"));
    const auto enabled = [&](const char* path) {
      Record(path).UpdateEnabled();
      return Record(path).IsEnabled();
    };
    EXPECT_TRUE(enabled("PORT/PDATA/LOW"));
    host.Poke(0x20, {0x08});
    host.ClearTranscript();
    Refresh();
    EXPECT_EQ(host.Asked("ReadDirect").front(), "ReadDirect 00000020-00000020 width 1")
        << "before the registers";
    EXPECT_TRUE(Record("PORT/PDATA/LOW").IsEnabled()) << "until it is updated";
    EXPECT_FALSE(enabled("PORT/PDATA/LOW"));
    EXPECT_FALSE(Record("PORT/PDATA").IsEnabled() || Record("PORT").IsEnabled()) << "those above come along";
    EXPECT_FALSE(enabled("PORT/GONE/DEEPER")) << "as all that is below the module";

    host.Poke(0x20, {0xF7});
    host.FailNext("ReadDirect");
    Refresh();
    EXPECT_FALSE(enabled("PORT/PDATA")) << "a failed read leaves the last value in force";
    Refresh();
    EXPECT_TRUE(enabled("PORT/PDATA"));
  }
}

TEST_F(RecordTreeTest, WhatAModuleSaysOfItsDependency) {
  const struct {
    const char* what;
    int version;
    const char* dep;
    platform::Status status;
    bool dependent;
    bool enabled;  // with all bits 0
    std::size_t messages;
  } kRows[] = {
      {"bit must be 1", 2, "dep=CLK 3 1", S_OK, true, false, 0},
      {"a blank in front", 2, "dep=' 3 0'", E_FAIL, false, true, 0},
      {"one number, which is seen before the section's fault", 2, "dep=BAD 3", E_FAIL, false, true, 0},
      {"a description with a fault", 2, "dep=BAD 3 0", E_FAIL, false, true, 1},
      {"bit and value are 0 by default", 3, "dep_reg=CLK", S_OK, true, true, 0},
      {"value 1", 3, "dep_reg=CLK\ndep_val=0x1", S_OK, true, false, 0},
      {"a section with a fault, which isn't told", 3, "dep_reg=BAD", E_FAIL, false, true, 0},
  };
  for (const auto& row : kRows) {
    messages.Clear();
    EXPECT_EQ(Load(Dependent(row.version, row.dep)), row.status) << row.what;
    auto& module = dynamic_cast<CIORecModule&>(Record("PORT"));
    EXPECT_EQ(module.GetDependency() != nullptr, row.dependent) << row.what;
    module.UpdateEnabled();
    EXPECT_EQ(module.IsEnabled(), row.enabled) << row.what;
    EXPECT_EQ(messages.Lines().size(), row.messages) << row.what;
  }
}

TEST_F(RecordTreeTest, TheFirstDependencyThatFailsIsTheLastOneThatIsRead) {
  // In version 3 the later modules then have no address either.
  EXPECT_EQ(Load("[Modules]\nFileVersion=3\nModule1=A\nModule2=B\n[A]\naddr=100\ndep_reg=BAD\n[B]\naddr=300\n"
                 "dep_reg=R\nreg0=R\n[R]\nname=R\nreladdr=1\n"),
            E_FAIL);
  EXPECT_EQ(dynamic_cast<CIORecModule&>(Record("A")).GetAddress(), 0x100u);
  EXPECT_EQ(dynamic_cast<CIORecModule&>(Record("B")).GetDependency(), nullptr);
  ASSERT_TRUE(Open("B"));
  EXPECT_EQ(RowsOf("B"), "R | H'00000001 | 01 | RW\n");
}

}  // namespace
}  // namespace pvw::test
