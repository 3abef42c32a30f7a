#include "support/dll_resource.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <filesystem>
#include <memory>

#include "platform/base/paths.h"
#include "platform/base/resources.h"
#include "tests/support/temp_dir.h"
#include "tests/support_library/modules/library_script.h"

namespace pvw {
namespace {

using test::LibraryScript;
using test::TempDir;
using testing::ElementsAre;

const std::string kScripted = BINARY_DIR "/test_modules/scripted_library.so";
const std::string kBare = BINARY_DIR "/test_modules/bare_library.so";

std::string DrivePath(const std::string& native) {
  return platform::FromNativePath(native).value();
}

bool IsLoaded(const std::string& native) {
  void* module = dlopen(native.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (module != nullptr) dlclose(module);
  return module != nullptr;
}

// Keeps the scripted library loaded, so that what a test sets in its script is there when the loader comes.
struct Scripted {
  const std::unique_ptr<platform::Module, void (*)(platform::HMODULE)> module{
      platform::LoadLibrary(DrivePath(kScripted)), platform::FreeLibrary};
  LibraryScript& script = *platform::GetProc<LibraryScript*()>(module.get(), "GetScript")();
};

TEST(ResourceLibrary, IsAcceptedOnlyAsOfTheRightTypeAndVersion) {
  const std::string path = DrivePath(kScripted);
  const std::string no_resources = "Dll " + path + " is not a resources Dll";
  const std::string wrong_version = "Incorrect version of Resources - exiting";
  struct Row {
    const char* name;
    LibraryScript script;
    std::string error;  // empty: accepted
  };
  const Row rows[] = {
      {"a good one", {}, ""},
      {"a type that it fills in and refuses to tell", {.type = {{"Resource", -1}}}, no_resources},
      {"a newer interface", {.minor = 1}, wrong_version},
      {"another ordinal version", {.ordinal = 2}, wrong_version},
      {"a product version that fits at last", {.product = {{"*", 40, 2000}, {"1.0"}}}, ""},
      {"one that fits no second time", {.product = {{"*", 1, 5}, {"1.0", 1, 9}, {"1.0"}}}, wrong_version},
      {"one of a size that no text has", {.product = {{"1.0", 1, 0xFFFFFFFF}, {"1.0"}}}, wrong_version},
      {"one that fills its buffer to the last byte", {.product = {{"*"}}}, wrong_version},
      {"wrong in both, and the type is told", {.ordinal = 2, .type = {{""}}}, no_resources},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    {
      const Scripted scripted;
      scripted.script = row.script;
      std::string error;
      const auto library = LoadResourceLibrary(path, error);
      EXPECT_EQ(error, row.error);
      ASSERT_EQ(library != nullptr, row.error.empty());
      EXPECT_EQ(platform::ResourceModule(), library == nullptr ? nullptr : library->Module());
    }
    EXPECT_FALSE(IsLoaded(kScripted)) << "a refused library is freed, an accepted one with its object";
    EXPECT_EQ(platform::ResourceModule(), nullptr);
  }
}

TEST(ResourceLibrary, TellsWhyAFileCantBeLoaded) {
  const TempDir dir;
  std::string error;
  for (const std::string& path :
       {dir.Path("missing.dll"), dir.Write("a%s.dll", "text"), dir.Path(), std::string()}) {
    EXPECT_EQ(LoadResourceLibrary(path, error), nullptr);
    EXPECT_EQ(error, "Error loading resource DLL " + path);
  }
  EXPECT_EQ(LoadResourceLibrary(DrivePath(kBare), error), nullptr);
  EXPECT_EQ(error, "Dll " + DrivePath(kBare) + " is not a resources Dll") << "it lacks every export";
  EXPECT_FALSE(IsLoaded(kBare));
}

TEST(ResourceLibrary, AnAssignedCopyHoldsTheModuleForItself) {
  CDllResource copy(DrivePath(kBare));
  ASSERT_TRUE(copy.Load());
  {
    const Scripted scripted;
    std::string error;
    const auto library = LoadResourceLibrary(DrivePath(kScripted), error);
    ASSERT_NE(library, nullptr);
    EXPECT_THAT(scripted.script.asked,
                ElementsAre("interface", "product 1024 zeroed", "ordinal", "type 1024 zeroed"));
    copy.Assign(*library);
    copy.Assign(copy);
    EXPECT_FALSE(IsLoaded(kBare)) << "what it held before is freed";
  }
  EXPECT_TRUE(IsLoaded(kScripted));
  EXPECT_EQ(copy.Path() + copy.Type() + copy.ProductVersion(), DrivePath(kScripted) + "Resource1.0");
  copy.Assign(CDllResource("c:\\other.dll"));
  EXPECT_FALSE(IsLoaded(kScripted));
  EXPECT_EQ(copy.Path() + copy.Type(), "c:\\other.dll");
}

TEST(ResourceLibrary, LookupsGoToTheLatestInstanceThatIsStillConnected) {
  const TempDir dir;
  for (const char* name : {"a.so", "b.so", "c.so"}) std::filesystem::copy_file(kScripted, dir.Native(name));
  std::string error;
  auto a = LoadResourceLibrary(dir.Path("a.so"), error);
  auto b = LoadResourceLibrary(dir.Path("b.so"), error);
  auto c = LoadResourceLibrary(dir.Path("c.so"), error);
  ASSERT_TRUE(a && b && c) << error;
  b.reset();
  EXPECT_EQ(LoadResourceLibrary(DrivePath(kBare), error), nullptr);
  EXPECT_EQ(platform::ResourceModule(), c->Module()) << "neither an earlier nor a refused one counts";
  c.reset();
  EXPECT_EQ(platform::ResourceModule(), a->Module());
}

}  // namespace
}  // namespace pvw
