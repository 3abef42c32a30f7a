#include "platform/base/paths.h"

#include <gmock/gmock.h>

#include <vector>

#include "tests/platform/base/scratch.h"

namespace platform {
namespace {

using namespace std::string_literals;
using testing::Eq;
using testing::Optional;

class PathsTest : public ScratchTest {};

TEST_F(PathsTest, TheNameThatMatchesExactlyWinsThenTheSmallest) {
  for (const char* name : {"Dev/Port.io", "Dev/PORT.io", "Dev/PORT.IO", "Dev/only.IO", "Dev/DANGLING",
                           "dev/late.io", "\u00c9t\u00e9/a"}) {
    Write(name);
  }
  std::filesystem::create_symlink("nowhere", Native("Dev/Dangling"));
  struct Row {
    const char* name;
    const char* path;
    const char* native;
  };
  const std::vector<Row> rows = {
      {"of several the smallest", R"(d:\Dev\port.io)", "Dev/PORT.IO"},
      {"the drive letter in upper case", R"(D:\Dev\ONLY.io)", "Dev/only.IO"},
      {"the directory is chosen before the name in it", R"(d:\dev\only.io)", "dev/only.io"},
      {"a missing name is kept as written", R"(d:\DEV\New.TXT)", "Dev/New.TXT"},
      {"behind a missing directory nothing is looked up", R"(d:\None\Dev\only.io)", "None/Dev/only.io"},
      {"a file in place of a directory", R"(d:\dev\LATE.io\X)", "dev/late.io/X"},
      {"letters outside ASCII", "d:\\\u00e9T\u00c9\\A", "\u00c9t\u00e9/a"},
      {"a link that leads nowhere is still the exact name", R"(d:\Dev\Dangling)", "Dev/Dangling"},
      {"dots, doubled and forward separators", R"(d:\\none\..\.\Dev/Port.io)", "Dev/Port.io"},
  };
  for (const Row& row : rows) EXPECT_THAT(ToNativePath(row.path), Optional(Native(row.native))) << row.name;
  EXPECT_THAT(ToNativePath(R"(d:\..\..\etc)"), Optional(Native("etc"))) << "a drive is never left";
  EXPECT_THAT(ToNativePath("d:\\"), Optional(root));
  EXPECT_THAT(ToNativePath("c:\\"), Optional("/"s));
}

TEST_F(PathsTest, SomePathsHaveNoNativeName) {
  for (const std::string& path :
       {R"(\\server\share\a)"s, "//server/share"s, R"(e:\a)"s, "e:a"s, "d:\\a\0b"s, ""s}) {
    EXPECT_EQ(ToNativePath(path), std::nullopt) << path;
  }
  SetDriveRoot('d', "");
  EXPECT_EQ(ToNativePath("d:\\a"), std::nullopt);
}

TEST_F(PathsTest, APathWithoutARootStartsAtTheCurrentDirectory) {
  Enter("Work/Sub");
  SetDriveRoot('e', "../../other");
  EXPECT_THAT(CurrentDirectory(), Optional(R"(d:\Work\Sub)"s));
  struct Row {
    const char* path;
    const char* native;
    const char* full;
  };
  const std::vector<Row> rows = {
      {"a.io", "Work/Sub/a.io", R"(d:\Work\Sub\a.io)"},
      {R"(\a.io)", "a.io", R"(d:\a.io)"},
      {"D:a.io", "Work/Sub/a.io", R"(d:\Work\Sub\a.io)"},
      {"d:", "Work/Sub", R"(d:\Work\Sub)"},
      {"e:a.io", "other/a.io", R"(e:\a.io)"},
      {R"(..\..\..\..\a.io)", "a.io", R"(d:\a.io)"},
  };
  for (const Row& row : rows) {
    EXPECT_THAT(ToNativePath(row.path), Optional(Native(row.native))) << row.path;
    EXPECT_THAT(FullPath(row.path), Optional(Eq(row.full))) << row.path;
  }
  Enter("back\\slash");
  EXPECT_EQ(CurrentDirectory(), std::nullopt) << "no path can name it";
  EXPECT_EQ(FullPath("a.io"), std::nullopt);
  EXPECT_THAT(ToNativePath("a.io"), Optional(Native("back\\slash/a.io")));
}

TEST_F(PathsTest, TheLongestRootNamesTheDrive) {
  SetDriveRoot('e', Native("in") + "/./deep//");
  std::filesystem::create_directories(Native("far/away"));
  std::filesystem::create_symlink("far/away", Native("link"));
  struct Row {
    const char* name;
    std::string native;
    std::string path;
  };
  const std::vector<Row> rows = {
      {"under the root of e:, which lies in that of d:", Native("in/deep/x"), R"(e:\x)"},
      {"a root itself", Native("in/deep"), "e:\\"},
      {"a name that only begins like a root", Native("in/deeper"), R"(d:\in\deeper)"},
      {"outside both", "/etc/hosts", R"(c:\etc\hosts)"},
      {"dots and doubled slashes", Native("a/./b//../c/"), R"(d:\a\c)"},
      {"the parent of a link is its target's", Native("link/../c"), R"(d:\far\c)"},
      {"bytes that aren't UTF-8", Native("\xFF\xC3"), "d:\\\xFF\xC3"},
  };
  for (const Row& row : rows) EXPECT_THAT(FromNativePath(row.native), Optional(row.path)) << row.name;

  SetDriveRoot('c', "");
  EXPECT_EQ(FromNativePath("/etc/hosts"), std::nullopt) << "under no drive's root";
  for (const std::string& native : {Native("a\\b"), "relative"s, ""s, Native("a\0b"s)}) {
    EXPECT_EQ(FromNativePath(native), std::nullopt) << native;
  }
}

TEST_F(PathsTest, NamesGoThroughThePage) {
  const std::string native = Write("\u8868/\u3042.io");
  const CodePageScope scope(932);
  const std::string path = "d:\\\x95\x5C\\\x82\xA0.io";
  EXPECT_THAT(FromNativePath(native), Optional(path));
  EXPECT_THAT(ToNativePath(path), Optional(native));
  EXPECT_THAT(FullPath("d:\\\x95\x5C\\..\\\x82\xA0"), Optional(Eq("d:\\\x82\xA0")));

  for (const char* name : {"\u00e9", "\u00a5", "\U0001F600", "x\x95/\x5C"}) {
    EXPECT_EQ(FromNativePath(Native(name)), std::nullopt) << name;
  }
  EXPECT_EQ(FromNativePath(Native("a\x95/b")), std::nullopt) << "the byte would swallow the backslash";
}

TEST(FullPathTest, IsLexical) {
  const std::pair<const char*, const char*> rows[] = {
      {R"(c:\\)", R"(c:\)"},
      {R"(c:/a/b/)", R"(c:\a\b\)"},
      {R"(c:\a\..\b)", R"(c:\b)"},
      {R"(c:\a\..\)", R"(c:\)"},
      {R"(c:\a.\b. .\c...)", R"(c:\a\b\c)"},
      {R"(c:\.a\..b)", R"(c:\.a\..b)"},
      {R"(q:x\..\y)", R"(q:\y)"},
      {R"(\\server\share\..\..\b)", R"(\\server\share\b)"},
      {R"(//server/share/a)", R"(\\server\share\a)"},
      {R"(\\server)", R"(\\server)"},
  };
  for (const auto& [path, full] : rows) EXPECT_THAT(FullPath(path), Optional(Eq(full))) << path;
  EXPECT_EQ(FullPath(""), std::nullopt);
  EXPECT_EQ(FullPath("c:\\a\0b"s), std::nullopt);
  const std::string longest = "c:\\" + std::string(256, 'a');
  EXPECT_THAT(FullPath(longest), Optional(longest));
  EXPECT_EQ(FullPath(longest + "a"), std::nullopt);
  EXPECT_THAT(FullPath(longest + "a\\..\\b"), Optional("c:\\b"s)) << "the result counts";
}

}  // namespace
}  // namespace platform
