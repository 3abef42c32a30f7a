// The program's commands from outside: options, files of all kinds, code pages, messages and exit status.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/ioview/run_program.h"
#include "tests/support/temp_dir.h"

namespace ioview::test {
namespace {

const std::string kHeading =
    "Name                              Address          Value            Access           \n" +
    std::string(500, '-') + '\n';
const std::string kModule = "-- M" + std::string(78, ' ') + '\n';

constexpr char kDevice[] = "[Modules]\nBaseAddress=0x1000\nModule1=M\n[M]\nR=1002 W I\nFIX=20 L A\n";
const std::string kSnapshot = "1.0&kit&0&2&B H'00000101 1 2&A H'00000100 1 1";
constexpr char kNoDisplay[] =
    "There is no display to show a window on; ioview dump and ioview script do without";

class Commands : public testing::Test {
 protected:
  using Refusals = std::vector<std::pair<std::string, std::string>>;  // commands, errors

  Commands() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) ::unsetenv(variable);
    dir_.Write("device.io", kDevice);
    dir_.Write("kit.io", "[Modules]\nModule1=M\n[M]\nA=100\nB=101\nW=102 W\n");
    dir_.Write("memory", "100: 01 02 12 34\n2002: 12 34\n20: 01 02 03 04\n");
    dir_.Write("before", kSnapshot + "\r\n");
  }
  Outcome Run(const std::string& command) const { return RunIoview(command, {.directory = dir_.Native()}); }
  void ExpectRefusals(const Refusals& refusals, const std::string& output = {}) const {
    for (const auto& [command, error] : refusals) {
      const Outcome outcome = RunIoview(command, {.directory = dir_.Native(), .output = output});
      EXPECT_EQ(outcome.err, "ioview: " + error + '\n') << command;
      EXPECT_EQ(outcome.out, "") << command;
      EXPECT_EQ(outcome.status, 2) << command;
    }
  }

  pvw::test::TempDir dir_;
};

TEST_F(Commands, WrongArgumentsAreRefusedInOneLine) {
  dir_.Write("bad.mem", "# fine\n1000: 12\n1004: 123\n");
  const std::string see = "; see ioview dump --help";
  const std::string no_hex = " is not a hexadecimal number of up to eight digits";
  ExpectRefusals({
      {"dumb|x.io", "Unknown command 'dumb'; see ioview --help"},
      {"--nope|dump|x.io", "Unknown option '--nope'; see ioview --help"},
      {"", "A command is required, such as dump; see ioview --help"},
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
      {"capture|kit.io|--registers|A,N", "--registers: There is no register 'N' in kit.io"},
      {"capture|kit.io|--registers=", "--registers: A register without a name can't be captured"},
      {"device.io", kNoDisplay},
      {"device.io|more", "Unexpected argument 'more'; see ioview --help"},
      {"--demo|dump|device.io", "dump excludes --demo; see ioview dump --help"},
      {"device.io|--codepage|5", "--codepage: '5' is not one of 65001, 1252, 932"},
  });
  ::setenv("DISPLAY", ":4711", 1);  // one that doesn't answer
  ExpectRefusals({{"device.io", kNoDisplay}});
  ::unsetenv("DISPLAY");
}

TEST_F(Commands, FilesThatCannotBeUsedAreRefused) {
  ASSERT_EQ(mkfifo(dir_.Native("pipe").c_str(), 0600), 0);  // nobody will write to it
  // The system's own path functions would take the last two for other files.
  const std::string long_name(250, 'n');
  for (const std::string name : {"back\\slash.io", "\u65E5.io", "dots. .", long_name.c_str()}) {
    dir_.Write(name, kDevice);
  }
  dir_.Write("huge.io", "");
  std::filesystem::resize_file(dir_.Native("huge.io"), (std::uintmax_t{1} << 30) + 1);
  dir_.Write("cut", kSnapshot.substr(0, kSnapshot.rfind('&')));
  dir_.Write("cut-inside", kSnapshot.substr(0, kSnapshot.rfind(' ')));
  dir_.Write("empty", "");
  const std::string part = ": This is no snapshot of `ioview capture`, or only a part of one";
  ExpectRefusals({
      {"dump|none.io", "none.io: No such file or directory"},
      {"nowhere.io", "nowhere.io: No such file or directory"},
      {"dump|no\nne.io", "no\\nne.io: No such file or directory"},
      {"dump|", "'': No such file or directory"},
      {"dump|.", ".: Is a directory"},
      {"dump|pipe", "pipe: Not a regular file"},
      {"dump|/proc/version", "/proc/version: Not a regular file"},
      {"dump|device.io/x", "device.io/x: Not a directory"},
      {"dump|huge.io", "huge.io: Larger than 1 GiB"},
      {"dump|back\\slash.io", "back\\slash.io: A path with a backslash in a name can't be opened"},
      {"dump|dots. .", "dots. .: A path with a name that ends in a dot or a blank can't be opened"},
      {"dump|" + long_name, long_name + ": Its path is too long: more than 259 bytes in the code page"},
      {"dump|device.io|--workspace=", "'': There is no such directory"},
      {"dump|\u65E5.io|--codepage|1252", "\u65E5.io: Its path has a character that code page 1252 lacks"},
      {"compare|kit.io|cut", "cut" + part},
      {"compare|kit.io|before|cut-inside", "cut-inside" + part},
      {"compare|kit.io|empty", "empty" + part},
      {"compare|kit.io|none", "none: No such file or directory"},
      {"compare|none.io|before", "none.io: No such file or directory"},
  });
  const std::string lost = "Standard output can't be written: No space left on device";
  ExpectRefusals({{"dump|device.io", lost}, {"--help", lost}}, "/dev/full");
}

