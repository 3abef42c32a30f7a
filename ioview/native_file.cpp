#include "ioview/native_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "ioview/program_error.h"
#include "platform/base/files.h"
#include "platform/base/paths.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr off_t kLargestFile = off_t{1} << 30;

[[noreturn]] void Fail(const std::string& native, std::string_view text) {
  throw ProgramError(FileWord(native) + ": " + std::string(text));
}

}  // namespace

void RequireReadableFile(const std::string& native) {
  // Opening a pipe or a device must not wait for its other end.
  const int descriptor = open(native.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) Fail(native, std::strerror(errno));
  struct stat status {};
  char first = 0;
  const bool known = fstat(descriptor, &status) == 0;
  const ssize_t count = known && S_ISREG(status.st_mode) ? read(descriptor, &first, 1) : 0;
  const int error = errno;
  close(descriptor);
  if (!known || count < 0) Fail(native, std::strerror(error));
  if (S_ISDIR(status.st_mode)) Fail(native, std::strerror(EISDIR));
  // What the kernel makes up on the spot has contents and no size.
  if (!S_ISREG(status.st_mode) || (count > 0 && status.st_size == 0)) Fail(native, "Not a regular file");
  if (status.st_size > kLargestFile) Fail(native, "Larger than 1 GiB");
}

std::string ReadWholeFile(const std::string& native) {
  RequireReadableFile(native);
  std::optional<platform::FileContents> contents = platform::ReadNativeFile(native);
  if (!contents) Fail(native, "Can't be read");
  return std::move(contents->bytes);
}

std::string DrivePathOf(const std::string& native) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(native, error);
  if (error) Fail(native, error.message());
  const std::optional<std::string> path = platform::FromNativePath(absolute.native());
  if (path) {
    const std::optional<std::string> full = platform::FullPath(*path);
    if (!full) Fail(native, "Its path is too long: more than 259 bytes in the code page");
    if (*full != *path) Fail(native, "A path with a name that ends in a dot or a blank can't be opened");
    return *path;
  }
  if (absolute.native().find('\\') != std::string::npos) {
    Fail(native, "A path with a backslash in a name can't be opened");
  }
  Fail(native,
       "Its path has a character that code page " + std::to_string(platform::AnsiCodePage()) + " lacks");
}

}  // namespace ioview
