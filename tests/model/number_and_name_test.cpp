// Numbers as files and the host write them, and names as the selection compares them.

#include "host/host_ptr.h"
#include "model/field_scan.h"
#include "model/name_compare.h"
#include "model/name_hash.h"
#include "model/number_text.h"
#include "tests/model/record_tree.h"
#include "tests/support/scopes.h"

namespace pvw::test {
namespace {

using namespace std::string_view_literals;
using Number = std::optional<std::uint32_t>;

template <typename Take>
Number Taken(Take take) {
  std::uint32_t value = 0;
  return take(value) ? Number(value) : std::nullopt;
}

// `whole` is the same as `integer` but for a text that goes on behind its number.
TEST(FieldScan, ReadsNumbersOfThreeKindsAndWholeOnes) {
  constexpr Number kNone;
  const struct {
    const char* why;
    std::string_view text;
    Number hex, decimal, integer, whole;
  } cases[] = {
      {"white space of all six kinds in front", " \t\n\v\f\r10", 0x10, 10, 10, 10},
      {"a leading zero", "017", 0x17, 17, 15, 15},
      {"a digit that isn't octal", "08", 8, 8, 0, kNone},
      {"a prefix", "0X1f", 0x1F, 0, 0x1F, 0x1F},
      {"letters run on into a hexadecimal number", "1B I", 0x1B, 1, 1, kNone},
      {"a blank behind the number", "12 ", 0x12, 12, 12, kNone},
      {"no digit behind the prefix", "0x", kNone, 0, kNone, kNone},
      {"no hexadecimal digit behind the prefix", "0xG", kNone, 0, kNone, kNone},
      {"a minus wraps", "-1", 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},
      {"two signs", "+-1", kNone, kNone, kNone, kNone},
      {"33 bits are cut", "1FFFFFFFE", 0xFFFFFFFE, 1, 1, kNone},
      {"beyond 64 bits are cut, not saturated", "18446744073709551619", 0x09551619, 3, 3, 3},
      {"beyond 64 bits below zero", "-0x100000000000000000001", 0xFFFFFFFF, 0, 0xFFFFFFFF, 0xFFFFFFFF},
      {"no text", "", kNone, kNone, kNone, kNone},
      {"a zero byte ends the text", "\0001"sv, kNone, kNone, kNone, kNone},
      {"a zero byte behind the number", "1\0"sv, 1, 1, 1, kNone},
      {"a byte beyond ASCII is no white space", "\xA0\x31", kNone, kNone, kNone, kNone},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_EQ(Taken([&](std::uint32_t& value) { return FieldScan(c.text).Hex(value); }), c.hex);
    EXPECT_EQ(Taken([&](std::uint32_t& value) { return FieldScan(c.text).Decimal(value); }), c.decimal);
    EXPECT_EQ(Taken([&](std::uint32_t& value) { return FieldScan(c.text).Integer(value); }), c.integer);
    EXPECT_EQ(ParseNumber(c.text), c.whole);
  }
}

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
