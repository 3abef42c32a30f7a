// Drive-letter paths over the native file system. Stands in for the system's path functions.
//
// A drive path is `c:\dir\name`, a UNC path `\\server\share\name`, both in the ANSI code page. Every drive
// has a native root; drive c: has "/" until told otherwise, other drives have none. A native lookup takes
// the name that matches exactly, segment by segment, else the smallest that differs only in case.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// The native directory behind a drive letter; an empty root takes the drive away.
void SetDriveRoot(char letter, std::string native_root);

// The native path that `path` names, for opening or creating: segments that exist are taken by the case
// rule, the first that doesn't and all behind it are kept as written. A path without a drive is taken from
// the current directory. Nothing for an empty or UNC path, a drive without a root, or an embedded zero.
std::optional<std::string> ToNativePath(std::string_view path);

// The drive path of an absolute native path, or nothing when the name can't be written as one: it lies under
// no drive's root, holds a backslash, or holds characters that the code page lacks.
std::optional<std::string> FromNativePath(std::string_view native);

// The system's full-path function: current drive and directory added, `/` read as `\`, "." and ".." and
// doubled backslashes resolved, trailing dots and blanks of a segment dropped. Nothing when the result would
// be longer than 259 bytes.
std::optional<std::string> FullPath(std::string_view path);

// The process's current directory as a drive path without a trailing backslash (but "c:\"), or nothing when
// it can't be written as one.
std::optional<std::string> CurrentDirectory();

}  // namespace platform
