#include "platform/base/text.h"

#include <gmock/gmock.h>

#include <vector>

#include "tests/platform/base/scratch.h"

namespace platform {
namespace {

using namespace std::string_literals;
using testing::PrintToString;

TEST(Conversion, AnyTwoBytesComeBackInEveryPage) {
  for (const unsigned page : {65001u, 1252u, 932u}) {
    const CodePageScope scope(page);
    int changed = 0;
    for (int pair = 0; pair < 0x10000; ++pair) {
      const std::string two = {static_cast<char>(pair >> 8), static_cast<char>(pair)};
      const std::u16string wide = ToWide(two);
      const std::string back = FromWide(wide);
      if (back == two) continue;
      ++changed;
      // Another code for the same character, never another text.
      EXPECT_EQ(ToWide(back), wide) << page << " " << PrintToString(two);
    }
    // Page 932 has two codes for some characters, one of which comes back for both.
    EXPECT_EQ(changed, page == 932 ? 398 : 0) << page;
  }
}

TEST(Conversion, GivesTheWideTextOfEachPage) {
  struct Row {
    const char* name;
    unsigned page;
    std::string text;
    std::u16string wide;
    bool lost = false;  // the text is what the wide one becomes, and doesn't lead back
  };
  const std::vector<Row> rows = {
      {"each length", 65001, "a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80", u"a\u00e9\u3042\U0001F600"},
      {"one past the last code point", 65001, "\xF4\x90\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80"},
      {"an overlong slash", 65001, "\xC0\xAF\xE0\x80\xAF", u"\xDCC0\xDCAF\xDCE0\xDC80\xDCAF"},
      {"an encoded surrogate", 65001, "\xED\xA0\x80", u"\xDCED\xDCA0\xDC80"},
      {"a character cut short by another and by the end", 65001, "\xE3\x81z\xF0\x9F",
       u"\xDCE3\xDC81z\xDCF0\xDC9F"},
      {"a zero inside", 65001, "a\0\xC3\xA9"s, u"a\0\u00e9"s},
      {"letters and a hole of the western page", 1252, "\x80\xE9\x81", u"\u20ac\u00e9\xDC81"},
      {"kana, half-width kana, kanji, and ASCII", 932, "\x82\xA0\xB1\x95\x5C\\~", u"\u3042\uff71\u8868\\~"},
      {"lead bytes without a character", 932, "\x82 \x85\x40\x82", u"\xDC82 \xDC85@\xDC82"},
      {"a lone high surrogate, also at the end", 65001, "a?z?", u"a\xD800z\xDBFF", true},
      {"a lone low surrogate that carries no byte", 65001, "??", u"\xDC7F\xDD00", true},
      {"a surrogate pair is one character", 1252, "?!", u"\U0001F600!", true},
      {"the yen sign doesn't turn into a backslash", 932, "?", u"\u00a5", true},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    EXPECT_EQ(ToWide(row.text) == row.wide, !row.lost) << row.name;
    EXPECT_EQ(FromWide(row.wide), row.text) << row.name;
  }
}

TEST(Walk, GoesByWholeCharactersBothWays) {
  struct Row {
    const char* name;
    unsigned page;
    std::string text;
    std::vector<std::size_t> lengths;
    std::size_t columns;
  };
  const std::vector<Row> rows = {
      {"UTF-8 of each length", 65001, "a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80", {1, 2, 3, 4}, 4},
      {"bytes without a meaning behind a character", 65001, "\xF0\x9F\x98\x80\x80\x80\xC3", {4, 1, 1, 1}, 4},
      {"trail bytes that look like ASCII and like lead bytes", 932, "\x83\x5C\x83\x83\x5C", {2, 2, 1}, 5},
      {"a lead byte at the end", 932, "a\x83\x83\x83", {1, 2, 1}, 4},
      {"a lead byte before a control character", 932, "\x83\x0A\x81\x7F\xB1", {1, 1, 1, 1, 1}, 5},
      {"a pair without a meaning", 932, "\x85\x40z", {2, 1}, 3},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    std::vector<std::size_t> lengths;
    std::size_t at = 0;
    std::size_t columns = 0;
    for (std::size_t bytes; (bytes = CharBytes(row.text, at)) != 0; at += bytes) {
      lengths.push_back(bytes);
      columns += CharColumns(row.text, at);
      EXPECT_EQ(PreviousChar(row.text, at + bytes), at) << row.name;
    }
    EXPECT_EQ(lengths, row.lengths) << row.name;
    EXPECT_EQ(CharCount(row.text), row.lengths.size()) << row.name;
    EXPECT_EQ(columns, row.columns) << row.name;
    EXPECT_EQ(ColumnCount(row.text), row.columns) << row.name;
  }
}

TEST(Find, APartOfALongerCharacterNeverMatches) {
  constexpr auto kNone = std::string_view::npos;
  EXPECT_TRUE(StartsWithNoCase("BitField", "bit"));
  EXPECT_FALSE(StartsWithNoCase("bi", "bit"));
  EXPECT_FALSE(StartsWithNoCase("\xC3\xA9", "\xC3"));
  EXPECT_EQ(FindChar("\xC3\xA9\xA9", '\xA9'), 2u);
  EXPECT_EQ(FindChar("abc", 'a', 9), kNone);
  const CodePageScope scope(932);
  EXPECT_FALSE(StartsWithNoCase("\x83\x5C", "\x83"));
  const std::string text = "\x95\x5C\\a\x83\x5C\x83\x7C";  // 5C and 7C are backslash and bar
  EXPECT_EQ(FindChar(text, '\\'), 2u);
  EXPECT_EQ(FindLastChar(text, '\\'), 2u);
  EXPECT_EQ(FindAnyChar(text, "|\\"), 2u);
  EXPECT_EQ(FindAnyChar(text, "|"), kNone);
  EXPECT_EQ(FindChar(text, '\x95'), kNone) << "a lead byte isn't a character";
  EXPECT_EQ(FindChar("\x95", '\x95'), 0u) << "alone it is one";
}

TEST(LetterCase, FollowsThePage) {
  struct Row {
    const char* name;
    unsigned page;
    std::string upper;
    std::string lower;
  };
  const std::vector<Row> rows = {
      {"ASCII, with the characters next to the letters", 65001, "@AZ[`{09", "@az[`{09"},
      {"Greek, Cyrillic, beyond the basic plane", 65001, "\u0391\u0416\U00010400", "\u03b1\u0436\U00010428"},
      {"bytes without a meaning stay", 65001, "A\xC3\xFF", "a\xC3\xFF"},
      {"western letters", 1252, "\xC9\x8A\x9F\xD7", "\xE9\x9A\xFF\xD7"},
      {"full-width letters", 932, "\x82\x60\x82\x79\x82\x7A", "\x82\x81\x82\x9A\x82\x7A"},
      {"a trail byte in the range of letters stays", 932, "\x83\x41Z", "\x83\x41z"},
      {"kana and Cyrillic of the Japanese page have no case", 932, "\xB1\x84\x40", "\xB1\x84\x40"},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    EXPECT_EQ(LowerCase(row.upper), row.lower) << row.name;
    EXPECT_EQ(UpperCase(row.lower), row.upper) << row.name;
  }
  const CodePageScope scope(1252);
  EXPECT_EQ(UpperCase("\xB5\xDF"), "\xB5\xDF") << "their upper case lies outside the page";
  EXPECT_TRUE(IsAlphaAt("\xE9", 0));
  for (const char* text : {"7", "\xD7", ""}) EXPECT_FALSE(IsAlphaAt(text, 0)) << text;
}

// Every text of up to two characters out of a hard set, against every other.
TEST(LetterCase, TextsAreEqualExactlyWhenTheirLowerCaseIs) {
  constexpr const char* kKelvin = "\xE2\x84\xAA";
  constexpr const char* kDottedI = "\xC4\xB0";
  const std::vector<std::string> pieces = {"",         "a",        "A",        "k",        "i",
                                           "@",        "`",        kKelvin,    kDottedI,   "\xC3\x89",
                                           "\xC3",     "\xA9",     "\xC3\xA9", "\x83\x61", "\x83\x41",
                                           "\x82\x60", "\x82\x81", "\x83",     "\xE9",     "\xC9"};
  for (const unsigned page : {65001u, 1252u, 932u}) {
    const CodePageScope scope(page);
    std::vector<std::string> texts;
    for (const std::string& first : pieces) {
      for (const std::string& second : pieces) texts.push_back(first + second);
    }
    for (const std::string& a : texts) {
      const std::string lower = LowerCase(a);
      EXPECT_EQ(CharCount(lower), CharCount(a)) << page << " " << PrintToString(a);
      for (const std::string& b : texts) {
        ASSERT_EQ(EqualNoCase(a, b), lower == LowerCase(b))
            << page << " " << PrintToString(a) << " " << PrintToString(b);
      }
    }
  }
}

}  // namespace
}  // namespace platform
