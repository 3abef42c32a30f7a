#include "ioview/store/json_file.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "ioview/program_error.h"
#include "platform/base/files.h"

namespace ioview {

namespace {

namespace fs = std::filesystem;

constexpr int kMostAside = 10'000;

// Of brackets outside of texts; what isn't JSON gives any number.
int Nesting(std::string_view json) {
  int depth = 0;
  int deepest = 0;
  bool in_text = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const char c = json[i];
    if (in_text) {
      if (c == '\\') ++i;
      in_text = c != '"';
    } else if (c == '"') {
      in_text = true;
    } else if (c == '[' || c == '{') {
      deepest = std::max(deepest, ++depth);
      if (deepest > kDeepestNesting) break;
    } else if (c == ']' || c == '}') {
      --depth;
    }
  }
  return deepest;
}

bool IsMissing(const std::string& native) {
  std::error_code error;
  return native.empty() || fs::status(native, error).type() == fs::file_type::not_found;
}

}  // namespace

Json ReadJsonFile(const std::string& native) {
  if (IsMissing(native)) return Json::object();
  const std::optional<platform::FileContents> file = platform::ReadNativeFile(native);
  if (!file) throw FileFault("it can't be read");
  const std::string& bytes = file->bytes;
  if (bytes.size() > kLargestStoreFile) throw FileFault("it is larger than 64 MiB");
  if (Nesting(bytes) > kDeepestNesting) throw FileFault("it is nested too deeply");
  Json json;
  try {
    json = Json::parse(bytes);
  } catch (const Json::out_of_range&) {
    throw FileFault("it holds a number beyond all bounds");
  } catch (const Json::parse_error& error) {
    const std::size_t end = std::min(error.byte, bytes.size());
    const auto line_feeds = std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(end), '\n');
    throw FileFault("it isn't JSON from line " + std::to_string(line_feeds + 1) + " on");
  }
  if (!json.is_object()) throw FileFault("it holds no object");
  return json;
}

std::optional<std::string> KeepAside(const std::string& native) {
  std::error_code unknown;
  if (!fs::is_regular_file(native, unknown)) return std::nullopt;
  for (int count = 1; count <= kMostAside; ++count) {
    const std::string aside = native + ".bad" + (count > 1 ? std::to_string(count) : "");
    std::error_code error;
    if (fs::symlink_status(aside, error).type() != fs::file_type::not_found) continue;
    fs::rename(native, aside, error);
    return error ? std::nullopt : std::optional(aside);
  }
  return std::nullopt;
}

bool WriteJsonFile(const std::string& native, Json object, const FileShape& shape, std::string& why) {
  std::optional<std::string> aside;
  const auto fail = [&](const std::string& reason) {
    why = FileWord(native) + " can't be written: " + reason;
    std::error_code ignored;
    if (aside) fs::rename(*aside, native, ignored);
    return false;
  };
  if (native.empty()) return fail("it has no place");
  try {
    const Json there = ReadJsonFile(native);
    shape.check(there);
    for (const auto& [name, value] : there.items()) {
      if (!shape.is_ours(name)) object[name] = value;
    }
  } catch (const FileFault& fault) {
    aside = KeepAside(native);
    if (!aside) {
      return fail("what is there can't be used, " + std::string(fault.what()) + ", and can't be kept aside");
    }
  }
  const std::string text = object.dump(2) + '\n';
  if (text.size() > kLargestStoreFile) return fail("it would be larger than 64 MiB");
  std::error_code error;
  const fs::path folder = fs::path(native).parent_path();
  if (!folder.empty()) fs::create_directories(folder, error);
  if (error) return fail("its folder can't be made, " + error.message());
  return platform::WriteNativeFile(native, text) ||
         fail("the file or its folder is protected, or the disk full");
}

}  // namespace ioview
