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
      {"two items have no flag", "1.0&dev", "-: "},
      {"three items have the flag alone", "1.0&dev&2a", "1: "},
      {"a flag of any other character is 0", "1.0&dev&x1&1&A H'00 1 1", "0: A|H'00|1|1;"},
      {"the count isn't looked at", "9.9&&0&ffff&A a 1 5&B b 2 6", "0: A|a|1|5;B|b|2|6;"},
      {"a register of three fields is left out", "1.0&d&0&1&A a 1&&B b 1 2", "0: B|b|1|2;"},
      {"fields behind the fourth don't count", "1.0&d&0&1&A a 1 2 3", "0: A|a|1|2;"},
      {"a name with a blank shifts the fields", "1.0&d&0&1&P DATA H'10 1 2", "0: P|DATA|0|1;"},
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

CompareEntries Entries(const std::string& registers) {
  return ParseTestData("1.0&&0&0" + registers).registers;
}

TEST(Comparison, GivesOneLineForARegisterAndTheStatusOfTheLast) {
  const struct {
    const char* what;
    const char* first;
    const char* second;
    std::uint32_t status;
    const char* summary;
    const char* detail;
  } kRows[] = {
      {"equal in another order", "&A a 1 f&B b 1 2", "&B b 1 2&A a 1 f", 0, "", ""},
      {"no register at all", "", "", 0, "", ""},
      {"a value", "&PDATA a 1 f", "&PDATA a 1 10", 1, "0 0 PDATA", "1 3 PDATA 0F 10"},
      {"an address hides size and value", "&A a 1 1", "&A A 2 2", 1, "0 0 A", "1 1 A a A"},
      {"a size hides the value", "&A a a 1", "&A a 2 2", 1, "0 0 A", "1 2 A 10 2"},
      {"only in the first", "&PDATA a 1 1", "", 2, "0 0 PDATA", "1 0 PDATA Dest"},
      {"only in the second, in its order", "&A a 1 1", "&Z a 1 1&A a 1 1&B a 1 1", 2, "0 0 Z, B",
       "1 0 Z Src&1 0 B Src"},
      {"a difference behind a missing one", "&A a 1 1&B b 1 1", "&B c 1 1", 1, "0 0 A, B",
       "1 0 A Dest&1 1 B b c"},
      {"one left over behind a difference", "&B b 1 1", "&B b 1 2&a b 1 1&A b 1 1", 2, "0 0 B, a, A",
       "1 3 B 01 02&1 0 a Src&1 0 A Src"},
      {"a separator and an escape in a name", "&x\\&\\\\ a 1 1", "", 2, "0 0 x&\\", "1 0 x\\&\\\\ Dest"},
      {"values as wide as their register, of 16 bytes at most", "&A a 4 a&B b 0 a&C c 7fffffff a",
       "&A a 4 b&B b 0 b&C c 7fffffff b", 1, "0 0 A, B, C",
       "1 3 A 0000000A 0000000B&1 3 B A B&"
       "1 3 C 0000000000000000000000000000000A 0000000000000000000000000000000B"},
      {"the last of a name answers the first", "&A a 1 1&A a 1 1", "&A a 1 2&A a 1 1", 2, "0 0 A",
       "1 0 A Dest"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const Comparison result = CompareRegisters(Entries(row.first), Entries(row.second), false);
    EXPECT_EQ(result.status, row.status);
    EXPECT_EQ(result.summary, row.summary);
    EXPECT_EQ(result.detail, row.detail);
  }
  EXPECT_EQ(CompareRegisters(Entries("&A a 1 1"), Entries("&A b 1 1"), true).status, 0u);
}

TEST(ResultWords, SayWhatACodeMeansAndNothingForAnyOther) {
  const struct {
    const char* text;
    const char* words;
  } kRows[] = {
      {"0 0 PDATA, PCTRL", "Failed at PDATA, PCTRL"},
      {"0 0 A&1 0 B Dest", "Failed at A\\&1 0 B Dest"},
      {"1 0 PDATA Dest&1 0 %s\\& Src", "PDATA is not found in Dest&%s\\& is not found in Src"},
      {"1 1 A a b", "Failed at A, address is different: Src = a, Dest = b"},
      {"1 2 A 1 2", "Failed at A, register size is different: Src = 1, Dest = 2"},
      {"1 3 A 0F", "Failed at A, register value is different: Src = 0F, Dest = "},
      {"1 4 A&1 0&&01 0 A B&1 0x A Src&0 1 A&1 99999999999 A", "& is not found in &&A is not found in B&&&"},
      {"0 0", "Failed at "},
      {"1", ""},
      {"words", ""},
      {"&&", ""},
  };
  for (const auto& row : kRows) EXPECT_EQ(WordsOfResult(row.text), row.words) << row.text;
}

}  // namespace
}  // namespace pvw
