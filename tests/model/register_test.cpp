// One register against its target: which access it makes, what it keeps, what it shows. A bit field against
// its register: what it shows, and what of the register its writing changes.

#include "host/ids.h"
#include "model/io_rec_bitfield2.h"
#include "model/io_rec_reg2.h"
#include "model/io_register_id.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using platform::E_FAIL;
using platform::S_OK;
using testing::ElementsAre;
using testing::IsEmpty;

CIORegisterID& Place(CIORegisterID& reg, std::uint32_t address, std::uint32_t size) {
  reg.Set({"R", address, size, false, Radix::kHexadecimal, {}});
  return reg;
}

class RegisterIdTest : public RecordTreeTest {
 protected:
  CIORegisterID reg{&host};
};

TEST_F(RegisterIdTest, AReadSetsTheLowWordAndAFailedOneNothing) {
  Place(reg, 0x20, 1).SetValue(0x7'000000FF);
  ASSERT_EQ(reg.Read(host.Debugger()), S_OK);
  host.ClearTranscript();
  EXPECT_EQ(reg.Read(nullptr), E_FAIL);
  EXPECT_THAT(host.Transcript(), IsEmpty());
  host.FailNext("ReadDirect");
  EXPECT_EQ(reg.Read(host.Debugger()), E_FAIL);
  UnbindDebuggerFunctions(&host);
  EXPECT_EQ(reg.Read(host.Debugger()), E_FAIL) << "no entry to read by";
  EXPECT_EQ(reg.GetValue(), 0x7'00000020u);
  EXPECT_EQ(reg.GetValueText(), "20");
  EXPECT_THAT(messages.Lines(), IsEmpty());
}

TEST_F(RegisterIdTest, AWriteIsRecordedOnceItIsDone) {
  host.recorder_active = true;
  Place(reg, 0xFFFFFFFD, 4).SetValue(0x9'00001234);
  host.ClearTranscript();
  EXPECT_EQ(reg.Write(nullptr), S_OK);
  EXPECT_THAT(host.Asked("WriteBlock"), ElementsAre("WriteBlock FFFFFFFD-00000000 flag 0: 00 00 12 34"));
  EXPECT_EQ(host.Transcript().back(), "AddCommand memory_fill 0xFFFFFFFD 0x0 0x1234 LONG");
}

TEST_F(RegisterIdTest, TheAddressTextIsTheHostsAndEmptyWithoutIt) {
  EXPECT_EQ(Place(reg, 0xFFFFFFFF, 1).GetAddressText(2), "H'00000001");
  EXPECT_EQ(host.Transcript().back(), "FormatAddress 00000001 space 0 mask FFFFFFFF flags 0");
  host.text_on_failure = "leaks when it isn't freed";
  host.FailNext("FormatAddress");
  EXPECT_EQ(reg.GetAddressText(0), "");
  host.Lack(IID_IQAddressFormat);
  EXPECT_EQ(Place(reg, 0, 1).GetAddressText(0), "");
}

class BitfieldTest : public RecordTreeTest {
 protected:
  // A field of the register, which has `size` bytes at 0x100 and the cached value.
  CIORecBitfield& Make(std::int32_t bit, std::int32_t length, std::uint32_t size, std::uint64_t cached) {
    reg.Define({"REG", 0x100, size, true, Radix::kHexadecimal, {}});
    reg.GetRegister()->SetValue(cached);
    field.SetField("FIELD", bit, length);
    return field;
  }
  std::uint64_t Cached() { return reg.GetRegister()->GetValue(); }

  CIORec module{"PORT", &host};
  CIORecReg2 reg{"REG", &module};
  CIORecBitfield2 field{"F", &reg, reg.GetRegister()};
};

TEST_F(BitfieldTest, ShowsItsBitsAndWritesThemAlone) {
  const struct {
    const char* what;
    std::int32_t bit, length;
    std::uint32_t size;
    std::uint64_t cached;
    const char* shown;
    std::uint64_t write, becomes;
  } kRows[] = {
      {"bits 1 to 3", 1, 3, 1, 0xA5, "2", 5, 0xAB},
      {"the top bit of a long", 31, 1, 4, 0x80000000, "1", 0, 0},
      {"31 bits", 0, 31, 4, 0xFFFFFFFF, "7FFFFFFF", 0, 0x80000000},
      {"32 bits of a long are the whole of it", 0, 32, 4, 0x89ABCDEF, "89ABCDEF", 0x12345678, 0x12345678},
      {"32 bits of a byte have no mask to read by", 0, 32, 1, 0xFF, "0", 0x1FF, 0x1FF},
      {"past bit 31 the sign comes in", 30, 4, 4, 0x80000000, "E", 1, 0x40000000},
      {"past bit 31 a write goes to the high word", 31, 2, 4, 0, "0", 3, 0x1'80000000},
      {"bit 33 reads as bit 1, and is written at 33", 33, 2, 1, 0x06, "3", 1, 0x2'00000006},
      {"a negative bit counts from above", -1, 1, 4, 0x80000000, "1", 1, 0x80000000'80000000},
      {"33 bits read as one", 0, 33, 1, 0xFF, "1", 0x1'00000002, 0x1'00000002},
      {"a negative length", 0, -30, 1, 0x0F, "3", 0xFF, 0xFF},
      {"the high word stays", 0, 4, 1, 0x5'000000FF, "F", 1, 0x5'000000F1},
  };
  for (const auto& row : kRows) {
    Make(row.bit, row.length, row.size, row.cached);
    EXPECT_EQ(field.GetValueText(), row.shown) << row.what;
    EXPECT_TRUE(field.SetValue(nullptr, row.write)) << row.what;
    EXPECT_EQ(Cached(), row.becomes) << row.what;
  }
}

TEST_F(BitfieldTest, RefusesWhatIsTooBigWithItsLimit) {
  const struct {
    std::int32_t length;
    std::uint64_t value;
    const char* limit;
  } kRows[] = {
      {3, 8, "7"}, {32, 1ull << 32, "FFFFFFFF"}, {0, 1, "0"}, {64, 1, "0"}, {100, 1ull << 36, "FFFFFFFFF"}};
  for (const auto& row : kRows) {
    messages.Clear();
    EXPECT_FALSE(Make(0, row.length, 4, 0).SetValue(host.Debugger(), row.value)) << row.length;
    EXPECT_THAT(messages.Lines(),
                ElementsAre(std::string("message [exclamation]: The entered value is too big.\\n"
                                        "Must be less than or equal to ") +
                            row.limit + "."));
  }
  EXPECT_THAT(host.Asked("WriteBlock"), IsEmpty());
}

}  // namespace
}  // namespace pvw::test
