#include "support/list_text.h"

#include <gmock/gmock.h>

#include "tests/support/scopes.h"

namespace pvw {
namespace {

struct Row {
  const char* name;
  std::string text;
  StringList pieces;
};

TEST(ListText, SplitsAtEachSeparator) {
  const test::CodePage page(932);  // `\x95\x5C` and `\x83\x7C` are one character each
  const Row rows[] = {
      {"no text is no piece", "", {}},
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

TEST(ListText, SplitsAroundEscapes) {
  const test::CodePage page(932);
  const Row rows[] = {
      {"no text is no piece, though it may have been one empty piece", "", {}},
      {"an escaped separator doesn't cut", "a\\&b&c", {"a&b", "c"}},
      {"an escaped escape stands for itself, and the separator cuts", "a\\\\&b", {"a\\", "b"}},
      {"an escape in front of anything else stays", "a\\b&c", {"a\\b", "c"}},
      {"empty pieces, and an escape at the end", "&\\&&\\", {"", "&", "\\"}},
      {"a trail byte like the escape doesn't escape", "\x95\x5C&b", {"\x95\x5C", "b"}},
      {"an escape in front of a double-byte character stays", "\\\x95\x5C&b", {"\\\x95\x5C", "b"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    StringList list = {"what was there before"};
    EXPECT_EQ(SplitEscapedList(row.text, list, '&', '\\'), row.pieces.size());
    EXPECT_EQ(list, row.pieces);
    SplitEscapedList(JoinEscapedList(row.pieces, '&', '\\'), list, '&', '\\');
    EXPECT_EQ(list, row.pieces) << "and back";
  }
}

TEST(ListText, AMillionPiecesTakeOneWalk) {
  StringList list;
  EXPECT_EQ(SplitEscapedList(std::string(1'000'000, '|'), list, '|', '\\'), 1'000'001u);
  EXPECT_EQ(JoinEscapedList(list, '|', '\\').size(), 1'000'000u);
}

TEST(ListText, FindsAndCopiesWholeCharacters) {
  const test::CodePage page(932);
  EXPECT_EQ(FindNthChar("a.b.c", '.', 2), 3u);
  EXPECT_EQ(FindNthChar("a.b.c", '.', 0), std::string_view::npos);
  const std::string text = "a\x95\x5Cz\x95\x5C";
  EXPECT_EQ(FindNthChar(text, '\\', 1), std::string_view::npos);
  EXPECT_EQ(LastCharacterOf(text), 4u);
  EXPECT_EQ(CopyUpTo(text, 0, 1), "a\x95\x5C") << "the last character is copied whole";
  EXPECT_EQ(CopyUpTo(text, 3, 1) + CopyUpTo(text, text.size(), text.size()), "");
  EXPECT_EQ(CopyUpTo(text, 3, text.size()), "z\x95\x5C");
}

TEST(ListText, AListGoesToTheHostAsVariantsOfTexts) {
  const test::CodePage page(932);
  platform::ScopedVariant out;
  StringListToVariant(StringList{"a", "\x95\x5C"}, out.Receive());
  EXPECT_EQ(out.Get().vt, 8200);
  ASSERT_EQ(platform::SafeArrayGetCount(out.Get().parray), 2u);
  const platform::VARIANT* last = platform::SafeArrayVariantAt(out.Get().parray, 1);
  ASSERT_TRUE(last != nullptr && last->vt == platform::VT_BSTR);
  EXPECT_EQ(platform::BstrText(last->bstrVal), "\x95\x5C");
}

}  // namespace
}  // namespace pvw
