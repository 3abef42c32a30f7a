// A fresh directory that goes, with all that is in it, at the end of its lifetime.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/base/paths.h"

namespace pvw::test {

class TempDir {
 public:
  TempDir() {
    std::string name = (std::filesystem::temp_directory_path() / "pvw-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temp directory");
    native_ = name;
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(native_, ignored);
  }

  // Native paths of the directory and of a file in it.
  const std::filesystem::path& Native() const { return native_; }
  std::filesystem::path Native(std::string_view name) const { return native_ / name; }
  // Drive paths of the same: "c:\tmp\pvw-abc", "c:\tmp\pvw-abc\x.io".
  std::string Path() const { return platform::FromNativePath(native_.string()).value(); }
  std::string Path(std::string_view name) const { return Path() + '\\' + std::string(name); }

  // Writes the file byte for byte, in place of what it held, and gives its drive path.
  std::string Write(std::string_view name, std::string_view text) const {
    std::ofstream file(Native(name), std::ios::binary | std::ios::trunc);
    if (!file.write(text.data(), static_cast<std::streamsize>(text.size())).flush()) {
      throw std::runtime_error("can't write " + std::string(name));
    }
    return Path(name);
  }
  void Delete(std::string_view name) const { std::filesystem::remove(Native(name)); }

 private:
  std::filesystem::path native_;
};

}  // namespace pvw::test
