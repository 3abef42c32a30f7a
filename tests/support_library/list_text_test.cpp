#include "support/list_text.h"

#include <gmock/gmock.h>

#include "tests/support_library/scopes.h"

namespace pvw {
namespace {

// In page 932 `\x95\x5C` and `\x83\x7C` are one character each, with the trail bytes of a backslash and a
// bar.
class ListTextTest : public testing::Test {
 private:
  test::CodePage page_{932};
};

struct Row {
  const char* name;
  std::string text;
  StringList pieces;
};

TEST_F(ListTextTest, SplitsAtEachSeparator) {
  const Row rows[] = {
      {"no text is no piece", "", {}},
      {"one piece", "ab", {"ab"}},
      {"an empty piece in the middle stays", "a||b", {"a", "", "b"}},
      {"the piece behind the last separator counts", "a|", {"a", ""}},
      {"a trail byte like the separator doesn't cut", "\x83\x7C|b", {"\x83\x7C", "b"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    StringList list = {"what was there before"};
    EXPECT_EQ(SplitList(row.text, list, '|'), row.pieces.size());
    EXPECT_EQ(list, row.pieces);
    EXPECT_EQ(SplitArray(row.text, '|'), row.pieces);
    EXPECT_EQ(JoinList(list, '|'), row.text);
  }
}

TEST_F(ListTextTest, SplitsAroundEscapes) {
  const Row rows[] = {
      {"no text is no piece, though it may have been one empty piece", "", {}},
      {"an escaped separator doesn't cut", "a\\&b&c", {"a&b", "c"}},
      {"an escaped escape stands for itself, and the separator cuts", "a\\\\&b", {"a\\", "b"}},
      {"an escape in front of anything else stays", "a\\b&c", {"a\\b", "c"}},
      {"an escape at the end stays", "a&b\\", {"a", "b\\"}},
      {"empty pieces", "&\\&&", {"", "&", ""}},
      {"a trail byte like the escape doesn't escape", "\x95\x5C&b", {"\x95\x5C", "b"}},
      {"an escape in front of a double-byte character stays", "\\\x95\x5C&b", {"\\\x95\x5C", "b"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    StringList list = {"what was there before"};
    EXPECT_EQ(SplitEscapedList(row.text, list, '&', '\\'), row.pieces.size());
    EXPECT_EQ(list, row.pieces);
  }
}

TEST_F(ListTextTest, AnEscapedListComesBackAsItWas) {
  const StringList lists[] = {
      {"a&b", "\\", "&\\&"}, {"", "", ""}, {"\\\\", "x\\"}, {"\x95\x5C", "\x83\x7C&\\"}, {}};
  for (const StringList& list : lists) {
    StringList back;
    EXPECT_EQ(SplitEscapedList(JoinEscapedList(list, '&', '\\'), back, '&', '\\'), list.size());
    EXPECT_EQ(back, list);
  }
}

TEST_F(ListTextTest, AMillionPiecesTakeOneWalk) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += "\x95\x5C|";
  StringList list;
  EXPECT_EQ(SplitEscapedList(text, list, '|', '\\'), 1'000'001u);
  EXPECT_EQ(SplitList(text, list, '|'), 1'000'001u);
  EXPECT_EQ(JoinEscapedList(list, '|', '\\'), text);
  EXPECT_EQ(FindNthChar(text, '|', 1'000'000), text.size() - 1);
}

TEST_F(ListTextTest, FindsAndCopiesWholeCharacters) {
  EXPECT_EQ(FindNthChar("a.b.c", '.', 2), 3u);
  EXPECT_EQ(FindNthChar("a.b.c", '.', 0), std::string_view::npos);
  EXPECT_EQ(LastCharacterOf(""), 0u);
  const std::string text = "a\x95\x5Cz\x95\x5C";
  EXPECT_EQ(FindNthChar(text, '\\', 1), std::string_view::npos);
  EXPECT_EQ(LastCharacterOf(text), 4u);
  EXPECT_EQ(CopyUpTo(text, 0, 1), "a\x95\x5C") << "the last character is copied whole";
  EXPECT_EQ(CopyUpTo(text, 3, 1) + CopyUpTo(text, text.size(), text.size()), "");
  EXPECT_EQ(CopyUpTo(text, 3, text.size()), "z\x95\x5C");
}

TEST_F(ListTextTest, AListGoesToTheHostAsVariantsOfTexts) {
  platform::ScopedVariant out;
  StringListToVariant(StringList{"a", "", "\x95\x5C"}, out.Receive());
  EXPECT_EQ(out.Get().vt, 8200);
  StringList texts;
  for (std::size_t i = 0; i < platform::SafeArrayGetCount(out.Get().parray); ++i) {
    const platform::VARIANT* element = platform::SafeArrayVariantAt(out.Get().parray, i);
    ASSERT_TRUE(element != nullptr && element->vt == platform::VT_BSTR);
    texts.push_back(platform::BstrText(element->bstrVal));
  }
  EXPECT_THAT(texts, testing::ElementsAre("a", "", "\x95\x5C"));
}

}  // namespace
}  // namespace pvw
