// One register against its target: which access it makes, what it keeps, what it shows.

#include "model/io_register_id.h"
#include "host/ids.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

using platform::E_FAIL;
using platform::S_OK;
using testing::ElementsAre;
using testing::IsEmpty;

CIORegisterID& Place(CIORegisterID& reg, std::uint32_t address, std::uint32_t size,
                     Radix radix = Radix::kHexadecimal) {
  reg.Set({"R", address, size, false, radix, {}});
  return reg;
}

TEST(RegisterText, IsAsWideAsTheRegisterInItsRadix) {
  const struct {
    std::uint32_t size;
    Radix radix;
    std::uint64_t value;
    const char* text;
  } kRows[] = {
      {1, Radix::kHexadecimal, 10, "0A"},
      {1, Radix::kDecimal, 10, "010"},
      {1, Radix::kBinary, 10, "00001010"},
      {1, Radix::kDecimal, 0x1FF, "255"},
      {2, Radix::kHexadecimal, 0xBEEF1234, "1234"},
      {2, Radix::kDecimal, 7, "00007"},
      {2, Radix::kBinary, 0x8001, "1000000000000001"},
      {4, Radix::kHexadecimal, 0x1'0000'00AF, "000000AF"},
      {4, Radix::kDecimal, 10, "        10"},
      {4, Radix::kDecimal, 0, "         0"},
      {4, Radix::kDecimal, 0xFFFFFFFF, "4294967295"},
      {4, Radix::kBinary, 0x80000000, "10000000000000000000000000000000"},
      {3, Radix::kHexadecimal, 10, ""},
  };
  for (const auto& row : kRows) {
    CIORegisterID reg;
    Place(reg, 0, row.size, row.radix).SetValue(row.value);
    EXPECT_EQ(reg.GetValueText(), row.text) << row.size << " bytes, value " << row.value;
  }
}

class RegisterIdTest : public RecordTreeTest {
 protected:
  CIORegisterID reg{&host};
};

TEST_F(RegisterIdTest, TheAccessFollowsTheSizeOnlyAtAnEvenAddress) {
  const struct {
    std::uint32_t address, size;
    const char* access;
    std::uint32_t value;
  } kRows[] = {
      {0x10, 1, "ReadDirect 00000010-00000010 width 1", 0x10},
      {0x10, 2, "ReadDirect 00000010-00000011 width 2", 0x1011},
      {0x12, 4, "ReadDirect 00000012-00000015 width 4", 0x12131415},
      {0x11, 2, "ReadDirect 00000011-00000012 width 1", 0x1112},
      {0x13, 4, "ReadDirect 00000013-00000016 width 1", 0x13141516},
  };
  for (const auto& row : kRows) {
    host.ClearTranscript();
    EXPECT_EQ(Place(reg, row.address, row.size).Read(host.Debugger()), S_OK);
    EXPECT_EQ(reg.GetValue(), row.value) << row.access;
    EXPECT_THAT(host.Asked("ReadDirect"), ElementsAre(row.access));
  }
}

