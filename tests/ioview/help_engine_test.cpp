// Help through an engine that is there, by the built program: the help file has to lie beside the component,
// so the program runs as a copy.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/ioview/run_program.h"
#include "tests/support/temp_dir.h"

namespace ioview::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kAskInEachDialog =
    "device $EXAMPLE\n"
    "system help engine.so\n"
    "open\n"
    "expand all PORT\n"
    "key all F1\n"
    "answer key 9001 F1; cancel\ncommand 32773\n"
    "answer key 13014 F1; cancel\ncommand 32820\n"
    "answer key 13007 F1; cancel\ncommand 32819\n"
    "answer key 312 F1; cancel\ndouble-click all PORT/PDATA\n"
    "answer key 13002 F1; cancel\ntest details\n";

// Of a help file, what the engine is asked for: a control's number in the lower half, its dialog's in the
// upper one behind the highest bit.
std::string Asked(const std::string& file) {
  std::string lines;
  for (const auto& [dialog, control, title] :
       {std::tuple(9003u, 9001u, "Set I/O File"), std::tuple(11006u, 13014u, "Find"),
        std::tuple(11005u, 13007u, "Select IO Register"), std::tuple(300u, 312u, "Edit PDATA at H'00FF0041"),
        std::tuple(11001u, 13002u, "Edit Test IO registers")}) {
    lines += std::string("dialog: ") + title + "\nhelp: " + file + ' ' +
             std::to_string(1u << 31 | dialog << 16 | control) + '\n';
  }
  return lines;
}

TEST(HelpEngine, IsAskedForTheTopicOfTheControlInEachDialog) {
  const pvw::test::TempDir dir;
  const fs::path bin = BINARY_DIR "/bin";
  for (const char* const file : {"ioview", "PvwIO.dll", "PvwIOExtRes.dll", "ioview_help.so"}) {
    fs::copy_file(bin / file, dir.Native(file));
  }
  // Hands calls on to nobody.
  fs::copy_file(bin / "ioview_help.so", dir.Native("engine.so"));
  std::string script = kAskInEachDialog;
  script.replace(script.find("$EXAMPLE"), 8, SOURCE_DIR "/examples/lumen1.io");
  dir.Write("help.script", script);
  const RunOptions options{.directory = dir.Native(), .program = dir.Native("ioview").string()};

  dir.Write("PvwIO.chm", "");
  EXPECT_EQ(RunIoview("script|help.script", options).out, Asked(dir.Path("PvwIO.chm::/CONTEXT.TXT")));
}

}  // namespace

}  // namespace ioview::test
