// The texts that the test framework keeps and shows: snapshots, and the results of comparing two.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "testclient/comparison.h"
#include "testclient/result_text.h"
#include "testclient/test_data_text.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

// "NAME|ADDRESS|SIZE|VALUE;" for each register, behind the flag where the text has one.
std::string Parsed(const std::string& text) {
  const TestData data = ParseTestData(text);
  std::string line = !data.ignoreAddress ? "-: " : *data.ignoreAddress ? "1: " : "0: ";
  for (const CompareEntry& entry : data.registers) {
    line += entry.name + '|' + entry.address + '|' + std::to_string(entry.size) + '|' +
            std::to_string(entry.value) + ';';
  }
  return line;
}

TEST(TestDataText, TakesAnyTextForASnapshot) {
  const struct {
    const char* what;
    std::string text;
    std::string parsed;
  } kRows[] = {
      {"nothing", "", "-: "},
      {"three items have the flag alone", "1.0&dev&2a", "1: "},
      {"a flag of any other character is 0", "1.0&dev&x1&1&A H'00 1 1", "0: A|H'00|1|1;"},
      {"the count isn't looked at", "9.9&&0&ffff&A a 1 5&B b 2 6", "0: A|a|1|5;B|b|2|6;"},
      {"fields behind the fourth don't count", "1.0&d&0&1&A a 1 2 3", "0: A|a|1|2;"},
      {"two blanks have an empty field between them", "1.0&d&0&1&A  1 2&  1 2", "0: A||1|2;||1|2;"},
      {"digits in either case, a bad number is 0", "1.0&d&0&1&A a g aBcDeF01&B b 0x1 -1",
       "0: A|a|0|2882400001;B|b|0|0;"},
      {"a name stays as often as it comes", "1.0&d&0&1&A a 1 2&A a 1 3", "0: A|a|1|2;A|a|1|3;"},
      {"escaped separators and a lone escape", "1.0&d&0&1&A\\&B\\\\ a\\ 1 2\\", "0: A&B\\|a\\|1|0;"},
      {"zero bytes and bytes without a meaning", std::string("1.0&d&0&1&A") + '\0' + "\xFF a 1 2",
       std::string("0: A") + '\0' + "\xFF|a|1|2;"},
  };
  for (const auto& row : kRows) EXPECT_EQ(Parsed(row.text), row.parsed) << row.what;
}

TEST(TestDataText, ComesBackAsItWasWritten) {
  const CompareEntries entries = {
      {"PDATA", "H'00FF0000", 0xA5, 1}, {"A&B\\C&", "&", 0xFFFFFFFF, 0x10}, {"\x83\x5C\x83\x5C", "a", 0, 0}};
  EXPECT_EQ(MakeTestData("dev", true, std::span(entries).first(2)),
            "1.0&dev&1&2&PDATA H'00FF0000 1 a5&A\\&B\\\\C\\& \\& 10 ffffffff");
  EXPECT_EQ(MakeTestData("x\\y", false, {}), "1.0&x\\\\y&0&0");
  // A backslash as the second byte of a character is none.
  const test::CodePage page(932);
  EXPECT_THAT(MakeTestData("", false, entries), testing::HasSubstr("&\x83\x5C\x83\x5C a 0 0"));
  EXPECT_EQ(ParseTestData(MakeTestData("", false, entries)).registers, entries);
}

// What a comparison gives, "STATUS: SUMMARY / DETAIL".
std::string Compared(const std::string& first, const std::string& second) {
  const auto entries = [](const std::string& text) { return ParseTestData("1.0&&0&0" + text).registers; };
  const Comparison result = CompareRegisters(entries(first), entries(second), false);
  return std::to_string(result.status) + ": " + result.summary + " / " + result.detail;
}

TEST(Comparison, GivesOneLineForARegisterAndTheStatusOfTheLast) {
  EXPECT_EQ(Compared("&A a 1 1&B b 1 1", "&B c 1 1"), "1: 0 0 A, B / 1 0 A Dest&1 1 B b c")
      << "a difference behind a missing one";
  EXPECT_EQ(Compared("&B b 1 1", "&B b 1 2&a b 1 1&A b 1 1"),
            "2: 0 0 B, a, A / 1 3 B 01 02&1 0 a Src&1 0 A Src");
  EXPECT_EQ(Compared("&A a 4 a&B b 0 a&C c 7fffffff a", "&A a 4 b&B b 0 b&C c 7fffffff b"),
            "1: 0 0 A, B, C / 1 3 A 0000000A 0000000B&1 3 B A B&"
            "1 3 C 0000000000000000000000000000000A 0000000000000000000000000000000B")
      << "values as wide as their register, of 16 bytes at most";
  EXPECT_EQ(Compared("&A a 1 1&A a 1 1", "&A a 1 2&A a 1 1"), "2: 0 0 A / 1 0 A Dest")
      << "the last of a name answers the first";
}

TEST(ResultWords, SayWhatACodeMeansAndNothingForAnyOther) {
  const std::pair<const char*, const char*> kRows[] = {
      {"0 0 A&1 0 B Dest", "Failed at A\\&1 0 B Dest"},
      {"1 0 PDATA Dest&1 0 %s\\& Src", "PDATA is not found in Dest&%s\\& is not found in Src"},
      {"1 3 A 0F", "Failed at A, register value is different: Src = 0F, Dest = "},
      {"1 4 A&1 0&&01 0 A B&1 0x A Src&0 1 A&1 99999999999 A", "& is not found in &&A is not found in B&&&"},
      {"0 0", "Failed at "},
      {"1", ""},
      {"&&", ""},
  };
  for (const auto& [text, words] : kRows) EXPECT_EQ(WordsOfResult(text), words) << text;
}

}  // namespace
}  // namespace pvw