TEST_F(RegisterIdTest, AReadSetsTheLowWordAndAFailedOneNothing) {
  Place(reg, 0x20, 1).SetValue(0x7'000000FF);
  ASSERT_EQ(reg.Read(host.Debugger()), S_OK);
  host.Poke(0x20, {0x55});
  host.ClearTranscript();
  EXPECT_EQ(reg.Read(nullptr), E_FAIL);
  EXPECT_THAT(host.Transcript(), IsEmpty());
  host.FailNext("ReadDirect");
  EXPECT_EQ(reg.Read(host.Debugger()), E_FAIL);
  UnbindDebuggerFunctions(&host);
  EXPECT_EQ(reg.Read(host.Debugger()), E_FAIL);
  EXPECT_EQ(reg.GetValue(), 0x7'00000020u);
  EXPECT_THAT(messages.Lines(), IsEmpty());
}

TEST_F(RegisterIdTest, AWriteIsRecordedOnceItIsDone) {
  host.recorder_active = true;
  Place(reg, 0xFFFF00, 2).SetValue(0x9'00001234);
  host.ClearTranscript();
  EXPECT_EQ(reg.Write(nullptr), S_OK);
  EXPECT_THAT(host.Asked("WriteBlock"), ElementsAre("WriteBlock 00FFFF00-00FFFF01 flag 0: 12 34"));
  EXPECT_EQ(host.Transcript().back(), "AddCommand memory_fill 0xFFFF00 0xFFFF01 0x1234 WORD");

  reg.SetValue(0);
  ASSERT_EQ(Place(reg, 0xFFFFFFFD, 4).Write(nullptr), S_OK);
  ASSERT_EQ(Place(reg, 3, 1).Write(nullptr), S_OK);
  host.recorder_active = false;
  ASSERT_EQ(reg.Write(nullptr), S_OK);
  host.Lack(IID_IQCommandRecorder);
  ASSERT_EQ(reg.Write(nullptr), S_OK);
  EXPECT_THAT(host.recorded,
              ElementsAre("memory_fill 0xFFFF00 0xFFFF01 0x1234 WORD", "memory_fill 0xFFFFFFFD 0x0 0x0 LONG",
                          "memory_fill 0x3 0x3 0x0 BYTE"));
}

TEST_F(RegisterIdTest, AFailedWriteShowsTheDebuggersTextAndRecordsNothing) {
  host.recorder_active = true;
  host.error_texts[E_FAIL] = "Target access failed.";
  Place(reg, 8, 1).SetValue(0x42);
  host.FailNext("WriteBlock");
  EXPECT_EQ(reg.Write(host.Debugger()), E_FAIL);
  EXPECT_EQ(reg.GetValue(), 0x42u);
  // Without the entry there is no text either, whatever failed before.
  g_debugEntries.IN1_Put_Value = nullptr;
  EXPECT_EQ(reg.Write(host.Debugger()), E_FAIL);
  EXPECT_THAT(messages.Lines(),
              ElementsAre("message [exclamation]: Target access failed.", "message [exclamation]: "));
  EXPECT_THAT(host.recorded, IsEmpty());
}

TEST_F(RegisterIdTest, EachRegisterReadsAndWritesItsOwnHost) {
  FakeHost other;
  BindDebuggerFunctions(&other, 1);
  host.Poke(0x10, {0xAA});
  other.Poke(0x10, {0xBB});
  CIORegisterID there(&other);
  ASSERT_EQ(Place(reg, 0x10, 1).Read(host.Debugger()), S_OK);
  ASSERT_EQ(Place(there, 0x10, 1).Read(host.Debugger()), S_OK);
  EXPECT_EQ(reg.GetValueText() + there.GetValueText(), "AABB");
  reg.SetValue(1);
  ASSERT_EQ(reg.Write(nullptr), S_OK);
  EXPECT_THAT(other.Peek(0x10, 1), ElementsAre(0xBB));
  UnbindDebuggerFunctions(&other);
}

TEST_F(RegisterIdTest, ACopyIsForReading) {
  reg.Set({"R", 0x10, 2, false, Radix::kBinary, "BITS"});
  reg.SetProtection("W", 0x5A);
  reg.SetValue(0x1'00000002);
  CIORegisterID copy = reg;
  EXPECT_EQ(copy.GetName() + copy.GetBitSection() + copy.GetProtectionTag() + copy.GetValueText(),
            "RBITSW0000000000000010");
  EXPECT_EQ(copy.GetValue() + copy.GetProtectionValue(), 0x1'0000005Cu);
  EXPECT_EQ(copy.Read(host.Debugger()), S_OK);
  // The flag isn't copied, and a register is absolute until it is said otherwise.
  copy.Relocate(1);
  reg.Relocate(0x20);
  EXPECT_EQ(copy.GetAddress(), 0x10u);
  EXPECT_EQ(reg.GetAddress(), 0xFFFFFFF0u);
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

}  // namespace
}  // namespace pvw::test
