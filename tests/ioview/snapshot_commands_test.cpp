// `ioview capture` and `ioview compare` from outside, as a build server runs them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/ioview/run_program.h"
#include "tests/support/temp_dir.h"

namespace ioview::test {
namespace {

const std::string kSnapshot = "1.0&device&0&2&B H'00000101 1 2&A H'00000100 1 1";

class SnapshotCommands : public testing::Test {
 protected:
  void SetUp() override {
    dir_.Write("device.io", "[Modules]\nModule1=M\n[M]\nA=100\nB=101\nW=102 W\n");
    dir_.Write("memory", "100: 01 02 12 34\n");
    dir_.Write("before", kSnapshot + "\r\n");
  }
  Outcome Run(const std::string& command) {
    std::vector<std::string> words(1);
    for (const char c : command) c == ' ' ? void(words.emplace_back()) : words.back().push_back(c);
    return RunIoview(words, {.directory = dir_.Native()});
  }

  pvw::test::TempDir dir_;
};

TEST_F(SnapshotCommands, ACaptureHasItsRegistersOnceAndInOrder) {
  const Outcome outcome = Run("capture device.io --memory memory --registers B,A --registers B");
  EXPECT_EQ(outcome.out, kSnapshot + '\n');
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(SnapshotCommands, AComparisonSaysWhatDiffersByItsStatusAndInWords) {
  dir_.Write("other", "1.0&device&0&2&A H'00000200 1 1&W H'00000102 2 1234\n");
  struct {
    const char* command;
    const char* out;
  } const cases[] = {
      {"compare device.io before --memory memory", ""},
      {"compare device.io before",
       "Failed at B, register value is different: Src = 02, Dest = 00\n"
       "Failed at A, register value is different: Src = 01, Dest = 00\n"},
      {"compare device.io before other",
       "B is not found in Dest\nFailed at A, address is different: Src = H'00000100, Dest = H'00000200\n"
       "W is not found in Src\n"},
      {"compare device.io before other --ignore-address", "B is not found in Dest\nW is not found in Src\n"},
  };
  for (const auto& row : cases) {
    const Outcome outcome = Run(row.command);
    EXPECT_EQ(outcome.out, row.out) << row.command;
    EXPECT_EQ(outcome.status, *row.out == '\0' ? 0 : 1) << row.command;
  }
}

TEST_F(SnapshotCommands, WhatCannotBeComparedIsNoSuccess) {
  dir_.Write("cut", kSnapshot.substr(0, kSnapshot.rfind('&')));
  dir_.Write("cut-inside", kSnapshot.substr(0, kSnapshot.rfind(' ')));
  dir_.Write("empty", "");
  const std::string part = ": This is no snapshot of `ioview capture`, or only a part of one";
  const std::pair<std::string, std::string> cases[] = {
      {"compare device.io cut", "cut" + part},
      {"compare device.io before cut-inside", "cut-inside" + part},
      {"compare device.io empty", "empty" + part},
      {"compare device.io none", "none: No such file or directory"},
      {"compare none.io before", "none.io: No such file or directory"},
      {"capture device.io --registers A,N", "--registers: There is no register 'N' in device.io"},
      {"capture device.io --registers=", "--registers: A register without a name can't be captured"},
  };
  for (const auto& [command, error] : cases) {
    const Outcome outcome = Run(command);
    EXPECT_EQ(outcome.err, "ioview: " + error + '\n') << command;
    EXPECT_EQ(outcome.out, "") << command;
    EXPECT_EQ(outcome.status, 2) << command;
  }
}

}  // namespace
}  // namespace ioview::test
