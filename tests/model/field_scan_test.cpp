#include "model/field_scan.h"

#include <gtest/gtest.h>

namespace pvw {
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

}  // namespace
}  // namespace pvw
