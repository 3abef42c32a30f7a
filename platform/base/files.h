// Files by drive path. Stands in for the system's file functions.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct FileAttributes {
  bool directory = false;
  bool read_only = false;
};

// Nothing when there is no such file or directory.
std::optional<FileAttributes> GetFileAttributes(std::string_view path);

// Last write time of a file that can be opened for reading, in units of 100 ns since 1601; nothing when it
// can't be opened or is a directory.
std::optional<std::uint64_t> GetLastWriteTime(std::string_view path);

// What tells one state of a file from another: two equal stamps name the same bytes, unless the file was
// written in the 20 ms before it was stamped.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t size = 0;
  std::int64_t modified_ns = 0;  // since 1970
  std::int64_t changed_ns = 0;
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// By native path. Nothing when there is no regular file of that name.
std::optional<FileStamp> StampNativeFile(const std::string& native);

// The whole of a regular file with the stamp that its bytes belong to. `settled` is false when the file was
// written so shortly before (20 ms) that a further write could leave the stamp as it is. Nothing when it
// can't be read, isn't a regular file, changes all the time, or is larger than 1 GiB.
struct FileContents {
  std::string bytes;
  FileStamp stamp;
  bool settled = false;
};
std::optional<FileContents> ReadNativeFile(const std::string& native);

// Makes `bytes` the whole of the file, which is created if need be, keeps its permissions and comes to the
// disk in one step: when it can't be written, is read-only or isn't a regular file, the result is false and
// what was there before is there still.
bool WriteWholeFile(std::string_view path, std::string_view bytes);
// The same by native path.
bool WriteNativeFile(const std::string& native, std::string_view bytes);
// False when there is no such file, or it can't be deleted.
bool DeleteFile(std::string_view path);

}  // namespace platform
