#include "support/path_text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/scopes.h"
#include "tests/support/temp_dir.h"

namespace pvw {
namespace {

// In page 932 `\x95\x5C` is one character, with the trail byte of a backslash.
struct PathTextTest : testing::Test {
  const test::CodePage page{932};
};

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
      {"a doubled backslash inside", "c:\\a\\\\b", "td---"},
      {"a drive without a backslash", "c:a\\b", "t----"},
      {"a digit for a drive", "1:\\a", "t----"},
      {"a second colon", "c:\\a:b", "-d---"},
      {"any three characters", "a\x95\x5Cz", "t--r-"},
      {"a file on a share", "\\\\srv\\share\\x.io", "t-u-f"},
      {"a server alone", "\\\\srv\\", "t-ur-"},
      {"the longest path", "c:\\" + std::string(256, 'x'), "td--f"},
      {"a path that fits no buffer", "c:\\" + std::string(257, 'x'), "td---"},
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

TEST_F(PathTextTest, CutsAPathAtItsLastBackslashAndAtItsLastDot) {
  struct Row {
    const char* name;
    std::string path, dir, file, leaf, extension;  // dir "-": SplitDirAndName gives none
  };
  const Row rows[] = {
      {"a directory has no backslash at its end", "c:\\a\\b.tar.gz", "c:\\a", "b.tar.gz", "b.tar", "gz"},
      {"but the root has one", "c:\\.io", "c:\\", ".io", "", "io"},
      {"a share lies in the root of its server", "\\\\srv\\share", "\\\\srv\\", "share", "share", ""},
      {"a trail byte doesn't cut", "c:\\d\\\x95\x5C.i", "c:\\d", "\x95\x5C.i", "\x95\x5C", "i"},
      {"a dot of a directory doesn't count", "c:\\a.b\\c", "c:\\a.b", "c", "c", ""},
      {"a root", "c:\\", "-", "", "", ""},
      {"a relative path", "a\\y.dll", "-", "y.dll", "y", "dll"},
      {"no backslash, so the first colon cuts", "c:d:b.io", "-", "d:b.io", "d:b", "io"},
  };
  for (const Row& row : rows) {
    std::string dir = "-", name = row.file;
    EXPECT_EQ(SplitDirAndName(row.path, dir, name), row.dir != "-") << row.name;
    EXPECT_EQ(dir, row.dir) << row.name;
    EXPECT_EQ(name, row.file) << row.name;
    EXPECT_EQ(GetDirectoryOf(row.path), row.dir == "-" ? "" : row.dir) << row.name;
    EXPECT_EQ(GetFileNameOf(row.path), row.file) << row.name;
    EXPECT_EQ(GetFileLeafOf(row.path), row.leaf) << row.name;
    EXPECT_EQ(GetExtensionOf(row.path), row.extension) << row.name;
  }
}

TEST_F(PathTextTest, JoinsWithExactlyOneBackslash) {
  EXPECT_EQ(JoinPath("c:\\a", "x"), "c:\\a\\x");
  EXPECT_EQ(JoinPath("c:\\", "x"), "c:\\x");
  EXPECT_EQ(JoinPath("c:\\a\\", "\\x"), "c:\\a\\x");
  EXPECT_EQ(JoinPath("", "PvwIOExtRes.dll"), "\\PvwIOExtRes.dll") << "from the root of the current drive";
  EXPECT_EQ(JoinPath("c:\\\x95\x5C", "x"), "c:\\\x95\x5C\\x") << "a trail byte at the end is no backslash";
}

TEST_F(PathTextTest, TellsWhetherAFileIsThereAndWritable) {
  const test::TempDir dir;
  dir.Write("plain.io", "x");
  ::chmod(dir.Native("plain.io").c_str(), 0444);
  struct Row {
    const char* name;
    std::string path;
    bool exists, writable;
  };
  const Row rows[] = {
      {"a file that is read only", dir.Path("plain.io"), true, false},
      {"a directory", dir.Path(), false, false},
      {"a file that doesn't exist could be made", dir.Path("new.io"), false, true},
      {"a name that no file can have", dir.Path("a?b"), false, false},
  };
  for (const Row& row : rows) {
    bool writable = !row.writable;
    EXPECT_EQ(FileExistsAt(row.path, &writable), row.exists) << row.name;
    EXPECT_EQ(writable, row.writable) << row.name;
  }
}

}  // namespace
}  // namespace pvw
