#include "platform/base/files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "tests/platform/base/scratch.h"

namespace platform {
namespace {

class FilesTest : public ScratchTest {
 protected:
  // Gives a file the time of `seconds` since 1970; its change time stays that of the call.
  static void SetModified(const std::string& native, std::int64_t seconds, long nanoseconds = 0) {
    const timespec times[2] = {{0, UTIME_OMIT}, {seconds, nanoseconds}};
    ASSERT_EQ(utimensat(AT_FDCWD, native.c_str(), times, 0), 0);
  }
};

TEST_F(FilesTest, AttributesTellDirectoriesAndReadOnlyFiles) {
  ASSERT_EQ(chmod(Write("Locked.io").c_str(), 0444), 0);
  Write("open.io");

  EXPECT_EQ(GetFileAttributes(""), std::nullopt);
  EXPECT_TRUE(GetFileAttributes("d:\\").value().directory);
  EXPECT_FALSE(GetFileAttributes("d:\\open.io").value().read_only);
  EXPECT_TRUE(GetFileAttributes("d:\\LOCKED.IO").value().read_only);
}

TEST_F(FilesTest, WriteTimesCountFrom1601) {
  const std::string native = Write("a.io");
  SetModified(native, 1, 234'567'899);
  EXPECT_EQ(GetLastWriteTime("d:\\a.io"), 116'444'736'012'345'678u);
  SetModified(native, -1);
  EXPECT_EQ(GetLastWriteTime("d:\\a.io"), 116'444'735'990'000'000u);
}

TEST_F(FilesTest, OnlyARegularFileIsReadAndNothingHangs) {
  MakePipe("pipe");
  std::filesystem::create_directory(Native("directory"));
  for (const char* name : {"pipe", "directory", "none"}) {
    EXPECT_EQ(GetLastWriteTime(std::string("d:\\") + name), std::nullopt) << name;
    EXPECT_EQ(StampNativeFile(Native(name)), std::nullopt) << name;
    EXPECT_FALSE(ReadNativeFile(Native(name)).has_value()) << name;
  }
  EXPECT_FALSE(ReadNativeFile("/dev/zero").has_value());
  const std::string cut = Write("a") + std::string("\0b", 2);
  EXPECT_FALSE(ReadNativeFile(cut).has_value()) << "a zero doesn't end the name";
  EXPECT_EQ(StampNativeFile(cut), std::nullopt);
}

TEST_F(FilesTest, AFileIsReadWholeWithItsStampAndOneTooLargeNotAtAll) {
  const std::string text = std::string(1'300'000, '\0') + "\r\nb";
  const std::string native = Write("a.io", text);
  const FileContents contents = ReadNativeFile(native).value();
  EXPECT_TRUE(contents.bytes == text);
  EXPECT_EQ(contents.stamp.size, text.size());
  EXPECT_EQ(contents.stamp, StampNativeFile(native));

  std::filesystem::resize_file(native, (std::uintmax_t{1} << 30) + 1);
  EXPECT_FALSE(ReadNativeFile(native).has_value());
  EXPECT_EQ(StampNativeFile(native).value().size, (std::uint64_t{1} << 30) + 1);
}

TEST_F(FilesTest, AFileSettlesAndThenEveryChangeShowsInItsStamp) {
  const std::string native = Write("a.io", "aaaa");
  EXPECT_FALSE(ReadNativeFile(native).value().settled) << "just written";
  SetModified(native, 1'000'000'000);
  EXPECT_FALSE(ReadNativeFile(native).value().settled) << "an old time that was just set";
  std::this_thread::sleep_for(std::chrono::milliseconds(40));
  EXPECT_TRUE(ReadNativeFile(native).value().settled);

  FileStamp before = StampNativeFile(native).value();
  Write("a.io", "bbbb");
  SetModified(native, 1'000'000'000);
  EXPECT_NE(StampNativeFile(native), before) << "other bytes, same size, time put back";
  before = StampNativeFile(native).value();
  std::filesystem::rename(Write("b.io", "cccc"), native);
  EXPECT_NE(StampNativeFile(native).value().inode, before.inode) << "another file took the name";
}

}  // namespace
}  // namespace platform
