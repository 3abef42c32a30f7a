#include <gmock/gmock.h>

#include <ctime>

#include "support/placeholder_expander.h"
#include "tests/support/fake_host.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

class PlaceholderTest : public testing::Test {
 protected:
  std::string Expand(std::string_view text) { return CPlaceholderExpander(&host).Expand(text); }

  test::FakeHost host;
  test::CodePage page{932};  // where `\x95\x5C` is one character, with the trail byte of a backslash
};

TEST_F(PlaceholderTest, FollowTheSyntaxToTheLetter) {
  struct Row {
    const char* name;
    std::string text, expanded;
  };
  const Row rows[] = {
      {"an empty name at the end is too short", "abcd$()", "abcd$()"},
      {"an empty name in front of text disappears", "$()x", "x"},
      {"one of two empty names is left", "$()$()", "$()"},
      {"behind dollar signs it is none", "$$(CONFIGDIR)$$$(CONFIGDIR)x", "$$(CONFIGDIR)$$$(CONFIGDIR)x"},
      {"a value's dollar sign hides the next one", "$(DOLLAR)$(TD)", "$$(TD)"},
      {"a value begins none", "$(DOLLAR)(TD)$(OPEN)TD)", "$(TD)$(TD)"},
      {"a dollar sign elsewhere doesn't matter", "$ $(TD)$(TD)", "$ c:\\tempc:\\temp"},
      {"a bracket that nothing closes stays, with all behind it", "$(TD)$(TD $x", "c:\\temp$(TD $x"},
      {"a name to be asked for stays", "$(ui:Enter)$(uSErinputabc)", "$(ui:Enter)$(uSErinputabc)"},
      {"names for a later stage get long", "$(LINE)$(LN)$(DE)", "$(LINE)$(LINE)$(DEVICEDETAILS)"},
      {"a name about a file stays without one", "$(FF)$(FILEDIR)", "$(FULLFILE)$(FILEDIR)"},
      {"the first of two short names wins", "$(PN)$(PAGENO)", "My Project$(PAGENO)"},
      {"double-byte characters around", "\x95\x5C$(ERROR)\x83\x41$(TD", "\x95\x5C\x83\x41$(TD"},
      {"a lead byte without its trail byte", "\x83$(TD\x83)\x83)", "\x83\x83)"},
  };
  host.global_placeholders.entries = {{"", "DOLLAR", "$"}, {"", "OPEN", "$("}};
  for (const Row& row : rows) EXPECT_EQ(Expand(row.text), row.expanded) << row.name;
}

TEST_F(PlaceholderTest, AskTheHostForEachRow) {
  constexpr const char* kAll = "$(QBNDIR)|$(WORKSPDIR)|$(WN)|$(PROJDIR)|$(PN)|$(CONFIGDIR)|$(CONFIGNAME)";
  EXPECT_EQ(Expand(kAll), "c:\\qbn|c:\\ws|My Workspace|c:\\ws\\prj|My Project|c:\\ws\\prj\\cfg|Debug");
  host.text_on_failure = "left behind";
  host.FailAll("GetInstallDirectory");
  host.FailAll("GetConfigurationDirectory");
  EXPECT_EQ(Expand("$(QD)|$(CD)|$(CN)"), "||Debug") << "a failing service gives nothing";
  host.paths.configuration.clear();
  EXPECT_EQ(Expand("$(CN)|$(PD)"), "$(CONFIGNAME)|c:\\ws\\prj") << "a name is missing";
  host.CloseWorkspace();
  EXPECT_EQ(Expand("$(WD)|$(PN)|$(CD)"), "$(WORKSPDIR)|$(PROJECTNAME)|$(CONFIGDIR)");
  const CPlaceholderExpander hostless(nullptr);
  EXPECT_EQ(hostless.Expand("$(CD)$(QD)$(MINE)"), "$(CONFIGDIR)");
  EXPECT_EQ(hostless.Expand("$(FF) $(FN) $(FL) $(FD) $(EX)", "c:\\a\\b.c.io"),
            "c:\\a\\b.c.io b.c.io b.c c:\\a io");
}

