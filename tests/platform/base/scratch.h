// What the tests of this folder share: a directory of their own, and settings of the process put back.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/scopes.h"
#include "tests/support/temp_dir.h"

namespace platform {

using CodePageScope = pvw::test::CodePage;

// A temporary directory that is drive d: and, with `Enter`, the current directory.
class ScratchTest : public testing::Test {
 protected:
  ScratchTest() { SetDriveRoot('d', root); }
  ~ScratchTest() override {
    std::filesystem::current_path(before_);
    SetDriveRoot('c', "/");
    SetDriveRoot('d', "");
    SetDriveRoot('e', "");
  }

  std::string Native(std::string_view name) const { return root + "/" + std::string(name); }
  // Makes the directories above it too.
  std::string Write(std::string_view name, std::string_view text = "text") const {
    const std::filesystem::path file = Native(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file.native();
  }
  void MakePipe(std::string_view name) const { EXPECT_EQ(mkfifo(Native(name).c_str(), 0600), 0); }
  void Enter(std::string_view name) const {
    std::filesystem::create_directories(Native(name));
    std::filesystem::current_path(Native(name));
  }

 private:
  const std::filesystem::path before_ = std::filesystem::current_path();
  const pvw::test::TempDir dir_;

 protected:
  const std::string root = std::filesystem::canonical(dir_.Native()).native();
};

}  // namespace platform
