#include "model/profile_text.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/base/text.h"
#include "tests/model/scanning_reader.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Kind = ProfileLine::Kind;

using test::CodePage;

TEST(ProfileLine, IsAHeaderAnEntryOrNothing) {
  const std::string longest(kMaxProfileValue, 'x');
  const std::string tooLong = "a=" + longest + "y", quoted = "a='" + longest + "y'", cut = "a='" + longest;
  const std::string halfQuoted = "'" + longest.substr(1);
  // 83 5D is one character of page 932 whose second byte is a closing bracket, 83 5B one with an opening.
  const CodePage japanese(932);
  const struct {
    const char* why;
    std::string_view line;
    Kind kind;
    std::string_view name = {};
    std::string_view value = {};
  } cases[] = {
      {"white space around and inside", " \t[ PORT A ]\r", Kind::kSection, "PORT A"},
      {"up to the last bracket", "[A]=[B]", Kind::kSection, "A]=[B"},
      {"text behind the last bracket doesn't count", "[A] x=1", Kind::kSection, "A"},
      {"no closing bracket, but an equals sign: an entry", "[x=1", Kind::kEntry, "[x", "1"},
      {"white space of every kind around key and value", " \t\v\fa b\t=\f c d \r", Kind::kEntry, "a b",
       "c d"},
      {"split at the first equals sign", "a=b=c", Kind::kEntry, "a", "b=c"},
      {"blanks inside quotes stay", "a=\" x \"", Kind::kEntry, "a", " x "},
      {"one pair of quotes goes, no more", "a=\"\"x\"\"", Kind::kEntry, "a", "\"x\""},
      {"quotes that don't match", "a='x\"", Kind::kEntry, "a", "'x\""},
      {"one quote character is no pair", "a='", Kind::kEntry, "a", "'"},
      {"a zero byte ends the line's text", "a=1\0002"sv, Kind::kEntry, "a", "1"},
      {"no key", "=1", Kind::kIgnored},
      {"a comment that looks like an entry", ";x=1", Kind::kIgnored},
      {"a comment that looks like a header, blanks in front", " \t;[x]", Kind::kIgnored},
      {"a zero byte before the equals sign", "a\0=1"sv, Kind::kIgnored},
      {"a value of one byte too many", tooLong, Kind::kEntry, "a", longest},
      {"quotes aren't counted", quoted, Kind::kEntry, "a", longest},
      {"a quote without its other is", cut, Kind::kEntry, "a", halfQuoted},
      {"a bracket that is half a character", "[x\x83\x5D=1", Kind::kEntry, "[x\x83\x5D", "1"},
      {"the last whole bracket", "[\x83\x5D]\x83\x5D", Kind::kSection, "\x83\x5D"},
      {"half a character at the front", "\x83\x5B]=1", Kind::kEntry, "\x83\x5B]", "1"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    const ProfileLine line = ParseProfileLine(c.line);
    EXPECT_EQ(line.kind, c.kind);
    EXPECT_EQ(line.name, c.name);
    EXPECT_EQ(line.value, c.value);
  }
  platform::SetAnsiCodePage(1252);
  EXPECT_EQ(ParseProfileLine("[x\x83\x5D=1").name, "x\x83") << "one byte a character";
}

TEST(ProfileText, FindsValues) {
  EXPECT_EQ(ProfileText("[a]\rx=1\r[b]\rx=2").Value("b", "x"), "") << "a lone CR ends no line";
  EXPECT_EQ(ProfileText("x=1\n[a]\n").Value("", "x"), "") << "above the first section";
  EXPECT_EQ(ProfileText("x=1\n[]\nx=2\n").Value("", "x"), "2") << "a section with an empty name";
  EXPECT_EQ(ProfileText("\xEF\xBB\xBF[a]\nx=1\n").Value("a", "x"), "1") << "a byte order mark in front";
  EXPECT_EQ(ProfileText("\n\xEF\xBB\xBF[a]\nx=1\n").Value("a", "x"), "") << "elsewhere it is text";
  EXPECT_EQ(ProfileText("[a]\nx=1\0[b]\ny=2\n"s).Value("a", "y"), "2") << "a zero hides the rest of its line";
}

// Everything that a reading line by line finds, the index finds, and no more.
TEST(ProfileText, AgreesWithAScanOfTheText) {
  // Few names, often repeated, in sections from empty to well above the size that has a table of its own.
  std::mt19937 random(20);
  std::vector<std::string> names;
  for (int i = 0; i < 20; ++i) names.push_back((i % 2 == 0 ? "Key" : "k\xC3\xA9y") + std::to_string(i));
  for (int round = 0; round < 20; ++round) {
    std::string bytes;
    const unsigned sectionEvery = 2 + random() % 60;
    for (int line = 0; line < 400; ++line) {
      std::string name = names[random() % names.size()];
      if (random() % 2 == 0) name = platform::UpperCase(name);
      bytes += random() % sectionEvery == 0 ? "[" + name + "]\n" : name + "=" + std::to_string(line) + "\n";
    }
    const ProfileText text(bytes);
    for (const std::string& section : names) {
      const std::vector<ProfileLine> entries = test::ScanForEntries(bytes, section);
      const ProfileText::Section* found = text.FindSection(section);
      ASSERT_EQ(found != nullptr ? text.KeyCount(*found) : 0, entries.size()) << section;
      for (std::size_t i = 0; i < entries.size(); ++i) ASSERT_EQ(text.KeyAt(*found, i), entries[i].name);
      for (const std::string& key : names) {
        ASSERT_EQ(text.Value(section, key), test::ScanForValue(bytes, section, key)) << section << " " << key;
      }
    }
  }
}

// Each is far above what a quadratic step would get through in the time that a test may take.
TEST(ProfileText, StaysLinearOnLargeTexts) {
  std::string repeats = "[a]\n";
  for (int i = 0; i < 100'000; ++i) repeats += "k=" + std::to_string(i) + "\n";
  EXPECT_EQ(ProfileText(repeats).Value("a", "k"), "0");
  const std::string endless(8u << 20, '[');
  EXPECT_EQ(ProfileText(endless).FindSection(""), nullptr);
  EXPECT_EQ(ProfileText("[a]\nk=" + endless).Value("a", "k"), endless.substr(0, kMaxProfileValue));
  EXPECT_EQ(ProfileText("[a]\n" + endless + "=1").Value("a", endless), "1");
}

}  // namespace
}  // namespace pvw
