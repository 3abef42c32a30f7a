#include "ioview/component/open_workspace.h"

#include <filesystem>
#include <system_error>

#include "ioview/native_file.h"
#include "ioview/program_error.h"

namespace ioview {

Workspace OpenWorkspace(const std::string& native_directory) {
  std::error_code error;
  if (!std::filesystem::is_directory(native_directory, error)) {
    throw ProgramError(FileWord(native_directory) + ": There is no such directory");
  }
  std::string path = DrivePathOf(native_directory);
  while (path.size() > 3 && path.back() == '\\') path.pop_back();
  return {"demo", "demo", "Debug", path};
}

}  // namespace ioview
