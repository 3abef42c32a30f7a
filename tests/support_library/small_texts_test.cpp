#include <gtest/gtest.h>

#include "support/hex_text.h"
#include "support/message_text.h"
#include "support/windows_version.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

TEST(HexText, AddsEachDigitAtItsPlace) {
  EXPECT_EQ(ParseHex("fF"), 0xFFu);
  EXPECT_EQ(ParseHex("123456789"), 0x2345678Au) << "the ninth digit's shift is 0 again, and it adds";
  for (const char* text : {"", "0x12", "12 ", "-1", "1G", "12\xC3\xA4"})
    EXPECT_EQ(ParseHex(text), 0u) << text;
}

TEST(HexText, KnowsNumbersWithAndWithoutAPrefix) {
  for (const char* text : {"0", "abcdefABCDEF0123456789", "H'FF", "h'0", "0x1f", "0X1F", "H'", "0x"}) {
    EXPECT_TRUE(IsHexNumber(text)) << text;
  }
  for (const char* text : {"", "1H'", "H", "x1", "0x0x1", "H'H'1", " 1", "1 ", "G", "D'1"}) {
    EXPECT_FALSE(IsHexNumber(text)) << text;
  }
}

TEST(MessageText, PutsANameInAsItStands) {
  EXPECT_EQ(FormatMessageText("Register %1 of %1", "A%sB%1"), "Register A%sB%1 of %1");
  EXPECT_EQ(FormatMessageText("100 %", "x"), "100 %");
}

TEST(WindowsVersion, IsOneNumber) {
  test::SystemAnswers system;
  const std::uint32_t rows[][5] = {// platform, major, minor, service pack, code
                                   {1, 4, 10, 0, 3}, {1, 4, 20, 0, 10}, {2, 4, 0, 0, 1}, {2, 5, 1, 2, 7},
                                   {2, 5, 1, 3, 6},  {2, 6, 0, 0, 9},   {2, 6, 1, 0, 10}};
  for (const auto& [platform, major, minor, service_pack, code] : rows) {
    system->platform_id = platform;
    system->version_major = major;
    system->version_minor = minor;
    system->service_pack = service_pack;
    EXPECT_EQ(GetWindowsVersionCode(), static_cast<int>(code)) << major << '.' << minor;
  }
  EXPECT_TRUE(IsWindowsVersionAtLeast(10) && !IsWindowsVersionAtLeast(11));
}

}  // namespace
}  // namespace pvw
