// Where the file names of a script lead.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ioview {

class ScriptPlaces {
 public:
  // The directory that relative names are taken from, native and absolute.
  explicit ScriptPlaces(std::filesystem::path directory) : directory_(std::move(directory)) {}

  const std::filesystem::path& Directory() const { return directory_; }
  // A file for this program: a native name, or a path with a drive letter. The name is in the ANSI code page.
  std::string Native(std::string_view name) const;
  // A path for the component: one that begins with `$(` or a drive letter and a colon stands as it is, of any
  // other the drive path. Throws ProgramError for a name that can't be written as one.
  std::string ForComponent(std::string_view name) const;

 private:
  std::filesystem::path directory_;
};

}  // namespace ioview
