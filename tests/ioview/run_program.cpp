#include "tests/ioview/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "tests/support/temp_dir.h"

namespace ioview::test {

namespace {

constexpr unsigned kLongestRun = 120;  // seconds
constexpr int kNoStart = 127;

// In the child: gets no more than its arguments, and comes back only when the program can't be started.
void Become(std::vector<char*>& argv, const RunOptions& options, const char* out, const char* err) {
  const int in_file = open(options.input.c_str(), O_RDONLY);
  const int out_file = open(out, O_WRONLY | O_CREAT, 0600);
  const int err_file = open(err, O_WRONLY | O_CREAT, 0600);
  if (in_file < 0 || dup2(in_file, 0) < 0) return;
  if (out_file < 0 || err_file < 0 || dup2(out_file, 1) < 0 || dup2(err_file, 2) < 0) return;
  if (!options.directory.empty() && chdir(options.directory.c_str()) != 0) return;
  alarm(kLongestRun);
  execv(argv[0], argv.data());
}

}  // namespace

Outcome RunIoview(const std::string& command, const RunOptions& options) {
  const pvw::test::TempDir captured;
  const std::string out = options.output.empty() ? captured.Native("out").string() : options.output;
  const std::string err = captured.Native("err").string();
  std::vector<std::string> words = {options.program.empty() ? BINARY_DIR "/bin/ioview" : options.program};
  if (!command.empty()) words.emplace_back();
  for (const char c : command) c == '|' ? void(words.emplace_back()) : words.back().push_back(c);
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);

  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("can't fork");
  if (child == 0) {
    Become(argv, options, out.c_str(), err.c_str());
    _exit(kNoStart);
  }
  int status = 0;
  if (waitpid(child, &status, 0) != child) throw std::runtime_error("lost the program");
  Outcome outcome;
  outcome.status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  if (options.output.empty()) outcome.out = ReadFile(out);
  outcome.err = ReadFile(err);
  return outcome;
}

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't read " + path.string());
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace ioview::test
