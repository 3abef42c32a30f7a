// Paths as text, by whole characters of the ANSI code page: a trail byte that looks like a backslash never
// counts as one.
//
// A full path is a drive path, `c:\dir\name`, or a UNC path, `\\server\share\name`. None of these functions
// reports an error: a path that doesn't fit gives false or an empty text, and the caller decides.
#pragma once

#include <string>
#include <string_view>

namespace pvw {

// Not empty, none of * ? / < > | " in it, and at most one colon.
bool IsValidPathText(std::string_view text);

// One letter, `:` and a backslash in front.
bool IsDrivePath(std::string_view path);
// Two backslashes, a server name and a backslash in front.
bool IsUncPath(std::string_view path);
// True, with the letter or the server name and what follows the backslash, for a path of that form. `rest`
// stays as it was when nothing follows; both stay for any other path.
bool SplitDrivePath(std::string_view path, std::string& letter, std::string& rest);
bool SplitUncPath(std::string_view path, std::string& server, std::string& rest);

// True when the system's full-path function gives a path of one of the two forms back as it is, in at most
// 259 bytes: no segment "." or "..", no doubled backslash.
bool IsCanonicalPath(std::string_view path);
// What a file needs to be asked for by this name: 4 to 260 characters, valid text, canonical, and more than
// a root.
bool IsValidFullPath(std::string_view path);
// Any text of 3 characters, which takes in `c:\`, and a UNC path that ends behind its server name.
bool IsRootPath(std::string_view path);

// Cuts at the last backslash. The directory has no backslash at its end, unless it is the root. False, and
// nothing changed, for a root and for a path of neither form.
bool SplitDirAndName(std::string_view path, std::string& dir, std::string& name);
// The directory of a valid full path that isn't a root; empty for any other text.
std::string GetDirectoryOf(std::string_view path);
// Both with exactly one backslash between them. An empty `dir` counts as one without a backslash.
std::string JoinPath(std::string_view dir, std::string_view name);

// What follows the last backslash; without one, what follows the first colon; else the whole text.
std::string GetFileNameOf(std::string_view path);
// The file name without its last dot and what follows it.
std::string GetFileLeafOf(std::string_view path);
// What follows the last dot of the file name, without the dot.
std::string GetExtensionOf(std::string_view path);

std::string LowerCaseText(std::string_view text);

// The process's current directory; empty when it can't be had in 259 bytes.
std::string GetCurrentDir();

// True when `path`, taken from the current directory unless it is a valid full path, names a file and not a
// directory. `*writable` tells, where asked for, whether it could be written: true for a file that isn't read
// only and for one that doesn't exist yet, false for a directory and for a name that no file can have.
bool FileExistsAt(std::string_view path, bool* writable);

}  // namespace pvw
