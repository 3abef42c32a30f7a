// The desktop's command line, as far as it goes without a display.

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/ioview/run_program.h"

namespace ioview::test {
namespace {

TEST(DesktopCommand, SaysWhatIsWrongInOneLine) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) ::unsetenv(variable);
  const std::string file = SOURCE_DIR "/examples/lumen3.io";
  struct Row {
    std::vector<std::string> arguments;
    std::string error;
  };
  const Row rows[] = {
      {{file}, "There is no display to show a window on; ioview dump and ioview script do without"},
      {{"nowhere.io"}, "nowhere.io: No such file or directory"},
      {{file, "more"}, "Unexpected argument 'more'; see ioview --help"},
      {{"--demo", "dump", file}, "dump excludes --demo; see ioview dump --help"},
      {{file, "--codepage", "5"}, "--codepage: '5' is not one of 65001, 1252, 932"},
  };
  for (const Row& row : rows) {
    const Outcome outcome = RunIoview(row.arguments);
    EXPECT_EQ(outcome.err, "ioview: " + row.error + '\n');
    EXPECT_EQ(outcome.status, 2) << row.error;
    EXPECT_EQ(outcome.out, "");
  }
  ::setenv("DISPLAY", ":4711", 1);
  const Outcome silent = RunIoview({file});
  ::unsetenv("DISPLAY");
  EXPECT_EQ(silent.err, "ioview: " + rows[0].error + '\n') << "one that doesn't answer";
  EXPECT_EQ(silent.status, 2);
}

}  // namespace
}  // namespace ioview::test
