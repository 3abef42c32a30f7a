// What the tests of this folder share: a directory of their own, and settings of the process put back.
#pragma once

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "gtest/gtest.h"
#include "platform/base/paths.h"
#include "platform/base/text.h"

namespace platform {

class CodePageScope {
 public:
  explicit CodePageScope(unsigned page) { EXPECT_TRUE(SetAnsiCodePage(page)); }
  CodePageScope(const CodePageScope&) = delete;
  CodePageScope& operator=(const CodePageScope&) = delete;
  ~CodePageScope() { SetAnsiCodePage(before_); }

 private:
  unsigned before_ = AnsiCodePage();
};

// A temporary directory that is drive d: and, with `Enter`, the current directory.
class ScratchTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = testing::TempDir() + "/platform_base_XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    root = std::filesystem::canonical(name).native();
    SetDriveRoot('d', root);
  }
  void TearDown() override {
    std::filesystem::current_path(before_);
    SetDriveRoot('c', "/");
    SetDriveRoot('d', "");
    SetDriveRoot('e', "");
    std::filesystem::remove_all(root);
  }

  std::string Native(std::string_view name) const { return root + "/" + std::string(name); }
  // Makes the directories above it too.
  std::string Write(std::string_view name, std::string_view text = "text") const {
    const std::filesystem::path file = Native(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file.native();
  }
  std::string MakePipe(std::string_view name) const {
    EXPECT_EQ(mkfifo(Native(name).c_str(), 0600), 0);
    return Native(name);
  }
  void Enter(std::string_view name) const {
    std::filesystem::create_directories(Native(name));
    std::filesystem::current_path(Native(name));
  }

  std::string root;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

}  // namespace platform
