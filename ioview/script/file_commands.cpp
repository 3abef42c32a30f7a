// Files that change under the component, as another program would change them.

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "ioview/script/command_table.h"

namespace ioview {

namespace {

namespace fs = std::filesystem;

void Require(const std::error_code& error, const std::string& file) {
  if (error) throw ScriptError(OneLine(file) + ": " + error.message());
}

void Write(const std::string& file, std::string_view text) {
  std::error_code unknown;
  // Opening a pipe would wait for its other end.
  if (fs::is_fifo(file, unknown)) throw ScriptError(OneLine(file) + ": Not a regular file");
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  if (!out) throw ScriptError(OneLine(file) + ": Can't be written");
}

void Copy(const std::string& from, const std::string& to) {
  RequireReadableFile(from);
  std::error_code error;
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
  Require(error, to);
}

// An empty file where there is none, as such a program makes it.
void Touch(const std::string& file, std::int32_t seconds) {
  std::error_code error;
  if (!fs::exists(file, error)) Write(file, "");
  fs::last_write_time(file, fs::file_time_type::clock::now() + std::chrono::seconds(seconds), error);
  Require(error, file);
}

void Delete(const std::string& file) {
  std::error_code error;
  if (fs::is_directory(file, error)) throw ScriptError(OneLine(file) + ": Is a directory");
  const bool was_there = fs::remove(file, error);
  Require(error, file);
  if (!was_there) throw ScriptError(OneLine(file) + ": There is no such file");
}

void File(ScriptRun& run, Arguments& arguments) {
  enum class Verb { kCopy, kTouch, kDelete, kWrite };
  const Verb verb = arguments.Choice<Verb>(
      {{"copy", Verb::kCopy}, {"touch", Verb::kTouch}, {"delete", Verb::kDelete}, {"write", Verb::kWrite}});
  const std::string file = run.places.Native(arguments.Text());
  switch (verb) {
    case Verb::kCopy: {
      const std::string to = run.places.Native(arguments.Text());
      arguments.End();
      return Copy(file, to);
    }
    case Verb::kTouch: {
      const std::int32_t seconds = arguments.HasMore() ? arguments.SignedNumber() : 0;
      arguments.End();
      return Touch(file, seconds);
    }
    case Verb::kDelete:
      arguments.End();
      return Delete(file);
    case Verb::kWrite: {
      const std::string& text = arguments.Text();
      arguments.End();
      return Write(file, text);
    }
  }
}

constexpr ScriptCommand kCommands[] = {
    {"file", "copy FROM TO, touch FILE [SECONDS], delete FILE, or write FILE TEXT", File},
};

}  // namespace

std::span<const ScriptCommand> FileCommands() {
  return kCommands;
}

}  // namespace ioview
