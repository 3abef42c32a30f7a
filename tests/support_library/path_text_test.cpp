#include "support/path_text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/support/temp_dir.h"
#include "tests/support_library/scopes.h"

namespace pvw {
namespace {

// In page 932 `\x95\x5C` and `\x83\x7C` are one character each, with the trail bytes of a backslash and a
// bar.
class PathTextTest : public testing::Test {
 private:
  test::CodePage page_{932};
};

std::string LongPath(std::size_t bytes) {
  return "c:\\" + std::string(bytes - 3, 'x');
}

TEST_F(PathTextTest, KnowsFullPathsFromAllOthers) {
  struct Row {
    const char* name;
    std::string path;
    std::string is;  // what holds of valid text, drive path, UNC path, root and full path
  };
  const Row rows[] = {
      {"nothing", "", "-----"},
      {"a file in a directory", "c:\\a\\b.txt", "td--f"},
      {"a root is too short", "c:\\", "td-r-"},
      {"a root with its backslash doubled", "c:\\\\", "td---"},
      {"a path that goes up again", "c:\\a\\..\\b", "td---"},
      {"a doubled backslash inside", "c:\\a\\\\b", "td---"},
      {"a directory with its backslash", "c:\\a\\b\\", "td--f"},
      {"a drive without a backslash", "c:a\\b", "t----"},
      {"a digit for a drive", "1:\\a", "t----"},
      {"a second colon", "c:\\a:b", "-d---"},
      {"a relative path", "a\\b.txt", "t----"},
      {"any three characters", "a\x95\x5Cz", "t--r-"},
      {"a file on a share", "\\\\srv\\share\\x.io", "t-u-f"},
      {"a server alone", "\\\\srv\\", "t-ur-"},
      {"a server without a backslash", "\\\\srv", "t----"},
      {"three backslashes", "\\\\\\x", "t----"},
      {"the longest path", LongPath(259), "td--f"},
      {"a path that fits no buffer", LongPath(260), "td---"},
      {"a path over the limit", LongPath(261), "td---"},
      {"a trail byte like a bar", "c:\\\x83\x7C.io", "td--f"},
      {"a trail byte like a backslash at the end of a server", "\\\\s\x95\x5C", "t----"},
      {"a double-byte letter for a drive", "\x83\x41:\\a", "td---"},
  };
  for (const Row& row : rows) {
    std::string is;
    is += IsValidPathText(row.path) ? 't' : '-';
    is += IsDrivePath(row.path) ? 'd' : '-';
    is += IsUncPath(row.path) ? 'u' : '-';
    is += IsRootPath(row.path) ? 'r' : '-';
    is += IsValidFullPath(row.path) ? 'f' : '-';
    EXPECT_EQ(is, row.is) << row.name;
  }
  for (const char c : std::string_view("*?/<>|\"")) EXPECT_FALSE(IsValidPathText(std::string("a") + c)) << c;
}

TEST_F(PathTextTest, SplittingLeavesTheRestAloneWhenNothingFollows) {
  std::string head = "head", rest = "rest";
  EXPECT_FALSE(SplitDrivePath("\\\\srv\\x", head, rest) || SplitUncPath("c:\\x", head, rest));
  EXPECT_EQ(head + "|" + rest, "head|rest");
  EXPECT_TRUE(SplitDrivePath("d:\\", head, rest));
  EXPECT_EQ(head + "|" + rest, "d|rest");
  EXPECT_TRUE(SplitUncPath("\\\\srv\\s\\x", head, rest));
  EXPECT_EQ(head + "|" + rest, "srv|s\\x");
}

TEST_F(PathTextTest, CutsAPathAtItsLastBackslash) {
  struct Row {
    const char* name;
    std::string path, dir, file;
    bool valid = true;  // so that GetDirectoryOf gives the directory too
  };
  const Row rows[] = {
      {"a directory has no backslash at its end", "c:\\a\\b.txt", "c:\\a", "b.txt"},
      {"but the root has one", "c:\\b.txt", "c:\\", "b.txt"},
      {"a share lies in the root of its server", "\\\\srv\\share", "\\\\srv\\", "share"},
      {"a file on a share", "\\\\srv\\share\\x", "\\\\srv\\share", "x"},
      {"a trail byte doesn't cut", "c:\\d\\\x95\x5C.io", "c:\\d", "\x95\x5C.io"},
      {"a path that isn't valid is cut", "c:\\a\\..\\b", "c:\\a\\..", "b", false},
      {"a root isn't cut", "c:\\", "-", "-", false},
      {"a server isn't cut", "\\\\srv\\", "-", "-", false},
      {"a relative path isn't cut", "a\\y.dll", "-", "-", false},
  };
  for (const Row& row : rows) {
    std::string dir = "-", name = "-";
    EXPECT_EQ(SplitDirAndName(row.path, dir, name), row.dir != "-") << row.name;
    EXPECT_EQ(dir, row.dir) << row.name;
    EXPECT_EQ(name, row.file) << row.name;
    EXPECT_EQ(GetDirectoryOf(row.path), row.valid ? row.dir : "") << row.name;
  }
}

TEST_F(PathTextTest, JoinsWithExactlyOneBackslash) {
  EXPECT_EQ(JoinPath("c:\\a", "x"), "c:\\a\\x");
  EXPECT_EQ(JoinPath("c:\\", "x"), "c:\\x");
  EXPECT_EQ(JoinPath("c:\\a", "\\x"), "c:\\a\\x");
  EXPECT_EQ(JoinPath("c:\\a\\", "\\x"), "c:\\a\\x");
  EXPECT_EQ(JoinPath("c:\\a\\", "\\"), "c:\\a\\");
  EXPECT_EQ(JoinPath("", "PvwIOExtRes.dll"), "\\PvwIOExtRes.dll") << "from the root of the current drive";
  EXPECT_EQ(JoinPath("c:\\\x95\x5C", "x"), "c:\\\x95\x5C\\x") << "a trail byte at the end is no backslash";
}

TEST_F(PathTextTest, TakesNamesLeavesAndExtensions) {
  struct Row {
    const char* name;
    std::string path, file, leaf, extension;
  };
  const Row rows[] = {
      {"a full path", "c:\\a\\b.tar.gz", "b.tar.gz", "b.tar", "gz"},
      {"no backslash, so the first colon cuts", "c:d:b.io", "d:b.io", "d:b", "io"},
      {"a name that is all extension", "c:\\.io", ".io", "", "io"},
      {"a dot of a directory doesn't count", "c:\\a.b\\c", "c", "c", ""},
      {"a dot at the end", "c:\\a.", "a.", "a", ""},
      {"a directory", "c:\\a\\", "", "", ""},
      {"a trail byte like a backslash", "c:\\\x95\x5C.i", "\x95\x5C.i", "\x95\x5C", "i"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(GetFileNameOf(row.path), row.file) << row.name;
    EXPECT_EQ(GetFileLeafOf(row.path), row.leaf) << row.name;
    EXPECT_EQ(GetExtensionOf(row.path), row.extension) << row.name;
  }
  EXPECT_EQ(LowerCaseText("C:\\\x83\x41Z"), "c:\\\x83\x41z") << "a trail byte is no letter";
}

TEST_F(PathTextTest, TellsWhetherAFileIsThereAndWritable) {
  const test::TempDir dir;
  dir.Write("plain.io", "x");
  dir.Write("locked.io", "x");
  ::chmod(dir.Native("locked.io").c_str(), 0444);
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(dir.Native());
  struct Row {
    const char* name;
    std::string path;
    bool exists, writable;
  };
  const Row rows[] = {
      {"a file in another case", dir.Path("PLAIN.IO"), true, true},
      {"a file that is read only", dir.Path("locked.io"), true, false},
      {"a directory", dir.Path(), false, false},
      {"a file that doesn't exist could be made", dir.Path("new.io"), false, true},
      {"a name that no file can have", dir.Path("a?b"), false, false},
      {"a name alone lies in the current directory", "plain.io", true, true},
      {"so does a path from the root", "\\plain.io", true, true},
      {"a path that goes up isn't valid there either", "..\\plain.io", false, false},
      {"an empty name is the current directory", "", false, false},
  };
  for (const Row& row : rows) {
    bool writable = !row.writable;
    EXPECT_EQ(FileExistsAt(row.path, &writable), row.exists) << row.name;
    EXPECT_EQ(writable, row.writable) << row.name;
    EXPECT_EQ(FileExistsAt(row.path, nullptr), row.exists) << row.name;
  }
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace pvw
