#include "support/command_util.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/fake_host.h"
#include "tests/support/scopes.h"
#include "tests/support/temp_dir.h"

namespace pvw {
namespace {

struct Row {
  const char* name;
  std::string path, result;
};

TEST(CommandUtil, ResolvesWhatTheUserTyped) {
  test::FakeHost host;
  const CCommandUtil paths(&host);
  const test::CodePage page(932);
  const Row rows[] = {
      {"a full path", "d:\\a\\x.io", "d:\\a\\x.io"},
      {"a name lies in the configuration's directory", "x.io", "c:\\ws\\prj\\cfg\\x.io"},
      {"a drive before a relative directory gives way", "d:a\\x.io", "c:\\ws\\prj\\cfg\\a\\x.io"},
      {"a placeholder that disappears leaves the directory", "$(NOSUCHNAME)", "c:\\ws\\prj\\cfg\\"},
      {"a path from the root goes to the current drive", "\\a\\x.io", "c:\\a\\x.io"},
      {"a trail byte is no backslash", "\x95\x5C.io", "c:\\ws\\prj\\cfg\\\x95\x5C.io"},
  };
  for (const Row& row : rows) EXPECT_EQ(paths.ResolvePath(row.path), row.result) << row.name;

  const test::TempDir current;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(current.Native());
  host.paths.configuration_directory = "d:\\";
  EXPECT_EQ(paths.ResolvePath("x.io"), "d:\\x.io") << "a base that ends in a backslash gets no other";
  host.FailNext("IsWorkspaceOpen");
  EXPECT_EQ(paths.ResolvePath("x.io"), "c:\\qbn\\x.io") << "the host's own directory comes second";
  host.paths.install.clear();
  EXPECT_EQ(paths.ResolvePath("x.io"), "d:\\x.io");
  host.CloseWorkspace();
  EXPECT_EQ(paths.ResolvePath("x.io"), current.Path("x.io")) << "with neither it is the current one";
  std::filesystem::current_path(before);
}

TEST(CommandUtil, BrowsesWhereThePathLies) {
  test::FakeHost host;
  const CCommandUtil paths(&host);
  EXPECT_EQ(paths.GetBrowseDirectory("$(PD)\\x.io"), "c:\\ws\\prj\\");
  EXPECT_EQ(paths.GetBrowseDirectory("\\a\\x.io"), "\\a\\") << "no drive";
  EXPECT_EQ(paths.GetBrowseDirectory("d:a\\x.io"), "c:\\ws\\prj\\cfg") << "relative, so without a backslash";
  host.CloseWorkspace();
  EXPECT_EQ(paths.GetBrowseDirectory(""), "$(CONFIGDIR)");
}

}  // namespace
}  // namespace pvw
