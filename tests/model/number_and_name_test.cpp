// Numbers as the host writes them, and names as the selection compares them.

#include "host/host_ptr.h"
#include "model/name_compare.h"
#include "model/name_hash.h"
#include "model/number_text.h"
#include "tests/model/record_tree.h"
#include "tests/support/scopes.h"

namespace pvw::test {
namespace {

TEST_F(RecordTreeTest, ANumberIsWrittenByTheOperationThatFitsItsBitsAndIsZeroWhereThatFails) {
  const auto format = GetService<IQNumberFormat>(&host, IID_IQNumberFormat);
  const struct {
    std::uint32_t bits;
    std::uint64_t value;
    const char* text;
    const char* operation;
  } kRows[] = {
      {8, 0x1A0, "A0", "FormatByte"},
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
  EXPECT_EQ(NumberText(nullptr, 5, 8), "0");
  // A failure, and successes with a text that is shorter than its prefix.
  for (const auto& [text, status] : {std::pair("H'5", platform::E_FAIL), {"", 1}, {"H", 1}}) {
    host.text_on_failure = text;
    host.FailNext("FormatByte", status);
    EXPECT_EQ(NumberText(format, 5, 8), "0") << text;
  }
}

TEST(Names, AreTheSameWithoutRegardToCaseAndInTheSelectionToBlanks) {
  const struct {
    std::string_view a, b;
    bool equal, same;
  } kRows[] = {
      {"Reg_[0]", "rEG_[0]", true, true},
      {"reg@", "reg`", false, false},
      {"abcdefgh1", "ABCDEFGH1", true, true},
      {"\xC3\x84x", "\xC3\xA4X", true, true},
      // The Kelvin sign, whose lower case is a letter of ASCII.
      {"k", "\xE2\x84\xAA", true, true},
      {"P DATA ", "pdata", false, true},
      {"P\tDATA", "PDATA", false, false},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(NamesEqual(row.a, row.b), row.equal) << row.a;
    EXPECT_EQ(NameHash(row.a) == NameHash(row.b), row.equal) << row.a;
    EXPECT_EQ(SameName(row.a, row.b), row.same) << row.a;
  }
  // 0x41 and 0x61 are trail bytes here, of two different characters.
  const CodePage japanese(932);
  EXPECT_FALSE(SameName("\x83\x41", "\x83\x61"));
  EXPECT_NE(NameHash("\x83\x61"), NameHash("\x83\x41"));
}

}  // namespace
}  // namespace pvw::test
