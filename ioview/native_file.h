// Files that the user named on the command line, by native path.
#pragma once

#include <string>

namespace ioview {

// Throws ProgramError, naming the file, unless it is a regular file that can be opened for reading and is no
// larger than 1 GiB.
void RequireReadableFile(const std::string& native);

// The whole of such a file.
std::string ReadWholeFile(const std::string& native);

// The drive path of a file or directory. Throws ProgramError when its name, made absolute, can't be written
// as one, or not as one that the system's path functions leave as it is: those drop dots and blanks at the
// end of a name, and take no more than 259 bytes.
std::string DrivePathOf(const std::string& native);

}  // namespace ioview