TEST_F(PlaceholderTest, TenThousandOfThemKeepTheLastOne) {
  std::string text;
  for (int i = 0; i < 10'000; ++i) text += "$(ERROR)";
  EXPECT_EQ(Expand(text + "x"), "$(ERROR)x");
}

TEST_F(PlaceholderTest, TakeValuesFromTheSystem) {
  test::SystemAnswers system;
  system->user = std::string(199, 'u');
  system->system_directory = std::string(260, 's');
  EXPECT_EQ(Expand("$(WINDIR)|$(USER)|$(WS)"),
            "c:\\windows|" + system->user + "|" + system->system_directory);
  system->user += 'u';
  system->system_directory += 's';
  EXPECT_EQ(Expand("$(UR)|$(WINSYSDIR)"), "|") << "what doesn't fit has no value";

  const auto now = [] {
    const std::time_t seconds = std::time(nullptr);
    char text[100];
    return std::string(text, std::strftime(text, sizeof text, "%H:%M:%S|%B %d, %Y|%d/%m/%Y|%m/%d/%Y|%Y/%m/%d",
                                           std::localtime(&seconds)));
  };
  std::string before, expanded;
  do {  // until no second has gone by in between
    before = now();
    expanded = Expand("$(TIME)|$(DATE_TEXT)|$(DATE_DMY)|$(DM)|$(DY)");
  } while (before != now());
  EXPECT_EQ(expanded, before);
}

TEST_F(PlaceholderTest, TheLastOfANameCountsAndNoneHidesTheHostsOwn) {
  host.global_placeholders.entries = {{"", "TWICE", "1"}, {"", "TWICE", "2"}};
  host.workspace_placeholders.entries = {{"", "OWN", "own"}, {"", "TD", "never asked"}};
  EXPECT_EQ(Expand("$(TWICE)|$(OWN)|$(TD)"), "2|own|c:\\temp");
  host.paths.open = false;
  EXPECT_EQ(Expand("$(OWN)"), "") << "without a workspace its list isn't asked for";
}

TEST_F(PlaceholderTest, ABadListOfCustomOnesIsEmpty) {
  test::FakePlaceholderList& list = host.global_placeholders;
  const std::vector<test::FakePlaceholder> one = {{"d", "N", "v"}};
  for (const test::FakePlaceholderList& bad : {test::FakePlaceholderList{one, 1, false}, {one, 0, true}}) {
    list = bad;
    EXPECT_EQ(Expand("$(N)."), ".") << "a count that is no multiple of 4, or another type";
  }
  list = {one, 0, false};
  EXPECT_EQ(Expand("$(N)."), "v.");
  host.FailNext("GetGlobalPlaceholders");
  EXPECT_EQ(Expand("$(N)."), ".");
}

TEST_F(PlaceholderTest, ArentValidUnlessAllowedOrTheUsersOwn) {
  host.global_placeholders.entries = {{"", "MINE", ""}};
  host.workspace_placeholders.entries = {{"", "OURS", ""}};
  const CPlaceholderExpander expander(&host);
  // What stands behind the 0 isn't allowed, nor is the 0 itself.
  const std::uint32_t allowed[] = {kPlaceholderQbnDir, kPlaceholderUserInput, kPlaceholderProjectName, 0,
                                   kPlaceholderTempDir};
  for (const char* text : {"", "c:\\x.io", "$(ui what)", "$(MINE)$(OURS)", "$()", "$(PN)"}) {
    EXPECT_TRUE(expander.ValidatePlaceholders(text, allowed)) << text;
  }
  for (const char* text : {"$()x", "$(PAGENO)", "$(TD)", "$(ERROR)", "$(MINE$(QD))"}) {
    EXPECT_FALSE(expander.ValidatePlaceholders(text, allowed)) << text;
  }
  std::string many;
  for (int i = 0; i < 200'000; ++i) many += "$(QD) ";
  EXPECT_FALSE(expander.ValidatePlaceholders(many + "$(CD)", allowed)) << "there is no limit";
}

TEST_F(PlaceholderTest, HaveNamesAndLabelsFor1To35) {
  for (std::int32_t i = 1; i <= 35; ++i) EXPECT_EQ(FindPlaceholderIndex(GetPlaceholderText(i, false)), i);
  EXPECT_EQ(GetPlaceholderText(35, false) + GetPlaceholderLabel(35), "DEVICEDETAILSERROR");
  EXPECT_EQ(GetPlaceholderText(0, true) + GetPlaceholderLabel(-1), "ERRORERROR");
}

TEST_F(PlaceholderTest, StandForTheInnermostDirectoryInAPath) {
  EXPECT_EQ(ToPlaceholderForm(&host, "x:c:\\wsc:\\ws"), "x:$(WORKSPDIR)c:\\ws") << "anywhere, and once";
  host.paths.configuration_directory.clear();
  EXPECT_EQ(ToPlaceholderForm(&host, "c:\\ws\\prj\\x"), "$(PROJDIR)\\x") << "nothing isn't found everywhere";
  host.paths.configuration_directory = "\\A";
  EXPECT_EQ(ToPlaceholderForm(&host, "\x95\x5C\x41\\a"), "\x95\x5C\x41$(CONFIGDIR)") << "nor at a trail byte";
  const test::CodePage utf8(65001);
  host.paths.configuration_directory =
      "c:\\\xC4\xB1\xC8\xBF";  // dotless i, swash s: other lengths in upper case
  EXPECT_EQ(ToPlaceholderForm(&host, "c:\\I\xE2\xB1\xBE\\\xC4\xB1.io"), "$(CONFIGDIR)\\\xC4\xB1.io");
  host.paths.configuration_directory = std::string(100'000, 'a') + "b";
  EXPECT_EQ(ToPlaceholderForm(&host, std::string(400'000, 'A') + "B"),
            std::string(300'000, 'A') + "$(CONFIGDIR)")
      << "a text that nearly matches everywhere takes one search";
}

}  // namespace
}  // namespace pvw
