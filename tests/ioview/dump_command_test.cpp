// `ioview dump` from outside: options, files of all kinds, code pages, messages and exit status.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/ioview/run_program.h"
#include "tests/support/temp_dir.h"

namespace ioview::test {
namespace {

using testing::StartsWith;

const std::string kHeading =
    "Name                              Address          Value            Access           \n" +
    std::string(500, '-') + '\n';

constexpr char kDevice[] = "[Modules]\nBaseAddress=0x1000\nModule1=M\n[M]\nR=1002 W I\nFIX=20 L A\n";

class DumpCommand : public testing::Test {
 protected:
  // Runs in the test's directory, which holds `device.io`.
  Outcome Dump(std::vector<std::string> arguments, RunOptions options = {}) {
    arguments.insert(arguments.begin(), "dump");
    options.directory = dir_.Native();
    return RunIoview(arguments, options);
  }
  void SetUp() override { dir_.Write("device.io", kDevice); }

  pvw::test::TempDir dir_;
};

void ExpectRefusal(const Outcome& outcome, const std::string& error, const std::string& what) {
  EXPECT_EQ(outcome.err, "ioview: " + error + '\n') << what;
  EXPECT_EQ(outcome.out, "") << what;
  EXPECT_EQ(outcome.status, 2) << what;
}

// The words of a command line, which `|` separates.
std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words(1);
  for (const char c : text) c == '|' ? void(words.emplace_back()) : words.back().push_back(c);
  return words;
}

TEST_F(DumpCommand, RefusesWrongArgumentsInOneLine) {
  dir_.Write("bad.mem", "# fine\n1000: 12\n1004: 123\n");
  const std::string see = "; see ioview dump --help";
  const std::string no_hex = " is not a hexadecimal number of up to eight digits";
  const std::pair<std::string, std::string> cases[] = {
      {"dumb|x.io", "Unknown command 'dumb'; see ioview --help"},
      {"--nope|dump|x.io", "Unknown option '--nope'; see ioview --help"},
      {"dump", "FILE is required" + see},
      {"dump|--nope", "Unknown option '--nope'" + see},  // rather than that FILE is missing
      {"dump|x.io|y.io|z.io", "Unexpected argument 'y.io'" + see},
      {"dump|x.io|--base", "--base: 1 required HEX missing" + see},
      {"dump|x.io|--base|1|--base|2", "--base: At Most 1 required but received 2" + see},
      {"dump|x.io|--base|12g", "--base: '12g'" + no_hex},
      {"dump|x.io|--base=", "--base: ''" + no_hex},
      {"dump|x.io|--endian|middle", "--endian: 'middle' is not one of big, little"},
      {"dump|x.io|--endian|" + std::string(59, 'x') + "\u65E5",
       "--endian: '" + std::string(59, 'x') + "...' is not one of big, little"},
      {"dump|x.io|--pane|x\ny", "--pane: 'x\\ny' is not one of all, selected"},
      {"dump|x.io|--memory|none.mem", "none.mem: No such file or directory"},
      {"dump|x.io|--memory|bad.mem", "bad.mem:3: '123' is not a byte of one or two hexadecimal digits"},
  };
  for (const auto& [command, error] : cases) {
    ExpectRefusal(RunIoview(Words(command), {.directory = dir_.Native()}), error, command);
  }
  EXPECT_EQ(RunIoview({}).err, "ioview: A command is required, such as dump; see ioview --help\n");
}

TEST_F(DumpCommand, RefusesFilesThatCannotBeOpened) {
  ASSERT_EQ(mkfifo(dir_.Native("pipe").c_str(), 0600), 0);  // nobody will write to it
  dir_.Write("back\\slash.io", kDevice);
  dir_.Write("\u65E5.io", kDevice);
  // The system's own path functions would take both for other files.
  const std::string long_name(250, 'n');
  for (const std::string& name : {std::string("dots. ."), long_name}) dir_.Write(name, kDevice);
  dir_.Write("huge.io", "");
  std::filesystem::resize_file(dir_.Native("huge.io"), (std::uintmax_t{1} << 30) + 1);
  const std::pair<std::string, std::string> cases[] = {
      {"none.io", "none.io: No such file or directory"},
      {"no\nne.io", "no\\nne.io: No such file or directory"},
      {"", "'': No such file or directory"},
      {".", ".: Is a directory"},
      {"pipe", "pipe: Not a regular file"},
      {"/proc/version", "/proc/version: Not a regular file"},
      {"device.io/x", "device.io/x: Not a directory"},
      {"huge.io", "huge.io: Larger than 1 GiB"},
      {"back\\slash.io", "back\\slash.io: A path with a backslash in a name can't be opened"},
      {"dots. .", "dots. .: A path with a name that ends in a dot or a blank can't be opened"},
      {long_name, long_name + ": Its path is too long: more than 259 bytes in the code page"},
      {"device.io|--workspace=", "'': There is no such directory"},
      {"\u65E5.io|--codepage|1252", "\u65E5.io: Its path has a character that code page 1252 lacks"},
  };
  for (const auto& [arguments, error] : cases) {
    ExpectRefusal(Dump(Words(arguments)), error, arguments);
  }
}

TEST_F(DumpCommand, SaysThatItsOutputIsLost) {
  for (const std::string command : {"dump|device.io", "--help"}) {
    ExpectRefusal(RunIoview(Words(command), {.directory = dir_.Native(), .output = "/dev/full"}),
                  "Standard output can't be written: No space left on device", command);
  }
}

TEST_F(DumpCommand, TakesFilesAndSelectionsOfAnyNameAsTheyStand) {
  for (const std::string name : {"-x", "dump", " .dots", "$(CONFIGDIR)", "\u00E4\u65E5.io"}) {
    dir_.Write(name, kDevice);

    const Outcome outcome = Dump({"--open", "none", "--", name});

    EXPECT_EQ(outcome.out, kHeading + "[+]-- M" + std::string(78, ' ') + '\n') << name;
    EXPECT_EQ(outcome.err, "") << name;
  }
  EXPECT_EQ(Dump({"device.io", "--pane", "selected", "--selection", "-M?{R?}", "--open", "none"}).out,
            kHeading + "[+]-- M" + std::string(78, ' ') + '\n');
}

TEST_F(DumpCommand, MovesTheDeviceAndTurnsItsBytes) {
  dir_.Write("m", "2002: 12 34\n20: 01 02 03 04\n");
  const std::string module = "[-]-- M" + std::string(78, ' ') + '\n';

  EXPECT_EQ(Dump({"device.io", "--base", "0x2000", "--memory", "m"}).out,
            kHeading + module +
                " | |--- R                         H'00002002       1234                              \n"
                " | |--- FIX                       H'00000020       01020304                          \n");
  EXPECT_EQ(Dump({"--endian=little", "--memory=m", "--base=2000", "device.io"}).out,
            kHeading + module +
                " | |--- R                         H'00002002       3412                              \n"
                " | |--- FIX                       H'00000020       04030201                          \n");
}

TEST_F(DumpCommand, PrintsTheMessagesOfTheFileAndGoesOn) {
  dir_.Write("bad.io",
             "[Modules]\nFileVersion=2\nModule1=EMPTY\nModule2=BAD\nModule3=GOOD\n[EMPTY]\nx=1\n"
             "[BAD]\nreg0=R0\nreg1=R1\n[R0]\nid=A%1B 12 X Y Z\n[R1]\nid=R1 0x1\n[GOOD]\nreg0=R1\n");

  const Outcome outcome = Dump({"bad.io"});

  // A name with a percent sign shows as it stands.
  EXPECT_THAT(outcome.err,
              StartsWith("message [stop]: Error in I/O file: bit field description of register "
                         "'EMPTY' not found.\nmessage: 'A%1B' Register Address format is wrong.\\n"));
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 5);
  EXPECT_EQ(outcome.out,
            kHeading + " |--- EMPTY" + std::string(74, ' ') + "\n |--- BAD" + std::string(76, ' ') +
                "\n[-]-- GOOD" + std::string(75, ' ') +
                "\n | |--- R1                        H'00000001       00                                \n");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(DumpCommand, PassesTheBytesOfTheCodePageThrough) {
  // 83 5C and 81 5C have a backslash as trail byte; a double-byte character takes two columns.
  const std::string name = "\u8868.io";  // its name is made of such characters as well
  dir_.Write(name, "[Modules]\nModule1=\x83\x5C\x95\x5C\n[\x83\x5C\x95\x5C]\n\x81\x5C=0\n");
  const Outcome sjis = Dump({name, "--codepage", "932"});
  EXPECT_EQ(sjis.out, kHeading + "[-]-- \x83\x5C\x95\x5C" + std::string(75, ' ') + "\n | |--- \x81\x5C" +
                          std::string(24, ' ') + "H'00000000       00                                \n");

  dir_.Write("broken.io", "[Modules]\nModule1=\xFF\xC3\n");
  EXPECT_EQ(Dump({"broken.io"}).out, kHeading + " |--- \xFF\xC3" + std::string(77, ' ') + '\n');
}

TEST_F(DumpCommand, AnswersJunkWithAHeadingAndNoMore) {
  std::string noise;
  std::uint32_t state = 1;
  for (int i = 0; i < 300'000; ++i) noise += static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
  const std::pair<const char*, std::string> files[] = {
      {"an empty file", ""},
      {"noise", noise},
      {"an endless header", '[' + std::string(5'000'000, ']')},
      {"a module without a name", "[Modules]\nModule1=\nModule2=X\n"},
  };
  for (const auto& [what, text] : files) {
    dir_.Write("junk.io", text);
    const Outcome outcome = Dump({"junk.io", "--open", "all"});
    EXPECT_EQ(outcome.out, kHeading) << what;
    EXPECT_EQ(outcome.err, "") << what;
    EXPECT_EQ(outcome.status, 0) << what;
  }
}

}  // namespace
}  // namespace ioview::test
