#include "ioview/test/snapshot_file.h"

#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "ioview/test/snapshot_text.h"
#include "platform/base/files.h"

namespace ioview {

std::string ReadSnapshotFile(const std::string& native) {
  std::string text = ReadWholeFile(native);
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
  if (!IsSnapshot(text))
    throw ProgramError(OneLine(native) + ": This is no snapshot of `ioview capture`, or only a part of one");
  return text;
}

void WriteSnapshotFile(const std::string& native, const std::string& snapshot) {
  if (platform::WriteNativeFile(native, snapshot + '\n')) return;
  throw ProgramError(OneLine(native) +
                     " can't be written: the file or its folder is protected, or the disk full");
}

}  // namespace ioview