TEST_F(Commands, ADumpTakesNamesAsTheyStandAndPassesBytesThrough) {
  for (const char* const name : {"-x", "dump", " .dots", "$(CONFIGDIR)", "\u00E4\u65E5.io"}) {
    dir_.Write(name, kDevice);
  }
  // 83 5C and 81 5C have a backslash as trail byte; a double-byte character takes two columns. The file's
  // name is made of such characters as well.
  dir_.Write("\u8868.io", "[Modules]\nModule1=\x83\x5C\x95\x5C\n[\x83\x5C\x95\x5C]\n\x81\x5C=0\n");
  dir_.Write("broken.io", "[Modules]\nModule1=\xFF\xC3\n");
  std::string noise;
  std::uint32_t state = 1;
  for (int i = 0; i < 300'000; ++i) noise += static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
  dir_.Write("noise.io", noise);
  struct {
    const char* command;
    std::string rows;
  } const cases[] = {
      {"--open|none|--|-x", "[+]" + kModule},
      {"--open|none|--|dump", "[+]" + kModule},
      {"--open|none| .dots", "[+]" + kModule},
      {"--open|none|$(CONFIGDIR)", "[+]" + kModule},
      {"--open|none|\u00E4\u65E5.io", "[+]" + kModule},
      {"device.io|--pane|selected|--selection|-M?{R?}|--open|none", "[+]" + kModule},
      {"device.io|--base|0x2000|--memory|memory",
       "[-]" + kModule +
           " | |--- R                         H'00002002       1234                              \n"
           " | |--- FIX                       H'00000020       01020304                          \n"},
      {"--endian=little|--memory=memory|--base=2000|device.io",
       "[-]" + kModule +
           " | |--- R                         H'00002002       3412                              \n"
           " | |--- FIX                       H'00000020       04030201                          \n"},
      {"\u8868.io|--codepage|932", "[-]-- \x83\x5C\x95\x5C" + std::string(75, ' ') + "\n | |--- \x81\x5C" +
                                       std::string(24, ' ') +
                                       "H'00000000       00                                \n"},
      {"noise.io|--open|all", ""},
      {"broken.io", " |--- \xFF\xC3" + std::string(77, ' ') + '\n'},
  };
  for (const auto& row : cases) {
    const Outcome outcome = Run(std::string("dump|") + row.command);
    EXPECT_EQ(outcome.out, kHeading + row.rows) << row.command;
    EXPECT_EQ(outcome.err, "") << row.command;
  }
}

TEST_F(Commands, RegistersAreCapturedInOrderAndComparedByStatusAndInWords) {
  dir_.Write("other", "1.0&kit&0&2&A H'00000200 1 1&W H'00000102 2 1234\n");
  struct {
    const char* command;
    std::string out;
    int status;
  } const cases[] = {
      {"capture|kit.io|--memory|memory|--registers|B,A|--registers|B", kSnapshot + '\n', 0},
      {"compare|kit.io|before|--memory|memory", "", 0},
      {"compare|kit.io|before",
       "Failed at B, register value is different: Src = 02, Dest = 00\n"
       "Failed at A, register value is different: Src = 01, Dest = 00\n",
       1},
      {"compare|kit.io|before|other",
       "B is not found in Dest\nFailed at A, address is different: Src = H'00000100, Dest = H'00000200\n"
       "W is not found in Src\n",
       1},
      {"compare|kit.io|before|other|--ignore-address", "B is not found in Dest\nW is not found in Src\n", 1},
  };
  for (const auto& row : cases) {
    const Outcome outcome = Run(row.command);
    EXPECT_EQ(outcome.out, row.out) << row.command;
    EXPECT_EQ(outcome.err, "") << row.command;
    EXPECT_EQ(outcome.status, row.status) << row.command;
  }
}

}  // namespace
}  // namespace ioview::test
