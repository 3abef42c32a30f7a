// A resource library whose file is replaced while the program runs. A new file takes the old one's name; cut
// in place, a file that is in use would end any program that has it mapped.

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/base/files.h"
#include "platform/base/paths.h"
#include "platform/base/resources.h"
#include "support/dll_resource.h"
#include "tests/support/temp_dir.h"

namespace pvw {
namespace {

std::string BytesOf(const std::string& module) {
  return platform::ReadNativeFile(BINARY_DIR "/test_modules/" + module).value().bytes;
}

TEST(ReplacedLibrary, LeavesTheOneInUseAloneAndIsJudgedByTheNextLoad) {
  const std::string good = BytesOf("scripted_library.so");
  const std::string bare = BytesOf("bare_library.so");
  const std::string in_part = good.substr(0, good.size() / 2);
  const test::TempDir dir;
  const std::string path = dir.Path("library.so");
  const std::string missing = "Error loading resource DLL " + path;
  const std::string wrong = "Dll " + path + " is not a resources Dll";
  struct Row {
    const char* name;
    std::string bytes;
    std::string in_use, later;  // the errors of a load while the old one is in use, and behind it
  };
  const Row rows[] = {
      {"another good one", good, "", ""},
      {"no resource library", bare, "", wrong},  // the loader goes by the name while that is in use
      {"the first half of one", in_part, missing, missing},
      {"one of full size, written by half", in_part + std::string(good.size() - in_part.size(), '\0'),
       missing, missing},
      {"the headers alone, at full size", good.substr(0, 4096) + std::string(good.size() - 4096, '\0'),
       missing, missing},
      {"an empty file", "", missing, missing},
  };
  const auto lay = [&](const std::string& bytes) {
    dir.Write("new", bytes);
    std::filesystem::rename(dir.Native("new"), dir.Native("library.so"));
  };
  const auto error_of_load = [&] {
    std::string error;
    const bool loaded = LoadResourceLibrary(path, error) != nullptr;
    EXPECT_EQ(loaded, error.empty());
    return error;
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    lay(good);
    std::string error;
    auto library = LoadResourceLibrary(path, error);
    ASSERT_NE(library, nullptr) << error;

    lay(row.bytes);
    EXPECT_EQ(error_of_load(), row.in_use);
    EXPECT_EQ(platform::ResourceModule(), library->Module());
    library->ReadType(error);
    EXPECT_EQ(library->Type(), "Resource") << "it answers still";

    library.reset();
    EXPECT_EQ(error_of_load(), row.later);
    EXPECT_EQ(platform::ResourceModule(), nullptr);
  }
}

}  // namespace
}  // namespace pvw
