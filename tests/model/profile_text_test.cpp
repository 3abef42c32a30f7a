#include "model/profile_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <span>

#include "model/name_hash.h"
#include "platform/base/text.h"
#include "tests/model/scanning_reader.h"

namespace pvw {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Kind = ProfileLine::Kind;

// Sets the code page of the process for one test.
class CodePage {
 public:
  explicit CodePage(unsigned page) : m_before(platform::AnsiCodePage()) { platform::SetAnsiCodePage(page); }
  ~CodePage() { platform::SetAnsiCodePage(m_before); }

 private:
  unsigned m_before;
};

struct LineCase {
  const char* why;
  std::string_view line;
  Kind kind;
  std::string_view name = {};
  std::string_view value = {};
};

void ExpectLines(std::span<const LineCase> cases) {
  for (const LineCase& c : cases) {
    SCOPED_TRACE(c.why);
    const ProfileLine line = ParseProfileLine(c.line);
    EXPECT_EQ(line.kind, c.kind);
    EXPECT_EQ(line.name, c.name);
    EXPECT_EQ(line.value, c.value);
  }
}

TEST(ProfileLine, IsAHeaderAnEntryOrNothing) {
  const LineCase cases[] = {
      {"white space around and inside", " \t[ PORT A ]\r", Kind::kSection, "PORT A"},
      {"up to the last bracket", "[A]=[B]", Kind::kSection, "A]=[B"},
      {"text behind the last bracket doesn't count", "[A] x=1", Kind::kSection, "A"},
      {"an empty name", "[]", Kind::kSection, ""},
      {"no closing bracket, but an equals sign: an entry", "[x=1", Kind::kEntry, "[x", "1"},
      {"no closing bracket and no equals sign", "[PORT", Kind::kIgnored},
      {"a closing bracket at the front", "]=1", Kind::kEntry, "]", "1"},
      {"white space of every kind around key and value", " \t\v\fa b\t=\f c d \r", Kind::kEntry, "a b",
       "c d"},
      {"split at the first equals sign", "a=b=c", Kind::kEntry, "a", "b=c"},
      {"double quotes go", "a=\"P DATA\"", Kind::kEntry, "a", "P DATA"},
      {"single quotes go", "a='P DATA'", Kind::kEntry, "a", "P DATA"},
      {"blanks inside quotes stay", "a=\" x \"", Kind::kEntry, "a", " x "},
      {"one pair of quotes goes, no more", "a=\"\"x\"\"", Kind::kEntry, "a", "\"x\""},
      {"a quote at the front only", "a=\"x", Kind::kEntry, "a", "\"x"},
      {"a quote at the end only", "a=x'", Kind::kEntry, "a", "x'"},
      {"quotes that don't match", "a='x\"", Kind::kEntry, "a", "'x\""},
      {"one quote character is no pair", "a='", Kind::kEntry, "a", "'"},
      {"quotes round a key stay", "\"a\"=1", Kind::kEntry, "\"a\"", "1"},
      {"a semicolon inside isn't a comment", "a;b=1;2", Kind::kEntry, "a;b", "1;2"},
      {"a CR inside stays", "a=1\r2", Kind::kEntry, "a", "1\r2"},
      {"a zero byte ends the line's text", "a=1\0002"sv, Kind::kEntry, "a", "1"},
      {"white space", " \t\r", Kind::kIgnored},
      {"text without an equals sign", "PORT", Kind::kIgnored},
      {"no key", "=1", Kind::kIgnored},
      {"a blank key", "  =1", Kind::kIgnored},
      {"a comment that looks like an entry", ";x=1", Kind::kIgnored},
      {"a comment that looks like a header, blanks in front", " \t;[x]", Kind::kIgnored},
      {"a zero byte before the equals sign", "a\0=1"sv, Kind::kIgnored},
  };
  ExpectLines(cases);
}

TEST(ProfileLine, CutsValuesBehindTheQuotes) {
  const std::string longest(kMaxProfileValue, 'x');
  EXPECT_EQ(ParseProfileLine("a=" + longest + "y").value, longest);
  EXPECT_EQ(ParseProfileLine("a='" + longest + "y'").value, longest);
  EXPECT_EQ(ParseProfileLine("a='" + longest).value, "'" + longest.substr(1));
}

TEST(ProfileLine, LooksForBracketsByWholeCharacters) {
  // 83 5D is one character of page 932 whose second byte is a closing bracket, 83 5B one with an opening.
  const CodePage japanese(932);
  const LineCase cases[] = {
      {"the bracket is half a character", "[x\x83\x5D=1", Kind::kEntry, "[x\x83\x5D", "1"},
      {"the last whole bracket", "[\x83\x5D]\x83\x5D", Kind::kSection, "\x83\x5D"},
      {"half a character at the front", "\x83\x5B]=1", Kind::kEntry, "\x83\x5B]", "1"},
  };
  ExpectLines(cases);
  platform::SetAnsiCodePage(1252);
  EXPECT_EQ(ParseProfileLine("[x\x83\x5D=1").name, "x\x83") << "one byte a character";
}

TEST(ProfileText, FindsValues) {
  const struct {
    const char* why;
    std::string text;
    std::string_view section, key, value;
  } cases[] = {
      {"CR LF", "[a]\r\nx=1\r\ny=2\r\n", "a", "y", "2"},
      {"no line end at the end of the file", "[a]\nx=1", "a", "x", "1"},
      {"a lone CR ends no line", "[a]\rx=1\r[b]\rx=2", "b", "x", ""},
      {"names and keys without regard to case", "[Port]\nPData=1\n", "pORT", "pdATA", "1"},
      {"the first section of a name wins", "[a]\nx=1\n[A]\nx=2\n", "a", "x", "1"},
      {"a later section isn't merged", "[a]\nx=1\n[a]\ny=2\n", "a", "y", ""},
      {"a first section without entries wins too", "[a]\n[a]\nx=2\n", "a", "x", ""},
      {"the first entry of a key wins", "[a]\nx=1\nX=2\n", "a", "x", "1"},
      {"the first entry wins even when empty", "[a]\nx=\nx=2\n", "a", "x", ""},
      {"an entry above the first section belongs to none", "x=1\n[a]\n", "", "x", ""},
      {"a section with an empty name", "x=1\n[]\nx=2\n", "", "x", "2"},
      {"a missing key", "[a]\nx=1\n[b]\ny=2\n", "a", "y", ""},
      {"a key that is another's beginning", "[a]\nxy=1\n", "a", "x", ""},
      {"no text", "", "a", "x", ""},
      {"a byte order mark before a header", "\xEF\xBB\xBF[a]\nx=1\n", "a", "x", "1"},
      {"a byte order mark elsewhere is text", "\n\xEF\xBB\xBF[a]\nx=1\n", "a", "x", ""},
      {"a zero byte hides the rest of its line alone", "[a]\nx=1\0[b]\ny=2\n"s, "a", "y", "2"},
      {"letters beyond ASCII without regard to case", "[\xC3\x84]\n\xC3\xB6=1\n", "\xC3\xA4", "\xC3\x96",
       "1"},
      {"bytes without a meaning stand for themselves", "[\xFF]\n\xC3=1\n", "\xFF", "\xC3", "1"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_EQ(ProfileText(c.text).Value(c.section, c.key), c.value);
  }
}

TEST(ProfileNames, AreEqualWithoutRegardToCaseAndOnlyThen) {
  const struct {
    std::string_view a, b;
    bool equal;
  } cases[] = {
      {"Reg_[0]", "rEG_[0]", true},
      {"reg@", "reg`", false},
      {"reg", "reg0", false},
      {"", "a", false},
      {"abcdefgh1", "ABCDEFGH1", true},
      {"\xC3\x84x", "\xC3\xA4X", true},
      {"k", "\xE2\x84\xAA", true},  // the Kelvin sign, whose lower case is a letter of ASCII
      {"a\xC3\x84", "a\xC3\x85", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.a);
    EXPECT_EQ(NamesEqual(c.a, c.b), c.equal);
    EXPECT_EQ(NamesEqual(c.b, c.a), c.equal);
    EXPECT_EQ(NameHash(c.a) == NameHash(c.b), c.equal);
  }
  // The second byte of a character isn't a letter, whatever it looks like.
  const CodePage japanese(932);
  EXPECT_FALSE(NamesEqual("\x83\x61", "\x83\x41"));
  EXPECT_NE(NameHash("\x83\x61"), NameHash("\x83\x41"));
}

std::vector<std::string> Keys(const ProfileText& text, std::string_view name) {
  std::vector<std::string> keys;
  const ProfileText::Section* section = text.FindSection(name);
  for (std::size_t i = 0; section != nullptr && i < text.KeyCount(*section); ++i) {
    keys.emplace_back(text.KeyAt(*section, i));
  }
  return keys;
}

TEST(ProfileText, ListsKeysInOrderWithRepeats) {
  const ProfileText text("[a]\nz=1\n;c=1\n=2\ny=\nZ=3\nnone\n[b]\nq=1\n[a]\nx=1\n");
  EXPECT_THAT(Keys(text, "A"), ::testing::ElementsAre("z", "y", "Z"));
  EXPECT_THAT(Keys(text, "b"), ::testing::ElementsAre("q"));
  EXPECT_EQ(text.FindSection("c"), nullptr);
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
      ASSERT_EQ(Keys(text, section), test::ScanForKeys(bytes, section)) << section;
      for (const std::string& key : names) {
        ASSERT_EQ(text.Value(section, key), test::ScanForValue(bytes, section, key)) << section << " " << key;
      }
    }
  }
}

