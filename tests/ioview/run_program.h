// Runs the built host program as a user does, and gives what came back.
#pragma once

#include <filesystem>
#include <string>

namespace ioview::test {

struct Outcome {
  int status = -1;  // exit status; 128 and the signal's number for one that a signal ended
  std::string out;
  std::string err;
};

struct RunOptions {
  std::filesystem::path directory = {};  // to run in; empty: this one
  std::string output = {};               // a file in place of the collected standard output
  std::string input = "/dev/null";       // what standard input is opened on
  std::string program = {};              // a copy of the program; empty: the built one
};

// `|` separates the words of the command line. A run of more than two minutes is ended by a signal.
Outcome RunIoview(const std::string& command, const RunOptions& options = {});

std::string ReadFile(const std::filesystem::path& path);

}  // namespace ioview::test
