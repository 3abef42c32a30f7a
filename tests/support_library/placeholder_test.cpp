#include <gmock/gmock.h>

#include <ctime>
#include <random>

#include "host/ids.h"
#include "support/placeholder_expander.h"
#include "tests/support/fake_host.h"
#include "tests/support_library/scopes.h"

namespace pvw {
namespace {

using test::FakeHost;
using testing::ElementsAre;

class PlaceholderTest : public testing::Test {
 protected:
  std::string Expand(std::string_view text) { return CPlaceholderExpander(&host).Expand(text); }

  FakeHost host;
  test::CodePage page{932};  // where `\x95\x5C` is one character, with the trail byte of a backslash
};

TEST_F(PlaceholderTest, FollowTheSyntaxToTheLetter) {
  struct Row {
    const char* name;
    std::string text, expanded;
  };
  const Row rows[] = {
      {"an open bracket alone is too short", "$(", "$("},
      {"so is an empty name at the end", "abcd$()", "abcd$()"},
      {"an empty name in front of text disappears", "$()x", "x"},
      {"one of two empty names is left", "$()$()", "$()"},
      {"a long name", "$(CONFIGDIR)\\x.io", "c:\\ws\\prj\\cfg\\x.io"},
      {"behind a dollar sign it is none", "$$(CONFIGDIR)", "$$(CONFIGDIR)"},
      {"nor behind two", "$$$(CONFIGDIR)x", "$$$(CONFIGDIR)x"},
      {"a dollar sign elsewhere doesn't matter", "$ $(TD)$(TD)", "$ c:\\tempc:\\temp"},
      {"the first bracket ends the name", "$(A$(B))", ")"},
      {"a bracket that nothing closes stays, with all behind it", "$(TD)$(TD $x", "c:\\temp$(TD $x"},
      {"an unknown name disappears", "$(NOSUCHNAME)\\x.io", "\\x.io"},
      {"names have one case", "$(configdir)", ""},
      {"a name to be asked for stays", "$(ui:Enter)$(uSErinputabc)", "$(ui:Enter)$(uSErinputabc)"},
      {"the error name disappears", "$(ERROR)x", "x"},
      {"names for a later stage get long", "$(LINE)$(LN)$(DE)", "$(LINE)$(LINE)$(DEVICEDETAILS)"},
      {"a name about a file stays without one", "$(FF)$(FILEDIR)", "$(FULLFILE)$(FILEDIR)"},
      {"the first of two short names wins", "$(PN)$(PAGENO)", "My Project$(PAGENO)"},
      {"double-byte characters around", "\x95\x5C$(ERROR)\x83\x41$(TD", "\x95\x5C\x83\x41$(TD"},
      {"a lead byte without its trail byte", "\x83$(TD\x83)\x83)", "\x83\x83)"},
  };
  for (const Row& row : rows) EXPECT_EQ(Expand(row.text), row.expanded) << row.name;
}

TEST_F(PlaceholderTest, AskTheHostForEachRow) {
  constexpr const char* kAll = "$(QBNDIR)|$(WORKSPDIR)|$(WN)|$(PROJDIR)|$(PN)|$(CONFIGDIR)|$(CONFIGNAME)";
  EXPECT_EQ(Expand(kAll), "c:\\qbn|c:\\ws|My Workspace|c:\\ws\\prj|My Project|c:\\ws\\prj\\cfg|Debug");
  host.ClearTranscript();
  EXPECT_EQ(Expand("$(PD)"), "c:\\ws\\prj");
  EXPECT_THAT(host.Transcript(),
              ElementsAre("GetService IQPathService", "GetService IQCustomPlaceholders",
                          "GetCurrentWorkspace", "GetCurrentProject", "GetProjectDirectory ws prj"));

  host.text_on_failure = "left behind";
  host.FailAll("GetInstallDirectory");
  host.FailAll("GetConfigurationDirectory");
  EXPECT_EQ(Expand("$(QD)|$(CD)|$(CN)"), "||Debug") << "a failing service gives nothing";
  host.paths.configuration.clear();
  EXPECT_EQ(Expand("$(CN)|$(PD)"), "$(CONFIGNAME)|c:\\ws\\prj") << "a name is missing";
  host.CloseWorkspace();
  EXPECT_EQ(Expand("$(WD)|$(PN)|$(CD)"), "$(WORKSPDIR)|$(PROJECTNAME)|$(CONFIGDIR)");
  host.Lack(IID_IQPathService);
  EXPECT_EQ(Expand("$(WD)|$(TD)"), "$(WORKSPDIR)|");
  const CPlaceholderExpander hostless(nullptr);
  EXPECT_EQ(hostless.Expand("$(CD)$(QD)$(MINE)"), "$(CONFIGDIR)");
  EXPECT_EQ(hostless.Expand("$(FF) $(FN) $(FL) $(FD) $(EX)", "c:\\a\\b.c.io"),
            "c:\\a\\b.c.io b.c.io b.c c:\\a io");
  EXPECT_EQ(hostless.Expand("$(FF)", ""), "") << "an empty file isn't no file";
}

TEST_F(PlaceholderTest, TenThousandOfThemKeepTheLastOne) {
  std::string text, expanded;
  for (int i = 0; i < 5'000; ++i) {
    text += "$(TD)$(ERROR)";
    expanded += "c:\\temp";
  }
  EXPECT_EQ(Expand(text), expanded + "$(ERROR)");
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

TEST_F(PlaceholderTest, AGlobalOneHidesTheWorkspacesUnlessItIsEmpty) {
  host.global_placeholders.entries = {
      {"both", "BOTH", "global"}, {"", "EMPTY", ""}, {"", "TWICE", "1"}, {"", "TWICE", "2"}};
  host.workspace_placeholders.entries = {
      {"other", "BOTH", "workspace"}, {"", "EMPTY", "filled"}, {"", "OWN", "own"}, {"", "TD", "never asked"}};
  EXPECT_EQ(Expand("$(BOTH)|$(EMPTY)|$(OWN)|$(TWICE)|$(TD)"), "global|filled|own|2|c:\\temp");

  CustomPlaceholderMap map;
  map["OWN"].value = "stays";
  map["BOTH"].value = "goes";
  CPlaceholderExpander(&host).CollectCustomPlaceholders(map);
  std::string found;
  for (const auto& [name, info] : map) found += name + "=" + info.value + info.description + ";";
  EXPECT_EQ(found, "BOTH=globalboth;EMPTY=;OWN=stays;TD=never asked;TWICE=2;");

  host.paths.open = false;
  EXPECT_EQ(Expand("$(BOTH)|$(OWN)"), "global|") << "without a workspace its list isn't asked for";
}

TEST_F(PlaceholderTest, ABadListOfCustomOnesIsEmpty) {
  host.global_placeholders.entries = {{"d", "N", "v"}};
  EXPECT_EQ(Expand("$(N)."), "v.");
  host.global_placeholders.stray_elements = 1;
  EXPECT_EQ(Expand("$(N)."), ".") << "a count that is no multiple of 4";
  host.global_placeholders.stray_elements = 0;
  host.global_placeholders.wrong_type = true;
  EXPECT_EQ(Expand("$(N)."), ".");
  host.global_placeholders.wrong_type = false;
  host.FailNext("GetGlobalPlaceholders");
  EXPECT_EQ(Expand("$(N)."), ".");
  host.Lack(IID_IQCustomPlaceholders);
  EXPECT_EQ(Expand("$(N)."), ".");
}

TEST_F(PlaceholderTest, AListOfCustomOnesMayHoldVariants) {
  platform::VARIANT list;
  list.vt = platform::VT_ARRAY | platform::VT_BSTR;
  list.parray = platform::SafeArrayCreateVector(platform::VT_VARIANT, 4);
  for (std::size_t i = 0; const char* text : {"description", "name", "value"}) {
    platform::VARIANT* element = platform::SafeArrayVariantAt(list.parray, i++);
    element->vt = platform::VT_BSTR;
    element->bstrVal = platform::NewBstr(text);
  }
  const CustomPlaceholderList entries = ReadCustomPlaceholders(list);
  list.vt = platform::VT_ARRAY | platform::VT_VARIANT;
  EXPECT_TRUE(ReadCustomPlaceholders(list).empty()) << "of another type";
  platform::VariantClear(&list);
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries[0].description + entries[0].name + entries[0].value, "descriptionnamevalue");
}

TEST_F(PlaceholderTest, ArentValidUnlessAllowedOrTheUsersOwn) {
  host.global_placeholders.entries = {{"", "MINE", ""}};
  host.workspace_placeholders.entries = {{"", "OURS", ""}};
  const CPlaceholderExpander expander(&host);
  // What stands behind the 0 isn't allowed, nor is the 0 itself.
  const std::uint32_t allowed[] = {kPlaceholderQbnDir, kPlaceholderUserInput, kPlaceholderProjectName, 0,
                                   kPlaceholderTempDir};
  for (const char* text : {"", "c:\\x.io", "$(QBNDIR)\\$(QD)", "$(ui what)", "$(MINE)$(OURS)", "$()",
                           "$$(CONFIGDIR)", "$(PN)", "$(QD)$("}) {
    EXPECT_TRUE(expander.ValidatePlaceholders(text, allowed)) << text;
  }
  for (const char* text :
       {"$()x", "$(QD)$(CONFIGDIR)", "$(PAGENO)", "$(TD)", "$(ERROR)", "$(qbndir)", "$(MINE$(QD))"}) {
    EXPECT_FALSE(expander.ValidatePlaceholders(text, allowed)) << text;
  }
  EXPECT_FALSE(CPlaceholderExpander(nullptr).ValidatePlaceholders("$(MINE)", allowed));

  std::string many;
  for (int i = 0; i < 200'000; ++i) many += "$(QD) ";
  EXPECT_TRUE(expander.ValidatePlaceholders(many, allowed));
  EXPECT_FALSE(expander.ValidatePlaceholders(many + "$(CD)", allowed)) << "there is no limit";
}

// The next placeholder of the whole text as it stands now, by its definition.
struct Found {
  std::size_t start, length;
  std::string name;
};
std::optional<Found> FindFrom(const std::string& text, std::size_t start) {
  for (std::size_t i = start; i + 4 <= text.size(); ++i) {
    if (text.substr(i, 2) != "$(" || (i > 0 && text[i - 1] == '$')) continue;
    const std::size_t close = text.find(')', i);
    if (close == std::string::npos) return std::nullopt;
    return Found{i, close + 1 - i, text.substr(i + 2, close - i - 2)};
  }
  return std::nullopt;
}

TEST_F(PlaceholderTest, OneWalkFindsWhatSearchesOfTheChangedTextFind) {
  std::map<std::string, std::string> values = {
      {"A", "$"}, {"AA", "x$"}, {"A$", ""}, {"", "$("}, {"$(A", ")"}};
  for (const auto& [name, value] : values) host.global_placeholders.entries.push_back({"", name, value});
  const CPlaceholderExpander expander(&host);
  std::mt19937 random(1);
  for (int round = 0; round < 5'000; ++round) {
    std::string text;
    for (std::size_t length = random() % 24; length > 0; --length) text += "$$((()A"[random() % 7];

    std::string expanded = text;
    for (std::size_t at = 0; const auto found = FindFrom(expanded, at);) {
      const std::string value = values.contains(found->name) ? values[found->name] : "";
      expanded.replace(found->start, found->length, value);
      at = found->start + value.size();
    }
    ASSERT_EQ(expander.Expand(text), expanded) << text;

    bool valid = true;
    for (std::string left = text; const auto found = FindFrom(left, 0);) {
      valid = valid && values.contains(found->name);
      left.erase(found->start, found->length);
    }
    ASSERT_EQ(expander.ValidatePlaceholders(text, {}), valid) << text;
  }
}

TEST_F(PlaceholderTest, HaveNamesAndLabelsFor1To35) {
  for (std::int32_t index = 1; index <= 35; ++index) {
    EXPECT_EQ(FindPlaceholderIndex(GetPlaceholderText(index, false)), index);
  }
  EXPECT_EQ(GetPlaceholderText(33, true) + GetPlaceholderLabel(33),
            "$(RIGHT)Align following text to the right");
  EXPECT_EQ(GetPlaceholderText(35, false) + GetPlaceholderLabel(35), "DEVICEDETAILSERROR");
  EXPECT_EQ(GetPlaceholderText(36, true) + GetPlaceholderLabel(36), "ERRORERROR");
  EXPECT_EQ(GetPlaceholderText(0, true) + GetPlaceholderLabel(-1), "ERRORERROR");
}

TEST_F(PlaceholderTest, StandForTheInnermostDirectoryInAPath) {
  EXPECT_EQ(ToPlaceholderForm(&host, "C:\\WS\\prj\\Cfg\\Port.IO"), "$(CONFIGDIR)\\Port.IO") << "in any case";
  EXPECT_EQ(ToPlaceholderForm(&host, "c:\\ws\\prj\\x.io"), "$(PROJDIR)\\x.io");
  EXPECT_EQ(ToPlaceholderForm(&host, "c:\\ws\\x.io"), "$(WORKSPDIR)\\x.io");
  EXPECT_EQ(ToPlaceholderForm(&host, "x:c:\\wsc:\\ws"), "x:$(WORKSPDIR)c:\\ws") << "anywhere, and once";
  EXPECT_EQ(ToPlaceholderForm(&host, "d:\\x.io"), "d:\\x.io");
  EXPECT_EQ(ToPlaceholderForm(nullptr, "c:\\ws\\x.io"), "c:\\ws\\x.io");

  host.paths.configuration_directory.clear();
  EXPECT_EQ(ToPlaceholderForm(&host, "c:\\ws\\prj\\x"), "$(PROJDIR)\\x") << "nothing isn't found everywhere";
  host.paths.configuration_directory = "\\A";
  EXPECT_EQ(ToPlaceholderForm(&host, "\x95\x5C\x41\\a"), "\x95\x5C\x41$(CONFIGDIR)") << "nor at a trail byte";
  host.paths.configuration_directory = "aab";
  EXPECT_EQ(ToPlaceholderForm(&host, "aAaB"), "a$(CONFIGDIR)") << "a match may begin inside another try";

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
