#include "support/path_text.h"

#include <algorithm>
#include <utility>

#include "platform/base/files.h"
#include "platform/base/paths.h"
#include "platform/base/text.h"
#include "support/list_text.h"

namespace pvw {

namespace {

constexpr char kSeparator = '\\';
constexpr char kExtensionSeparator = '.';
constexpr char kDriveSeparator = ':';
constexpr std::string_view kForbidden = "*?/<>|\"";
constexpr std::size_t kMaxPath = 260;
constexpr std::size_t npos = std::string_view::npos;

// The two views lie in `path`.
struct PathParts {
  std::string_view head;  // letter or server
  std::string_view rest;
};

bool SplitDrive(std::string_view path, PathParts& parts) {
  const std::size_t letter = platform::CharBytes(path, 0);
  if (letter == 0 || !platform::IsAlphaAt(path, 0)) return false;
  if (path.substr(letter, 2) != ":\\") return false;
  parts = {path.substr(0, letter), path.substr(letter + 2)};
  return true;
}

bool SplitUnc(std::string_view path, PathParts& parts) {
  if (!path.starts_with("\\\\")) return false;
  const std::size_t end = platform::FindChar(path, kSeparator, 2);
  if (end == npos || end == 2) return false;
  parts = {path.substr(2, end - 2), path.substr(end + 1)};
  return true;
}

bool SplitEither(std::string_view path, PathParts& parts) {
  return SplitDrive(path, parts) || SplitUnc(path, parts);
}

bool Take(const PathParts& parts, std::string& head, std::string& rest) {
  head = parts.head;
  if (!parts.rest.empty()) rest = parts.rest;
  return true;
}

std::string_view FileName(std::string_view path) {
  std::size_t before = platform::FindLastChar(path, kSeparator);
  if (before == npos) before = platform::FindChar(path, kDriveSeparator);
  return before == npos ? path : path.substr(before + 1);
}

}  // namespace

bool IsValidPathText(std::string_view text) {
  if (text.empty() || platform::FindAnyChar(text, kForbidden) != npos) return false;
  return FindNthChar(text, kDriveSeparator, 2) == npos;
}

bool IsDrivePath(std::string_view path) {
  PathParts parts;
  return SplitDrive(path, parts);
}

bool IsUncPath(std::string_view path) {
  PathParts parts;
  return SplitUnc(path, parts);
}

bool SplitDrivePath(std::string_view path, std::string& letter, std::string& rest) {
  PathParts parts;
  return SplitDrive(path, parts) && Take(parts, letter, rest);
}

bool SplitUncPath(std::string_view path, std::string& server, std::string& rest) {
  PathParts parts;
  return SplitUnc(path, parts) && Take(parts, server, rest);
}

bool IsCanonicalPath(std::string_view path) {
  PathParts parts;
  if (path.size() >= kMaxPath || !SplitEither(path, parts)) return false;
  return platform::FullPath(path) == path;
}

bool IsValidFullPath(std::string_view path) {
  const std::size_t characters = platform::CharCount(path);
  if (characters <= 3 || characters > kMaxPath || !IsValidPathText(path)) return false;
  PathParts parts;
  if (!SplitEither(path, parts) || !IsCanonicalPath(path)) return false;
  return !parts.rest.empty() && parts.rest != "\\";
}

bool IsRootPath(std::string_view path) {
  if (platform::CharCount(path) == 3) return true;
  if (IsDrivePath(path)) return false;
  const std::size_t third = FindNthChar(path, kSeparator, 3);
  return third != npos && third + 1 == path.size();
}

bool SplitDirAndName(std::string_view path, std::string& dir, std::string& name) {
  PathParts parts;
  if (IsRootPath(path) || !SplitEither(path, parts)) return false;
  std::size_t last = platform::FindLastChar(parts.rest, kSeparator);
  const std::size_t root = path.size() - parts.rest.size();
  // The outputs may be what `path` looks into.
  std::string new_dir(last == npos ? path.substr(0, root) : path.substr(0, root + last));
  std::string new_name(last == npos ? parts.rest : parts.rest.substr(last + 1));
  dir = std::move(new_dir);
  name = std::move(new_name);
  return true;
}

std::string GetDirectoryOf(std::string_view path) {
  std::string dir;
  std::string name;
  if (!IsValidFullPath(path) || !SplitDirAndName(path, dir, name)) return {};
  return dir;
}

std::string JoinPath(std::string_view dir, std::string_view name) {
  const bool dir_ends = dir.substr(LastCharacterOf(dir)) == "\\";
  const bool name_begins = name.starts_with(kSeparator);
  std::string joined(dir);
  if (!dir_ends && !name_begins) joined += kSeparator;
  joined += dir_ends && name_begins ? name.substr(1) : name;
  return joined;
}

std::string GetFileNameOf(std::string_view path) {
  return std::string(FileName(path));
}

std::string GetFileLeafOf(std::string_view path) {
  const std::string_view name = FileName(path);
  return std::string(name.substr(0, platform::FindLastChar(name, kExtensionSeparator)));
}

std::string GetExtensionOf(std::string_view path) {
  const std::size_t separator = platform::FindLastChar(path, kSeparator);
  const std::string_view name = separator == npos ? path : path.substr(separator + 1);
  const std::size_t dot = platform::FindLastChar(name, kExtensionSeparator);
  return dot == npos ? std::string() : std::string(name.substr(dot + 1));
}

std::string LowerCaseText(std::string_view text) {
  return platform::LowerCase(text);
}

std::string GetCurrentDir() {
  const auto directory = platform::CurrentDirectory();
  return directory && directory->size() < kMaxPath ? *directory : std::string();
}

bool FileExistsAt(std::string_view path, bool* writable) {
  bool unused = false;
  bool& may_write = writable != nullptr ? *writable : unused;
  std::string full(path);
  if (!IsValidFullPath(full)) full = JoinPath(GetCurrentDir(), path);
  may_write = false;
  if (!IsValidFullPath(full)) return false;
  const auto attributes = platform::GetFileAttributes(full);
  if (!attributes) {
    may_write = true;  // nothing stops the file from being created
    return false;
  }
  if (attributes->directory) return false;
  may_write = !attributes->read_only;
  return true;
}

}  // namespace pvw
