#include "model/io_data_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/scopes.h"
#include "tests/support/temp_dir.h"

namespace pvw {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class CIODataFileTest : public ::testing::Test {
 protected:
  // A new file object over a file of that text.
  void Open(std::string_view text, std::uint32_t base = 0) {
    m_file.Open(m_dir.Write("device.io", text), base);
  }
  // Old enough that a reading can't have met the file in the middle of a change.
  void LetSettle(const fs::path& native) {
    fs::last_write_time(native, fs::file_time_type::clock::now() - std::chrono::hours(1));
    ::usleep(25'000);
  }

  test::TempDir m_dir;
  CIODataFile m_file;
};

// What `GetKeys` gives for a buffer of `size` bytes: its result and the bytes that it wrote.
std::pair<std::size_t, std::string> Keys(CIODataFile& file, std::size_t size) {
  std::string buffer(size, '#');
  const std::size_t used = file.GetKeys("a", buffer);
  return {used, buffer};
}

TEST_F(CIODataFileTest, OpenReadsBasesAndVersion) {
  Open("[Modules]\nBaseAddress=0x1FFFFFFFF\nFileVersion=-4294967294\n");
  EXPECT_EQ(m_file.GetFileBase(), 0xFFFFFFFF) << "numbers wrap";
  EXPECT_EQ(m_file.GetEffectiveBase(), 0xFFFFFFFF);
  EXPECT_EQ(m_file.GetVersion(), 2u);
  Open("[Modules]\nBaseAddress=FF0000\nFileVersion=2abc\n", 0x1FF0000);
  EXPECT_EQ(m_file.GetFileBase(), 0u) << "without a prefix it is no number";
  EXPECT_EQ(m_file.GetEffectiveBase(), 0x1FF0000u) << "the caller's";
  EXPECT_EQ(m_file.GetVersion(), 1u) << "nor is one with text behind";
}

TEST_F(CIODataFileTest, GivesDefaultsForWhatIsMissingOrEmptyAndForAllOnceClosed) {
  Open("[a]\nx=1\nempty=\nquotes=''\n");
  for (const char* key : {"none", "empty", "quotes"}) {
    EXPECT_EQ(m_file.GetValue("a", key, "default"), "default") << key;
    EXPECT_EQ(m_file.GetNumber("a", key, 7), 7u) << key;
  }
  EXPECT_EQ(m_file.GetValue("none", "x", std::string(3000, 'd')), std::string(2047, 'd'));
  EXPECT_EQ(m_file.GetNumber("a", "x", 7), 1u);
  m_file.Close();
  EXPECT_EQ(m_file.GetNumber("a", "x", 7), 7u);
  EXPECT_EQ(m_file.GetValue("a", "x", "default"), "default");
  EXPECT_EQ(Keys(m_file, 3), std::pair(std::size_t{0}, "\0\0#"s));
  EXPECT_FALSE(m_file.IsOpen());
}

TEST_F(CIODataFileTest, GetKeysFillsTheBufferOrCutsTheList) {
  Open("[a]\nkey=1\nk2=\nKEY=3\n");
  const struct {
    const char* why;
    std::size_t size, used;
    std::string buffer;
  } cases[] = {
      {"room to spare", 14, 11, "key\0k2\0KEY\0\0##"s},
      {"just fits", 12, 11, "key\0k2\0KEY\0\0"s},
      {"no room for the list's terminator", 11, 9, "key\0k2\0KE\0\0"s},
      {"cut inside a key", 7, 5, "key\0k\0\0"s},
      {"cut at a terminator", 6, 4, "key\0\0\0"s},
      {"room for terminators alone", 2, 0, "\0\0"s},
      {"room for one terminator", 1, 0, "\0"s},
      {"no room", 0, 0, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_EQ(Keys(m_file, c.size), std::pair(c.used, c.buffer));
  }
}

TEST_F(CIODataFileTest, EveryLookupAnswersFromTheFileAsItIs) {
  Open("[a]\nx=1\n");
  const fs::path native = m_dir.Native("device.io");
  LetSettle(native);
  const fs::file_time_type written = fs::last_write_time(native);
  EXPECT_EQ(m_file.GetValue("a", "x"), "1");
  m_dir.Write("device.io", "[a]\nx=2\n");
  fs::last_write_time(native, written);
  EXPECT_EQ(m_file.GetValue("a", "x"), "2") << "written in place, with the same size and time";
  LetSettle(native);
  const fs::file_time_type settled = fs::last_write_time(native);
  EXPECT_EQ(m_file.GetValue("a", "x"), "2");
  m_dir.Write("new.io", "[a]\nx=3\n");
  fs::rename(m_dir.Native("new.io"), native);
  fs::last_write_time(native, settled);
  EXPECT_EQ(m_file.GetValue("a", "x"), "3") << "replaced by a renamed file of the same size and time";

  LetSettle(native);
  EXPECT_EQ(m_file.GetValue("a", "x"), "3");
  for (const std::string digit : {"4", "5", "6", "7", "8"}) {
    m_dir.Write("device.io", "[a]\nx=" + digit + "\n");
    EXPECT_EQ(m_file.GetValue("a", "x"), digit) << "written again and again at once";
  }
  m_dir.Delete("device.io");
  EXPECT_EQ(m_file.GetValue("a", "x"), "") << "gone";
  m_dir.Write("DEVICE.IO", "[a]\nx=5\n");
  EXPECT_EQ(m_file.GetNumber("a", "x", 0), 5u) << "back, under a name in another case";
  m_dir.Write("DEVICE.IO", "");
  EXPECT_EQ(Keys(m_file, 4), std::pair(std::size_t{0}, "\0\0##"s)) << "empty";
}

TEST_F(CIODataFileTest, AReadingHoldsOneStateToItsEnd) {
  Open("[a]\nx=1\n");
  {
    const CIODataFile::Reading outer(m_file);
    m_dir.Write("device.io", "[a]\nx=22\n");
    EXPECT_EQ(m_file.GetValue("a", "x"), "1") << "the state at its start";
    { const CIODataFile::Reading inner(m_file); }
    EXPECT_EQ(m_file.GetValue("a", "x"), "1") << "the outermost counts";
  }
  EXPECT_EQ(m_file.GetValue("a", "x"), "22");
  {
    const CIODataFile::Reading reading(m_file);
    m_file.Open(m_dir.Write("other.io", "[a]\nx=3\n"), 0);
    EXPECT_EQ(m_file.GetValue("a", "x"), "3") << "another file opened meanwhile";
    m_file.Close();
    EXPECT_EQ(m_file.GetValue("a", "x"), "");
  }
}

TEST_F(CIODataFileTest, AnotherCodePageIsAnotherReading) {
  Open("[a]\n\xC4=1\n");
  LetSettle(m_dir.Native("device.io"));
  EXPECT_EQ(m_file.GetValue("a", "\xE4"), "") << "bytes without a meaning in UTF-8";
  const test::CodePage western(1252);
  EXPECT_EQ(m_file.GetValue("a", "\xE4"), "1") << "one letter in two cases";
}

TEST_F(CIODataFileTest, WhatCantBeReadIsOpenAndEmpty) {
  ASSERT_EQ(::mkfifo(m_dir.Native("pipe.io").c_str(), 0600), 0);
  for (const std::string& path : {m_dir.Path("none.io"), m_dir.Path("pipe.io"), m_dir.Path("."),
                                  "q:\\no\\drive.io"s, "\\\\server\\share\\x.io"s, "c:\\a\0b.io"s, ""s}) {
    SCOPED_TRACE(path);
    m_file.Open(path, 0x1000);
    EXPECT_TRUE(m_file.IsOpen());
    EXPECT_EQ(m_file.GetFileBase(), 0u);
    EXPECT_EQ(m_file.GetEffectiveBase(), 0x1000u);
    EXPECT_EQ(m_file.GetVersion(), 1u);
  }
}

TEST_F(CIODataFileTest, TakesALargeFile) {
  // Sparse: behind the text one endless line of zero bytes.
  Open("[a]\nx=1");
  fs::resize_file(m_dir.Native("device.io"), 100u << 20);
  LetSettle(m_dir.Native("device.io"));
  // Far more lookups than a test could wait for if each read or copied the file.
  for (int i = 0; i < 20'000; ++i) ASSERT_EQ(m_file.GetValue("a", "x"), "1");
  fs::resize_file(m_dir.Native("device.io"), std::uintmax_t{1} << 40);
  EXPECT_EQ(m_file.GetValue("a", "x"), "") << "larger than is ever held in memory";
}

}  // namespace
}  // namespace pvw
