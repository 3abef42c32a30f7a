#include "platform/base/text.h"

#include <gmock/gmock.h>

#include <vector>

#include "tests/platform/base/scratch.h"

namespace platform {
namespace {

using namespace std::string_literals;

std::string Hex(std::string_view bytes) {
  std::string hex;
  for (const char c : bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    hex += kDigits[static_cast<std::uint8_t>(c) >> 4];
    hex += kDigits[c & 15];
  }
  return hex;
}

TEST(CodePage, OnlyTheThreePagesCanBeSet) {
  const CodePageScope scope(1252);
  for (const unsigned page : {0u, 437u, 1253u, 65000u}) EXPECT_FALSE(SetAnsiCodePage(page)) << page;
  EXPECT_EQ(AnsiCodePage(), 1252u);
}

TEST(Conversion, AnyTwoBytesComeBackInEveryPage) {
  for (const unsigned page : {65001u, 1252u, 932u}) {
    const CodePageScope scope(page);
    int changed = 0;
    for (int first = 0; first < 256; ++first) {
      const std::string one(1, static_cast<char>(first));
      EXPECT_EQ(Hex(FromWide(ToWide(one))), Hex(one)) << page;
      for (int second = 0; second < 256; ++second) {
        const std::string two = one + static_cast<char>(second);
        const std::u16string wide = ToWide(two);
        const std::string back = FromWide(wide);
        if (back == two) continue;
        ++changed;
        // Another code for the same character, never another text.
        EXPECT_EQ(ToWide(back), wide) << page << " " << Hex(two);
      }
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
  };
  const std::vector<Row> rows = {
      {"a character of each length", 65001, "a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80",
       u"a\u00e9\u3042\U0001F600"},
      {"the last code point", 65001, "\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
      {"one past the last code point", 65001, "\xF4\x90\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80"},
      {"an overlong slash", 65001, "\xC0\xAF\xE0\x80\xAF", u"\xDCC0\xDCAF\xDCE0\xDC80\xDCAF"},
      {"an encoded surrogate", 65001, "\xED\xA0\x80", u"\xDCED\xDCA0\xDC80"},
      {"a character cut short by another", 65001,
       "\xE3\x81"
       "A",
       u"\xDCE3\xDC81"
       u"A"},
      {"a character cut short by the end", 65001, "\xF0\x9F\x98", u"\xDCF0\xDC9F\xDC98"},
      {"a zero inside", 65001, "a\0\xC3\xA9"s, u"a\0\u00e9"s},
      {"letters and a hole of the western page", 1252, "\x80\xE9\x81", u"\u20ac\u00e9\xDC81"},
      {"kana, half-width kana and kanji", 932, "\x82\xA0\xB1\x95\x5C", u"\u3042\uff71\u8868"},
      {"backslash and tilde of the Japanese page are ASCII", 932, "\\~", u"\\~"},
      {"a lead byte before a byte that can't trail", 932, "\x82 \x82", u"\xDC82 \xDC82"},
      {"a pair without a meaning", 932, "\x85\x40", u"\xDC85@"},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    EXPECT_EQ(ToWide(row.text), row.wide) << row.name;
    EXPECT_EQ(Hex(FromWide(row.wide)), Hex(row.text)) << row.name;
  }
}

TEST(Conversion, WhatAPageLacksBecomesAQuestionMark) {
  struct Row {
    const char* name;
    unsigned page;
    std::u16string wide;
    const char* text;
  };
  const std::vector<Row> rows = {
      {"a lone high surrogate", 65001, u"a\xD800z", "a?z"},
      {"a lone low surrogate that carries no byte", 65001, u"\xDC7F\xDD00", "??"},
      {"a high surrogate at the end", 65001, u"a\xDBFF", "a?"},
      {"a letter of another script", 1252, u"\u0416", "?"},
      {"a surrogate pair is one character", 1252, u"\U0001F600!", "?!"},
      {"the yen sign doesn't turn into a backslash", 932, u"\u00a5", "?"},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    EXPECT_EQ(FromWide(row.wide), row.text) << row.name;
  }
}

TEST(Conversion, Utf8IsTheEncodingOfNativeNames) {
  {
    const CodePageScope scope(932);
    EXPECT_EQ(ToUtf8("\x95\x5C.io"), "\u8868.io");
    EXPECT_EQ(FromUtf8("\u8868.io"), "\x95\x5C.io");
  }
  EXPECT_EQ(ToUtf8("\xFF\xC3\xA9"), "\xFF\xC3\xA9") << "nothing changes while the page is UTF-8";
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
      {"no text", 65001, "", {}, 0},
      {"UTF-8 of each length", 65001, "a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80", {1, 2, 3, 4}, 4},
      {"bytes without a meaning behind a character", 65001, "\xC3\xA9\xA9\xA9\xC3", {2, 1, 1, 1}, 4},
      {"a long run of continuation bytes", 65001, "\xF0\x9F\x98\x80\x80\x80", {4, 1, 1}, 3},
      {"western bytes", 1252, "\xC3\xA9\x81", {1, 1, 1}, 3},
      {"trail bytes that look like ASCII and like lead bytes", 932, "\x83\x5C\x83\x83\x5C", {2, 2, 1}, 5},
      {"a lead byte at the end", 932, "a\x83\x83\x83", {1, 2, 1}, 4},
      {"a lead byte before a control character", 932, "\x83\x0A\x81\x7F\xB1", {1, 1, 1, 1, 1}, 5},
      {"a pair without a meaning", 932, "\x85\x40z", {2, 1}, 3},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    std::vector<std::size_t> lengths;
    std::size_t at = 0;
    for (std::size_t bytes; (bytes = CharBytes(row.text, at)) != 0; at += bytes) {
      lengths.push_back(bytes);
      EXPECT_EQ(PreviousChar(row.text, at + bytes), at) << row.name;
    }
    EXPECT_EQ(lengths, row.lengths) << row.name;
    EXPECT_EQ(CharCount(row.text), row.lengths.size()) << row.name;
    EXPECT_EQ(ColumnCount(row.text), row.columns) << row.name;
    std::size_t columns = 0;
    for (at = 0; at < row.text.size(); at += CharBytes(row.text, at)) columns += CharColumns(row.text, at);
    EXPECT_EQ(columns, row.columns) << row.name;
    EXPECT_EQ(CharColumns(row.text, row.text.size()), 0u) << row.name;
    EXPECT_EQ(PreviousChar(row.text, 0), 0u) << row.name;
  }
}

TEST(Find, ATrailByteNeverMatches) {
  constexpr auto kNone = std::string_view::npos;
  const CodePageScope scope(932);
  const std::string text = "\x95\x5C\\a\x83\x5C\x83\x7C";  // 5C and 7C are backslash and bar
  EXPECT_EQ(FindChar(text, '\\'), 2u);
  EXPECT_EQ(FindChar(text, '\\', 3), kNone);
  EXPECT_EQ(FindLastChar(text, '\\'), 2u);
  EXPECT_EQ(FindAnyChar(text, "|\\"), 2u);
  EXPECT_EQ(FindAnyChar(text, "|"), kNone);
  EXPECT_EQ(FindChar(text, '\x95'), kNone) << "a lead byte isn't a character";
  EXPECT_EQ(FindChar("\x95", '\x95'), 0u) << "alone it is one";
}

TEST(Find, AByteOfALongerUtf8CharacterDoesNotMatch) {
  EXPECT_EQ(FindChar("\xC3\xA9\xA9", '\xA9'), 2u);
  EXPECT_EQ(FindLastChar("a.b.\xC3\xA9", '.'), 3u);
  EXPECT_EQ(FindChar("abc", 'a', 1), std::string_view::npos);
  EXPECT_EQ(FindChar("abc", 'a', 9), std::string_view::npos);
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
      {"Greek and Cyrillic", 65001, "\u0391\u0416", "\u03b1\u0436"},
      {"letters beyond the basic plane", 65001, "\U00010400", "\U00010428"},
      {"bytes without a meaning stay", 65001, "A\xC3\xFF", "a\xC3\xFF"},
      {"western letters", 1252, "\xC9\x8A\x9F\xD7", "\xE9\x9A\xFF\xD7"},
      {"full-width letters", 932, "\x82\x60\x82\x79\x82\x7A", "\x82\x81\x82\x9A\x82\x7A"},
      {"a trail byte in the range of letters stays", 932,
       "\x83\x41"
       "A",
       "\x83\x41"
       "a"},
      {"kana and Cyrillic of the Japanese page have no case", 932, "\xB1\x84\x40", "\xB1\x84\x40"},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    EXPECT_EQ(Hex(LowerCase(row.upper)), Hex(row.lower)) << row.name;
    EXPECT_EQ(Hex(UpperCase(row.lower)), Hex(row.upper)) << row.name;
    EXPECT_TRUE(EqualNoCase(row.upper, row.lower)) << row.name;
  }
  const CodePageScope scope(1252);
  EXPECT_EQ(UpperCase("\xB5\xDF"), "\xB5\xDF") << "their upper case lies outside the page";
}

// Every text of up to two characters out of a hard set, against every other.
TEST(LetterCase, TextsAreEqualExactlyWhenTheirLowerCaseIs) {
  const std::vector<std::string> pieces = {"",
                                           "a",
                                           "A",
                                           "k",
                                           "@",
                                           "`",
                                           "\xE2\x84\xAA" /* Kelvin */,
                                           "\xC3\x89",
                                           "\xC3\xA9",
                                           "\xC3",
                                           "\xA9",
                                           "\x83",
                                           "\x83\x61",
                                           "\x83\x41",
                                           "\x82\x60",
                                           "\x82\x81",
                                           "\xC4\xB0" /* dotted I */,
                                           "i",
                                           "\xE9",
                                           "\xC9"};
  for (const unsigned page : {65001u, 1252u, 932u}) {
    const CodePageScope scope(page);
    std::vector<std::string> texts;
    for (const std::string& first : pieces) {
      for (const std::string& second : pieces) texts.push_back(first + second);
    }
    for (const std::string& a : texts) {
      EXPECT_EQ(CharCount(LowerCase(a)), CharCount(a)) << page << " " << Hex(a);
      for (const std::string& b : texts) {
        const std::string lower_a = LowerCase(a);
        const std::string lower_b = LowerCase(b);
        ASSERT_EQ(EqualNoCase(a, b), lower_a == lower_b) << page << " " << Hex(a) << " " << Hex(b);
      }
    }
  }
}

TEST(LetterCase, APrefixEndsWithAWholeCharacter) {
  EXPECT_TRUE(StartsWithNoCase("BitField", "bit"));
  EXPECT_TRUE(StartsWithNoCase("bit", ""));
  EXPECT_FALSE(StartsWithNoCase("bi", "bit"));
  EXPECT_FALSE(StartsWithNoCase("\xC3\xA9", "\xC3"));
  const CodePageScope scope(932);
  EXPECT_FALSE(StartsWithNoCase("\x83\x5C", "\x83"));
}

TEST(Letters, ArePartOfThePage) {
  struct Row {
    const char* name;
    unsigned page;
    std::string text;
    bool letter;
  };
  const std::vector<Row> rows = {
      {"an ASCII letter", 65001, "z", true},
      {"a digit", 65001, "7", false},
      {"an accented letter", 65001, "\u00e9", true},
      {"a sign", 65001, "\u00d7", false},
      {"a byte without a meaning", 65001, "\xE9", false},
      {"a western letter", 1252, "\xE9", true},
      {"a kanji", 932, "\x95\x5C", true},
      {"a double-byte sign", 932, "\x81\x41", false},
      {"nothing", 65001, "", false},
  };
  for (const Row& row : rows) {
    const CodePageScope scope(row.page);
    EXPECT_EQ(IsAlphaAt(row.text, 0), row.letter) << row.name;
  }
}

}  // namespace
}  // namespace platform
