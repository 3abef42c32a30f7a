#include "platform/base/paths.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <vector>

#include "platform/base/code_page.h"
#include "platform/base/text.h"

namespace platform {

namespace {

constexpr std::size_t kLongestFullPath = 259;

constexpr bool IsDriveLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
constexpr char LowerLetter(char c) {
  return static_cast<char>(c | 0x20);
}
constexpr bool IsSeparator(char c) {
  return c == '\\' || c == '/';
}

// Native roots by letter, absolute, "/" or without a slash at the end; empty: no such drive.
std::array<std::string, 26>& Roots() {
  static std::array<std::string, 26> roots = [] {
    std::array<std::string, 26> initial;
    initial['c' - 'a'] = "/";
    return initial;
  }();
  return roots;
}

const std::string& RootOf(char letter) {
  return Roots()[static_cast<std::size_t>(LowerLetter(letter) - 'a')];
}

// ---- Native paths

struct FreeDeleter {
  void operator()(char* text) const { std::free(text); }
};
using MallocText = std::unique_ptr<char, FreeDeleter>;

bool Exists(const std::string& native) {
  struct stat status {};
  return lstat(native.c_str(), &status) == 0;
}

void AppendNative(std::string& native, std::string_view segment) {
  if (native.empty() || native.back() != '/') native += '/';
  native += segment;
}

// Without doubled slashes, "." and "..". The parent of a link to a directory is that directory's parent.
std::string NormalNative(std::string_view native) {
  std::string normal = "/";
  while (!native.empty()) {
    const std::size_t slash = std::min(native.find('/'), native.size());
    const std::string_view segment = native.substr(0, slash);
    native.remove_prefix(std::min(slash + 1, native.size()));
    if (segment.empty() || segment == ".") continue;
    if (segment != "..") {
      AppendNative(normal, segment);
      continue;
    }
    struct stat status {};
    if (lstat(normal.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) {
      if (const MallocText target(realpath(normal.c_str(), nullptr)); target) normal = target.get();
    }
    normal.erase(std::max<std::size_t>(normal.rfind('/'), 1));
  }
  return normal;
}

std::optional<std::string> NativeCurrentDirectory() {
  const MallocText directory(getcwd(nullptr, 0));
  if (!directory || *directory != '/') return std::nullopt;
  return directory.get();
}

// The drive that a normal native path lies on: the one with the longest root; letter 0 when there is none.
struct OnDrive {
  char letter = 0;
  std::string_view rest;  // behind the root, without a slash in front
};
OnDrive FindDrive(std::string_view native) {
  OnDrive found;
  std::size_t longest = 0;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    std::string_view root = RootOf(letter);
    if (root.size() <= longest || !native.starts_with(root)) continue;
    std::string_view rest = native.substr(root.size());
    if (root != "/" && !rest.empty()) {
      if (rest.front() != '/') continue;
      rest.remove_prefix(1);
    }
    found = {letter, rest};
    longest = root.size();
  }
  return found;
}

// The entry of `directory` that is `name` but for case, the smallest of several.
std::optional<std::string> FindNoCase(const std::string& directory, const std::string& name) {
  struct Closer {
    void operator()(DIR* stream) const { closedir(stream); }
  };
  const std::unique_ptr<DIR, Closer> stream(opendir(directory.c_str()));
  if (!stream) return std::nullopt;
  std::optional<std::string> best;
  while (const dirent* entry = readdir(stream.get())) {
    if (detail::EqualNoCaseUtf8(entry->d_name, name) && (!best || entry->d_name < *best)) {
      best = entry->d_name;
    }
  }
  return best;
}

// ---- Drive paths

enum class PathKind {
  kDrive,          // c:\name
  kDriveRelative,  // c:name
  kRooted,         // \name
  kRelative,       // name
  kUnc,            // \\server\share\name
};

struct SplitPath {
  PathKind kind = PathKind::kRelative;
  char letter = 0;
  std::vector<std::string_view> segments;  // none is empty
  bool ends_in_separator = false;
};

SplitPath Split(std::string_view path) {
  SplitPath split;
  if (path.size() >= 2 && IsDriveLetter(path[0]) && path[1] == ':') {
    split.letter = path[0];
    path.remove_prefix(2);
    split.kind = !path.empty() && IsSeparator(path[0]) ? PathKind::kDrive : PathKind::kDriveRelative;
  } else if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
    split.kind = PathKind::kUnc;
  } else if (!path.empty() && IsSeparator(path[0])) {
    split.kind = PathKind::kRooted;
  }
  while (!path.empty()) {
    const std::size_t separator = FindAnyChar(path, "\\/");
    if (separator != 0) split.segments.push_back(path.substr(0, separator));
    split.ends_in_separator = separator == path.size() - 1;
    if (separator == std::string_view::npos) break;
    path.remove_prefix(separator + 1);
  }
  return split;
}

// Adds a segment that may be "." or ".."; never goes above the first `floor` ones.
template <typename Text>
void AddSegment(std::vector<Text>& segments, std::string_view segment, std::size_t floor) {
  if (segment == ".") return;
  if (segment == "..") {
    if (segments.size() > floor) segments.pop_back();
    return;
  }
  segments.emplace_back(segment);
}

// The place that a path names, by a native root that ".." doesn't leave and the segments below it.
struct Place {
  std::string root;
  std::vector<std::string> segments;
};

std::optional<Place> PlaceOf(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return std::nullopt;
  const SplitPath split = Split(path);
  Place place;
  if (split.kind == PathKind::kUnc) return std::nullopt;
  if (split.kind == PathKind::kDrive) {
    place.root = RootOf(split.letter);
  } else {
    const std::optional<std::string> current = NativeCurrentDirectory();
    const OnDrive drive = current ? FindDrive(*current) : OnDrive{};
    std::string_view below;
    if (split.kind == PathKind::kDriveRelative) {
      place.root = RootOf(split.letter);
      if (drive.letter == LowerLetter(split.letter)) below = drive.rest;
    } else if (drive.letter != 0) {
      place.root = RootOf(drive.letter);
      if (split.kind == PathKind::kRelative) below = drive.rest;
    } else if (current && split.kind == PathKind::kRelative) {
      place.root = "/";
      below = *current;
    }
    while (!below.empty()) {
      const std::size_t slash = std::min(below.find('/'), below.size());
      if (slash != 0) place.segments.emplace_back(below.substr(0, slash));
      below.remove_prefix(std::min(slash + 1, below.size()));
    }
  }
  if (place.root.empty()) return std::nullopt;
  for (const std::string_view segment : split.segments) AddSegment(place.segments, ToUtf8(segment), 0);
  return place;
}

std::string AsWritten(const Place& place) {
  std::string native = place.root;
  for (const std::string& segment : place.segments) AppendNative(native, segment);
  return native;
}

}  // namespace

