#include "platform/base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>

#include "platform/base/paths.h"

namespace platform {

namespace {

constexpr std::uint64_t kLargestFile = 1ull << 30;
constexpr int kReadAttempts = 5;
// The file system stamps by a clock that stands still for up to 10 ms.
constexpr std::int64_t kFreshNs = 20'000'000;

class Descriptor {
 public:
  // Opens for reading, without waiting for the other end of a pipe or for a device.
  explicit Descriptor(const std::string& native) {
    if (native.find('\0') == std::string::npos) {
      descriptor_ = open(native.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    }
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  // Nothing unless a regular file is open.
  std::optional<struct stat> RegularStatus() const {
    struct stat status {};
    if (descriptor_ < 0 || fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return status;
  }

  // Reads up to the end of the file or the end of `buffer`; the bytes read, or nothing on an error.
  std::optional<std::size_t> Read(std::string& buffer) const {
    std::size_t done = 0;
    while (done < buffer.size()) {
      const ssize_t count = read(descriptor_, buffer.data() + done, buffer.size() - done);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return std::nullopt;
      if (count == 0) break;
      done += static_cast<std::size_t>(count);
    }
    return done;
  }

 private:
  int descriptor_ = -1;
};

// A file's times can be any 64-bit number of seconds: they wrap.
std::int64_t Nanoseconds(const timespec& time) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000u +
                                   static_cast<std::uint64_t>(time.tv_nsec));
}

FileStamp StampOf(const struct stat& status) {
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim)};
}

bool IsFresh(std::int64_t time, std::int64_t now) {
  const auto age =
      static_cast<std::int64_t>(static_cast<std::uint64_t>(now) - static_cast<std::uint64_t>(time));
  return age < kFreshNs && age > -kFreshNs;
}

// A new file that goes away again unless it takes the place of another.
class NewFile {
 public:
  explicit NewFile(const std::string& directory) {
    static std::atomic<unsigned> count = 0;
    do {
      native_ = directory + "/." + std::to_string(getpid()) + '-' + std::to_string(count++) + ".new";
      descriptor_ = open(native_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (descriptor_ < 0 && errno == EEXIST);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    if (descriptor_ < 0) return;
    close(descriptor_);
    if (!placed_) unlink(native_.c_str());
  }

  bool Write(std::string_view bytes) const {
    while (descriptor_ >= 0 && !bytes.empty()) {
      const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return descriptor_ >= 0 && fsync(descriptor_) == 0;
  }
  bool SetMode(mode_t mode) const { return fchmod(descriptor_, mode) == 0; }
  bool Place(const std::string& native) {
    placed_ = std::rename(native_.c_str(), native.c_str()) == 0;
    return placed_;
  }

 private:
  int descriptor_ = -1;
  bool placed_ = false;
  std::string native_;
};

// The file itself behind links; `native` when there is none.
std::string BehindLinks(const std::string& native) {
  char resolved[PATH_MAX];
  return realpath(native.c_str(), resolved) != nullptr ? resolved : native;
}

}  // namespace

std::optional<FileAttributes> GetFileAttributes(std::string_view path) {
  const std::optional<std::string> native = ToNativePath(path);
  struct stat status {};
  if (!native || stat(native->c_str(), &status) != 0) return std::nullopt;
  return FileAttributes{S_ISDIR(status.st_mode), (status.st_mode & 0222) == 0};
}

std::optional<std::uint64_t> GetLastWriteTime(std::string_view path) {
  const std::optional<std::string> native = ToNativePath(path);
  if (!native) return std::nullopt;
  const std::optional<struct stat> status = Descriptor(*native).RegularStatus();
  if (!status) return std::nullopt;
  constexpr std::uint64_t kSecondsFrom1601To1970 = 11'644'473'600;
  return (static_cast<std::uint64_t>(status->st_mtim.tv_sec) + kSecondsFrom1601To1970) * 10'000'000 +
         static_cast<std::uint64_t>(status->st_mtim.tv_nsec) / 100;
}

std::optional<FileStamp> StampNativeFile(const std::string& native) {
  struct stat status {};
  if (native.find('\0') != std::string::npos || stat(native.c_str(), &status) != 0 ||
      !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  return StampOf(status);
}

std::optional<FileContents> ReadNativeFile(const std::string& native) {
  for (int attempt = 0; attempt < kReadAttempts; ++attempt) {
    if (attempt > 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    // Taken before the first look at the file: what is written behind it, and is settled, shows in the stamp.
    timespec clock{};
    clock_gettime(CLOCK_REALTIME, &clock);
    const std::int64_t now = Nanoseconds(clock);

    const Descriptor file(native);
    const std::optional<struct stat> before = file.RegularStatus();
    if (!before || static_cast<std::uint64_t>(before->st_size) > kLargestFile) return std::nullopt;
    FileContents contents;
    contents.stamp = StampOf(*before);
    // One byte more shows a file that has grown.
    contents.bytes.resize(contents.stamp.size + 1);
    const std::optional<std::size_t> count = file.Read(contents.bytes);
    if (!count) return std::nullopt;
    const std::optional<struct stat> after = file.RegularStatus();
    if (!after || StampOf(*after) != contents.stamp || *count != contents.stamp.size) continue;
    contents.bytes.resize(*count);
    contents.settled = !IsFresh(contents.stamp.modified_ns, now) && !IsFresh(contents.stamp.changed_ns, now);
    return contents;
  }
  return std::nullopt;
}

bool WriteWholeFile(std::string_view path, std::string_view bytes) {
  const std::optional<std::string> native = ToNativePath(path);
  return native && WriteNativeFile(*native, bytes);
}

bool WriteNativeFile(const std::string& named, std::string_view bytes) {
  if (named.find('\0') != std::string::npos) return false;
  const std::string native = BehindLinks(named);
  struct stat before {};
  const bool exists = stat(native.c_str(), &before) == 0;
  if (exists &&
      (!S_ISREG(before.st_mode) || (before.st_mode & 0222) == 0 || access(native.c_str(), W_OK) != 0)) {
    return false;
  }
  const std::size_t slash = native.rfind('/');
  NewFile file(slash == std::string::npos ? "." : native.substr(0, slash));
  return file.Write(bytes) && (!exists || file.SetMode(before.st_mode & 07777)) && file.Place(native);
}

bool DeleteFile(std::string_view path) {
  const std::optional<std::string> native = ToNativePath(path);
  return native && unlink(native->c_str()) == 0;
}

}  // namespace platform
