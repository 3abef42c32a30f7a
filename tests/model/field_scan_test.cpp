#include "model/field_scan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <random>

namespace pvw {
namespace {

using namespace std::string_view_literals;
using Number = std::optional<std::uint32_t>;

template <typename Take>
Number Taken(Take take) {
  std::uint32_t value = 0;
  return take(value) ? Number(value) : std::nullopt;
}

TEST(FieldScan, ReadsNumbersOfThreeKinds) {
  constexpr Number kNone;
  const struct {
    const char* why;
    std::string_view text;
    Number hex, decimal, integer;
  } cases[] = {
      {"white space of all six kinds in front", " \t\n\v\f\r10", 0x10, 10, 10},
      {"a leading zero", "017", 0x17, 17, 15},
      {"a prefix", "0X1f", 0x1F, 0, 0x1F},
      {"letters run on into a hexadecimal number", "1B I", 0x1B, 1, 1},
      {"no digit behind the prefix", "0x", kNone, 0, kNone},
      {"no hexadecimal digit behind the prefix", "0xG", kNone, 0, kNone},
      {"a minus wraps", "-1", 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},
      {"two signs", "+-1", kNone, kNone, kNone},
      {"33 bits are cut", "1FFFFFFFE", 0xFFFFFFFE, 1, 1},
      {"beyond 64 bits are cut, not saturated", "18446744073709551619", 0x09551619, 3, 3},
      {"beyond 64 bits below zero", "-0x100000000000000000001", 0xFFFFFFFF, 0, 0xFFFFFFFF},
      {"no text", "", kNone, kNone, kNone},
      {"a zero byte ends the text", "\0001"sv, kNone, kNone, kNone},
      {"a byte beyond ASCII is no white space", "\xA0\x31", kNone, kNone, kNone},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_EQ(Taken([&](std::uint32_t& value) { return FieldScan(c.text).Hex(value); }), c.hex);
    EXPECT_EQ(Taken([&](std::uint32_t& value) { return FieldScan(c.text).Decimal(value); }), c.decimal);
    EXPECT_EQ(Taken([&](std::uint32_t& value) { return FieldScan(c.text).Integer(value); }), c.integer);
  }
}

// The fields of "%lx %c %c %c %s %c" that are converted.
std::string Fields(std::string_view text) {
  FieldScan scan(text);
  std::uint32_t number = 0;
  char c = 0;
  std::string word;
  std::string fields;
  if (scan.Hex(number)) fields += std::to_string(number);
  for (int i = 0; i < 3; ++i) {
    if (scan.Char(c)) fields += std::string("|") + c;
  }
  if (scan.Word(word)) fields += "|" + word;
  if (scan.Char(c)) fields += std::string("|") + c;
  return fields;
}

TEST(FieldScan, TakesFieldAfterFieldUntilOneIsMissing) {
  const struct {
    const char* why;
    std::string_view text;
    const char* fields;
  } cases[] = {
      {"tabs and line ends part fields", "10\tW\r\nI\vH\fBITS X", "16|W|I|H|BITS|X"},
      {"letters need no blank between", "0x10WIHBITS", "16|W|I|H|BITS"},
      {"a word for a letter gives its first letter and runs on", "10 W I HEX BITS", "16|W|I|H|EX|B"},
      {"no number, and nothing behind it is taken", "W I H BITS X", ""},
      {"a prefix without digits, and nothing behind it is taken", "0x W I", ""},
      {"a zero byte ends the text", "10 W \0I"sv, "16|W"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_EQ(Fields(c.text), c.fields);
  }
}

TEST(FieldScan, LeavesOutputsAloneOnceAFieldIsMissing) {
  FieldScan scan("name none");
  std::string word;
  ASSERT_TRUE(scan.Word(word));
  std::int32_t length = 1;
  EXPECT_FALSE(scan.Decimal(length));
  EXPECT_EQ(length, 1);
  EXPECT_FALSE(scan.Word(word)) << "the rest of the text is still there but the scan has ended";
  EXPECT_EQ(word, "name");
}

// A 0x without a digit behind it, which some libraries take for a zero.
bool HoldsBarePrefix(const std::string& text) {
  for (std::size_t at = 1; at < text.size(); ++at) {
    const bool prefix = text[at - 1] == '0' && (text[at] == 'x' || text[at] == 'X');
    if (prefix && (at + 1 == text.size() || std::isxdigit(static_cast<unsigned char>(text[at + 1])) == 0)) {
      return true;
    }
  }
  return false;
}

// Short texts of the bytes that matter; none is long enough for a number beyond 64 bits.
TEST(FieldScan, AgreesWithTheLibrarysOwnScan) {
  std::mt19937 random(7);
  constexpr std::string_view kBytes = "00178xXaFgB+- \t";
  for (int round = 0; round < 100'000; ++round) {
    std::string text(random() % 12, ' ');
    for (char& c : text) c = kBytes[random() % kBytes.size()];
    if (HoldsBarePrefix(text)) continue;
    SCOPED_TRACE(text);

    unsigned long hex = 0;
    char letters[2] = {};
    char word[16] = {};
    const int fields =
        std::max(0, std::sscanf(text.c_str(), "%lx %c %c %15s", &hex, &letters[0], &letters[1], word));
    FieldScan scan(text);
    std::uint32_t value = 0;
    char taken[2] = {};
    std::string rest;
    int count = scan.Hex(value) ? 1 : 0;
    for (char& c : taken) count += scan.Char(c) ? 1 : 0;
    count += scan.Word(rest) ? 1 : 0;
    ASSERT_EQ(count, fields);
    ASSERT_EQ(value, static_cast<std::uint32_t>(hex));
    ASSERT_EQ(std::string_view(taken, 2), std::string_view(letters, 2));
    ASSERT_EQ(rest, word);

    std::int32_t small = 99;
    long number = 99;
    ASSERT_EQ(FieldScan(text).Decimal(small), std::sscanf(text.c_str(), "%ld", &number) == 1);
    ASSERT_EQ(small, static_cast<std::int32_t>(number));
    number = small = 99;
    ASSERT_EQ(FieldScan(text).Integer(small), std::sscanf(text.c_str(), "%li", &number) == 1);
    ASSERT_EQ(small, static_cast<std::int32_t>(number));
  }
}

TEST(ParseNumber, TakesTheWholeTextOrNothing) {
  const struct {
    const char* why;
    std::string_view text;
    Number value;
  } cases[] = {
      {"hexadecimal", "0xFF0000", 0xFF0000},
      {"octal", "017", 15},
      {"white space and a sign in front", " \t-1", 0xFFFFFFFF},
      {"beyond 64 bits", "0x100000000000000000000000A", 10},
      {"hexadecimal digits without a prefix", "FF0000", std::nullopt},
      {"text behind the number", "12abc", std::nullopt},
      {"a blank behind the number", "12 ", std::nullopt},
      {"a digit that isn't octal", "08", std::nullopt},
      {"a prefix alone", "0x", std::nullopt},
      {"white space alone", " ", std::nullopt},
      {"a zero byte behind the number", "1\0"sv, std::nullopt},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_EQ(ParseNumber(c.text), c.value);
  }
}

}  // namespace
}  // namespace pvw
