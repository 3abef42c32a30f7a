// Modules whose values can be edited only while a bit of a register has a certain value.

#include "model/io_rec_module.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using platform::E_FAIL;
using platform::S_OK;

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