void SetDriveRoot(char letter, std::string native_root) {
  if (!IsDriveLetter(letter)) return;
  if (!native_root.empty()) {
    if (native_root.front() != '/') native_root = NativeCurrentDirectory().value_or("/") + '/' + native_root;
    native_root = NormalNative(native_root);
  }
  Roots()[static_cast<std::size_t>(LowerLetter(letter) - 'a')] = std::move(native_root);
}

std::optional<std::string> ToNativePath(std::string_view path) {
  const std::optional<Place> place = PlaceOf(path);
  if (!place) return std::nullopt;
  std::string written = AsWritten(*place);
  if (Exists(written)) return written;

  std::string native = place->root;
  for (std::size_t i = 0; i < place->segments.size(); ++i) {
    std::string next = native;
    AppendNative(next, place->segments[i]);
    if (!Exists(next)) {
      const std::optional<std::string> found = FindNoCase(native, place->segments[i]);
      if (!found) {
        for (; i < place->segments.size(); ++i) AppendNative(native, place->segments[i]);
        break;
      }
      next = native;
      AppendNative(next, *found);
    }
    native = std::move(next);
  }
  return native;
}

std::optional<std::string> FromNativePath(std::string_view native) {
  if (!native.starts_with('/') || native.find('\0') != std::string_view::npos) return std::nullopt;
  const std::string normal = NormalNative(native);
  const OnDrive drive = FindDrive(normal);
  if (drive.letter == 0 || normal.find('\\') != std::string::npos) return std::nullopt;
  std::string rest(drive.rest);
  std::replace(rest.begin(), rest.end(), '/', '\\');
  std::string path = {drive.letter, ':', '\\'};
  path += FromUtf8(rest);
  const std::optional<Place> back = PlaceOf(path);
  if (!back || AsWritten(*back) != normal) return std::nullopt;
  return path;
}

std::optional<std::string> FullPath(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return std::nullopt;
  const SplitPath split = Split(path);
  std::string full;
  std::string current;
  std::vector<std::string_view> segments;
  std::size_t floor = 0;
  auto next = split.segments.begin();
  if (split.kind == PathKind::kUnc) {
    // Server and share are the root, and stay as they are written.
    full = "\\\\";
    floor = std::min<std::size_t>(2, split.segments.size());
    segments.assign(next, next + static_cast<std::ptrdiff_t>(floor));
    next += static_cast<std::ptrdiff_t>(floor);
  } else if (split.kind == PathKind::kDrive) {
    full = {split.letter, ':', '\\'};
  } else {
    std::optional<std::string> directory = CurrentDirectory();
    const bool other_drive =
        split.letter != 0 && (!directory || LowerLetter(split.letter) != directory->front());
    if (other_drive) directory = std::string{split.letter, ':', '\\'};
    if (!directory) return std::nullopt;
    current = *std::move(directory);
    full = current.substr(0, 3);
    if (split.kind != PathKind::kRooted) segments = Split(current).segments;
  }
  for (; next != split.segments.end(); ++next) {
    std::string_view segment = *next;
    if (segment != "." && segment != "..") {
      // Neither byte is ever part of a longer character.
      segment = segment.substr(0, segment.find_last_not_of(". ") + 1);
      if (segment.empty()) continue;
    }
    AddSegment(segments, segment, floor);
  }
  for (std::size_t i = 0; i < segments.size(); ++i) {
    if (i > 0) full += '\\';
    full += segments[i];
  }
  if (split.ends_in_separator && !segments.empty()) full += '\\';
  if (full.size() > kLongestFullPath) return std::nullopt;
  return full;
}

std::optional<std::string> CurrentDirectory() {
  const std::optional<std::string> native = NativeCurrentDirectory();
  return native ? FromNativePath(*native) : std::nullopt;
}

}  // namespace platform
