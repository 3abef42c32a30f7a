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

class RegisterIdTest : public RecordTreeTest {
 protected:
  CIORegisterID reg{&host};
};

TEST_F(RegisterIdTest, TheAccessFollowsTheSizeAtAnEvenAddressAndTheTextTheSizeInItsRadix) {
  const struct {
    std::uint32_t address, size;
    Radix radix;
    const char* access;
    const char* text;  // of the low bytes of the addresses
  } kRows[] = {
      {0x0A, 1, Radix::kHexadecimal, "ReadDirect 0000000A-0000000A width 1", "0A"},
      {0x0A, 1, Radix::kDecimal, "ReadDirect 0000000A-0000000A width 1", "010"},
      {0x10, 2, Radix::kDecimal, "ReadDirect 00000010-00000011 width 2", "04113"},
      {0x12, 4, Radix::kHexadecimal, "ReadDirect 00000012-00000015 width 4", "12131415"},
      {0x00, 4, Radix::kDecimal, "ReadDirect 00000000-00000003 width 4", "     66051"},
      {0x11, 2, Radix::kBinary, "ReadDirect 00000011-00000012 width 1", "0001000100010010"},
      {0xF3, 4, Radix::kDecimal, "ReadDirect 000000F3-000000F6 width 1", "4092917238"},
      {0x10, 3, Radix::kHexadecimal, "ReadDirect 00000010-00000010 width 1", ""},
  };
  for (const auto& row : kRows) {
    host.ClearTranscript();
    EXPECT_EQ(Place(reg, row.address, row.size, row.radix).Read(host.Debugger()), S_OK);
    EXPECT_EQ(reg.GetValueText(), row.text) << row.access;
    EXPECT_THAT(host.Asked("ReadDirect"), ElementsAre(row.access));
  }
  Place(reg, 0, 2).SetValue(0xBEEF1234);
  EXPECT_EQ(reg.GetValueText(), "1234");
}

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
  EXPECT_EQ(reg.Write(nullptr), S_OK);
  EXPECT_THAT(host.recorded,
              ElementsAre("memory_fill 0xFFFF00 0xFFFF01 0x1234 WORD", "memory_fill 0xFFFFFFFD 0x0 0x0 LONG",
                          "memory_fill 0x3 0x3 0x0 BYTE"));
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
