// Numbers as text, and numbers and addresses as users type them.

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "host/host_ptr.h"
#include "ioview/host/address_format.h"
#include "ioview/host/number_format.h"
#include "ioview/statuses.h"

namespace ioview {
namespace {

TEST(NumberFormat, ReadsWhatUsersType) {
  struct {
    const char* typed;
    std::optional<std::uint64_t> value;
  } const cases[] = {
      {"  0 ", 0},
      // Bare, B and D are digits.
      {"B1", 0xB1},
      {" B' ", 0},  // a prefix alone
      // 64 bits and one more.
      {"FFFFFFFFFFFFFFFF", 0xFFFFFFFFFFFFFFFF},
      {"D'18446744073709551615", 0xFFFFFFFFFFFFFFFF},
      {"D'18446744073709551616", std::nullopt},
      // Anything else.
      {"   ", std::nullopt},
      {"1 2", std::nullopt},
      {"\t1", std::nullopt},
      {"D'1A", std::nullopt},
      {"d'1", std::nullopt},
      {"0x0x1", std::nullopt},
  };
  NumberFormat format;
  for (const auto& row : cases) {
    std::uint64_t value = 77;
    const platform::Status status = format.ParseValue(platform::ScopedBstr(row.typed).Get(), &value);
    EXPECT_EQ(status, row.value ? platform::S_OK : kInvalidNumber) << row.typed;
    EXPECT_EQ(value, row.value.value_or(77)) << row.typed;
  }
  std::uint64_t value = 77;
  EXPECT_EQ(format.ParseValue(nullptr, &value), kInvalidNumber);
}

TEST(NumberFormat, WritesTwoCharactersOfPrefixInEveryRadix) {
  NumberFormat format;
  platform::ScopedBstr text;
  struct {
    std::uint32_t radix;
    std::string byte, zero, quad;
  } const cases[] = {
      {16, "H'0A", "H'00000000", "H'FEDCBA9876543210"},
      {10, "D'10", "D'0", "D'18364758544493064720"},
      {8, "Q'012", "Q'00000000000", "Q'1773345651416625031020"},
      {2, "B'00001010", "B'" + std::string(32, '0'),
       "B'1111111011011100101110101001100001110110010101000011001000010000"},
  };
  for (const auto& row : cases) {
    format.FormatByte(10, row.radix, text.Receive());
    EXPECT_EQ(text.Text(), row.byte);
    format.FormatLong(0, row.radix, text.Receive());
    EXPECT_EQ(text.Text(), row.zero);
    EXPECT_EQ(format.FormatQuad(0x76543210, 0xFEDCBA98, row.radix, text.Receive()), platform::S_OK);
    EXPECT_EQ(text.Text(), row.quad);
  }
  EXPECT_EQ(format.FormatByte(1, 7, text.Receive()), kInvalidNumber);
  EXPECT_EQ(text.Get(), nullptr);
}

TEST(AddressFormat, EvaluatesNumbers) {
  struct {
    const char* text;
    std::uint32_t radix;
    std::optional<std::int64_t> first, second;  // of the two readers
  } const cases[] = {
      {" 10 ", 10, 10, 16},
      {"17", 0, 0x17, 0x17},
      {"101", 2, 5, 0x101},
      {"-1", 10, -1, -1},
      {"D'10", 16, std::nullopt, 10},
      {"12", 2, std::nullopt, 0x12},
      {"7FFFFFFFFFFFFFFF", 16, INT64_MAX, INT64_MAX},
      {"8000000000000000", 16, std::nullopt, std::nullopt},
      {"-8000000000000000", 16, INT64_MIN, INT64_MIN},
      {"--1", 16, std::nullopt, std::nullopt},
      {"1", 7, std::nullopt, 1},
  };
  AddressFormat format;
  for (const auto& row : cases) {
    const platform::ScopedBstr text(row.text);
    for (const auto& [evaluate, expected] : {std::pair(&AddressFormat::EvaluateExpression, row.first),
                                             {&AddressFormat::EvaluateExpression2, row.second}}) {
      std::int64_t value = 77;
      EXPECT_EQ((format.*evaluate)(text.Get(), row.radix, &value), expected ? platform::S_OK : kInvalidNumber)
          << row.text;
      EXPECT_EQ(value, expected.value_or(77)) << row.text;
    }
  }
}

}  // namespace
}  // namespace ioview
