// How a script's lines become words, rows and keys, where whole scripts don't reach.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "ioview/script/key_names.h"
#include "ioview/script/opened_rows.h"
#include "ioview/script/row_path.h"
#include "ioview/script/script_error.h"
#include "ioview/script/script_reader.h"
#include "platform/base/text.h"
#include "platform/gui/messages.h"

namespace ioview::test {

namespace {

using testing::ElementsAre;

std::vector<std::string> Words(std::string_view line, bool steps = false) {
  std::vector<std::string> words;
  for (const ScriptWord& word : SplitWords(line, steps)) {
    words.push_back(word.ends_step ? "<" + word.text + ">" : word.text);
  }
  return words;
}

TEST(ScriptWords, StepsEndAtASemicolonOutsideOfQuotesAlone) {
  EXPECT_THAT(Words(R"(set 1 a;ok ; type 2 "x;y";)", true),
              ElementsAre("set", "1", "a", "<;>", "ok", "<;>", "type", "2", "x;y", "<;>"));
}

TEST(ScriptWords, AreCutBetweenWholeCharactersOfThePage) {
  platform::SetAnsiCodePage(932);
  // The trail bytes of both characters are those of a backslash and of a bar.
  EXPECT_THAT(Words("x \"\x95\x5C\" \x83\x7C"), ElementsAre("x", "\x95\x5C", "\x83\x7C"));
  EXPECT_THAT(SplitRowPath("\x95\x5C/a\\/b"), ElementsAre("\x95\x5C", "a/b"));
  platform::SetAnsiCodePage(65001);
  EXPECT_THROW(Words("x \"\x95\\\""), ScriptError) << "a quote behind a backslash doesn't close";
}

TEST(ScriptWords, LinesCountFromOneWithCommentsAndLineEndsOfEitherKind) {
  std::istringstream text("\xEF\xBB\xBF# first\r\n\r\n open \r\nanswer ok;ok\nrows all");
  ScriptReader reader(text);
  const auto open = reader.Next();
  ASSERT_TRUE(open);
  EXPECT_EQ(open->number, 3u);
  EXPECT_EQ(open->words.size(), 1u);
  EXPECT_EQ(reader.Next()->words.size(), 4u);
  EXPECT_EQ(reader.Next()->number, 5u);
  EXPECT_FALSE(reader.Next());
}

TEST(ScriptWords, ALineWithoutAnEndFillsNoMemory) {
  std::istringstream text("echo x\n" + std::string(ScriptReader::kLongestLine, ' ') + "\n# " +
                          std::string(ScriptReader::kLongestLine, 'x'));
  ScriptReader reader(text);
  EXPECT_TRUE(reader.Next());
  EXPECT_THROW(reader.Next(), ScriptError);
  EXPECT_EQ(reader.LineNumber(), 3u);
}

TEST(RowPaths, LeadToTheFirstRowThatFitsAllNames) {
  platform::SECTreeCtrl grid;
  const auto first = grid.InsertItem("PORT", -1);
  grid.InsertItem("A", -1, first);
  const auto second = grid.InsertItem("PORT", -1);
  const auto slash = grid.InsertItem("A/\\", -1, second);
  grid.InsertItem("", -1, slash);

  EXPECT_EQ(FindRow(grid, SplitRowPath(R"(PORT/A\/\\)")), slash);
  EXPECT_EQ(FindRow(grid, SplitRowPath(R"(PORT/A\/\\/)")), grid.GetChildItem(slash)) << "an empty name";
  EXPECT_EQ(FindRow(grid, SplitRowPath("port")), 0u);
  EXPECT_EQ(RowPath(grid, slash), R"(PORT/A\/\\)");
}

TEST(KeyNames, AreModifiersAndAKeyInAnyCase) {
  const struct {
    const char* name;
    platform::UINT key, modifiers;
  } rows[] = {{"f3", platform::VK_F3, 0},
              {"F12", platform::VK_F1 + 11, 0},
              {"Shift+Ctrl+Tab", platform::VK_TAB, platform::MK_CONTROL | platform::MK_SHIFT},
              {"Alt++", platform::VK_ADD, platform::MK_ALT},
              {"7", '7', 0}};
  for (const auto& row : rows) {
    const auto key = ParseKey(row.name);
    ASSERT_TRUE(key) << row.name;
    EXPECT_EQ(key->key, row.key) << row.name;
    EXPECT_EQ(key->modifiers, row.modifiers) << row.name;
  }
  for (const char* name : {"", "Ctrl", "Ctrl+", "F0", "F13", "F1x", "Enterr", "?"}) {
    EXPECT_FALSE(ParseKey(name)) << name;
  }
}

TEST(OpenedRows, CountWhatIsOpenUpToTheFirstRowThatIsStillToBeOpened) {
  platform::SECTreeCtrl grid;
  const auto first = grid.InsertItem("A", -1);
  const auto below = grid.InsertItem("B", -1, first);
  grid.InsertItem("C", -1, below);
  grid.InsertItem("leaf", -1, first);
  grid.InsertItem("without children", -1);
  const auto last = grid.InsertItem("D", -1);
  grid.InsertItem("E", -1, last);

  OpenedRows opened;
  EXPECT_EQ(opened.Count(grid), 0u);
  grid.Expand(first, platform::TVE_EXPAND);
  EXPECT_EQ(opened.Count(grid), 1u);
  grid.Expand(last, platform::TVE_EXPAND);
  EXPECT_EQ(opened.Count(grid), 1u) << "it stands behind one that is closed";
  grid.Expand(below, platform::TVE_EXPAND);
  EXPECT_EQ(opened.Count(grid), 3u);
}

}  // namespace

}  // namespace ioview::test