// Each is far above what a quadratic step would get through in the time that a test may take.
TEST(ProfileText, StaysLinearOnLargeTexts) {
  const std::size_t count = 100'000;
  std::string keys = "[a]\n", repeats = "[a]\n", sections, same;
  for (std::size_t i = 0; i < count; ++i) {
    keys += "k" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    repeats += "k=" + std::to_string(i) + "\n";
    sections += "[s" + std::to_string(i) + "]\nk=" + std::to_string(i) + "\n";
    same += "[s]\nk=" + std::to_string(i) + "\n";
  }
  const ProfileText flat(keys);
  for (std::size_t i = 0; i < count; i += 5) {
    ASSERT_EQ(flat.Value("a", "K" + std::to_string(i)), std::to_string(i));
  }
  EXPECT_EQ(ProfileText(repeats).Value("a", "k"), "0");
  EXPECT_EQ(ProfileText(sections).Value("s99999", "k"), "99999");
  EXPECT_EQ(ProfileText(same).Value("s", "k"), "0");

  const std::string endless(8u << 20, '[');
  EXPECT_EQ(ProfileText(endless).FindSection(""), nullptr);
  EXPECT_EQ(ProfileText("[a]\nk=" + endless).Value("a", "k"), endless.substr(0, kMaxProfileValue));
  EXPECT_EQ(ProfileText("[a]\n" + endless + "=1").Value("a", endless), "1");
}

}  // namespace
}  // namespace pvw
