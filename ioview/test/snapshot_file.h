// Snapshots in files: one line, and its line feed.
#pragma once

#include <string>

namespace ioview {

// The snapshot in the file, without its line end. Throws ProgramError, naming the file, when it can't be read
// or holds none.
std::string ReadSnapshotFile(const std::string& native);

// Makes the snapshot the whole of the file. Throws ProgramError, naming the file, when it can't be written;
// what was there before is there still.
void WriteSnapshotFile(const std::string& native, const std::string& snapshot);

}  // namespace ioview
