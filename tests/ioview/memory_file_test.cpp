// Memory files: which lines are good, what they set, and what is said of a bad one.

#include "ioview/memory_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ioview/program_error.h"

namespace ioview {
namespace {

TEST(MemoryFile, SetsBytesFromGoodLines) {
  struct {
    const char* what;
    std::string text;
    std::vector<std::uint8_t> at_10;  // the first four bytes from 10 on
  } const cases[] = {
      {"without a line end", "10: 12 34", {0x12, 0x34, 0, 0}},
      {"prefixes, either case, one digit", "0X00000010: 0xAb 0XC d\n", {0xAB, 0xC, 0xD, 0}},
      {"comments, blank lines, tabs, CR", "# 10: 1\r\n\r\n \t\n\t10 :\t1\t 2 #3 4\r\n", {1, 2, 0, 0}},
      {"no blanks at all", "10:1", {1, 0, 0, 0}},
      {"a later line wins", "10: 1 2 3\n11: 9\n", {1, 9, 3, 0}},
      {"a byte order mark", "\xEF\xBB\xBF\n10: 1\n", {1, 0, 0, 0}},
  };
  for (const auto& row : cases) {
    SimulatedTarget target;
    const auto error = FillMemory(target, row.text);
    EXPECT_FALSE(error.has_value()) << row.what << ": " << error.value_or(MemoryFileError{}).text;
    std::vector<std::uint8_t> bytes(4);
    target.Peek(0x10, bytes);
    EXPECT_EQ(bytes, row.at_10) << row.what;
  }
  SimulatedTarget target;
  EXPECT_FALSE(FillMemory(target, "FFFFFFFF: 1").has_value());
}

TEST(MemoryFile, SaysWhatIsWrongWithABadLine) {
  const std::string no_address = " is not an address of up to eight hexadecimal digits";
  const std::string no_byte = " is not a byte of one or two hexadecimal digits";
  struct {
    const char* what;
    std::string text;
    std::size_t line;
    std::string error;
  } const cases[] = {
      {"no colon", "10: 1\n\n20 1\n", 3, "there is no ':' behind an address"},
      {"two addresses", "10 20: 1", 1, "'10 20'" + no_address},
      {"an address of nine digits", "000000010: 1", 1, "'000000010'" + no_address},
      {"a sign", "-1: 1", 1, "'-1'" + no_address},
      {"no bytes", "10: # 1\n", 1, "there are no bytes behind the address"},
      {"a word for a byte", "10: 1 1234", 1, "'1234'" + no_byte},
      {"no digits", "10: 1\n10: 2g\n", 2, "'2g'" + no_byte},
      {"past the end", "FFFFFFFF: 1 2", 1, "the bytes go past address FFFFFFFF"},
      {"a word without end", "10: " + std::string(100'000, 'f'), 1,
       "'ffffffffffffffffffffffffffffffffffffffffffffffffffffffffffff...'" + no_byte},
  };
  for (const auto& row : cases) {
    SimulatedTarget target;
    const auto error = FillMemory(target, row.text);
    ASSERT_TRUE(error.has_value()) << row.what;
    EXPECT_EQ(error->line, row.line) << row.what;
    EXPECT_EQ(error->text, row.error) << row.what;
  }
}

}  // namespace
}  // namespace ioview
