// Numbers as the host writes them, and names as the selection compares them.

#include "host/host_ptr.h"
#include "model/name_compare.h"
#include "model/number_text.h"
#include "platform/base/text.h"
#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

TEST_F(RecordTreeTest, ANumberIsWrittenByTheOperationThatFitsItsBits) {
  const auto format = GetService<IQNumberFormat>(&host, IID_IQNumberFormat);
  const struct {
    std::uint32_t bits;
    std::uint64_t value;
    const char* text;
    const char* operation;
  } kRows[] = {
      {0, 0x1A0, "A0", "FormatByte"},
      {8, 0, "0", "FormatByte"},
      {9, 0x1FF, "1FF", "FormatWord"},
      {16, 0x10000, "0", "FormatWord"},
      {17, 0x10000, "10000", "FormatLong"},
      {32, 0xFFFFFFFF, "FFFFFFFF", "FormatLong"},
      {33, 1ull << 32, "100000000", "FormatQuad"},
      {64, ~0ull, "FFFFFFFFFFFFFFFF", "FormatQuad"},
      {65, 7, "7", "FormatByte"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(NumberText(format, row.value, row.bits), row.text) << row.bits << " bits";
    EXPECT_THAT(host.Transcript().back(), testing::StartsWith(row.operation));
  }
}

TEST_F(RecordTreeTest, ANumberThatTheHostCannotWriteIsZero) {
  const auto format = GetService<IQNumberFormat>(&host, IID_IQNumberFormat);
  EXPECT_EQ(NumberText(nullptr, 5, 8), "0");
  // A failure, and successes with a text that is shorter than its prefix.
  for (const auto& [text, status] : {std::pair("H'5", platform::E_FAIL), {"", 1}, {"H", 1}}) {
    host.text_on_failure = text;
    host.FailNext("FormatByte", status);
    EXPECT_EQ(NumberText(format, 5, 8), "0") << text;
  }
}

TEST(Names, AreTheSameWithoutBlanksAndCase) {
  EXPECT_TRUE(SameName("P DATA ", "pdata"));
  EXPECT_TRUE(SameName(" ", ""));
  EXPECT_FALSE(SameName("P\tDATA", "PDATA"));
  EXPECT_FALSE(SameName("PDATA", "PDATA1"));
  EXPECT_TRUE(SameName("\xC3\x84 X", "\xC3\xA4x")) << "letters beyond ASCII";
  // 0x41 and 0x61 are trail bytes here, of two different characters.
  platform::SetAnsiCodePage(932);
  EXPECT_FALSE(SameName("\x83\x41", "\x83\x61"));
  platform::SetAnsiCodePage(65001);
}

}  // namespace
}  // namespace pvw::test
