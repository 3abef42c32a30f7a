#include "platform/base/module.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <cmath>
#include <vector>

#include "platform/base/app.h"
#include "platform/base/resources.h"
#include "tests/platform/base/scratch.h"

namespace platform {
namespace {

const void* CosineInUse() {
  return reinterpret_cast<const void*>(static_cast<double (*)(double)>(std::cos));
}

class ModuleTest : public ScratchTest {
 protected:
  // A library that this program has loaded already, the one for mathematics.
  const std::string library = GetModuleFileName(CosineInUse()).value();
};

TEST_F(ModuleTest, ALoadedModuleIsKnownByItsFileAndImage) {
  HMODULE first = LoadLibrary(library);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(LoadLibrary(library), first);
  EXPECT_EQ(ModuleImage(first), ImageOf(CosineInUse()));
  FreeLibrary(first);

  auto* const cosine = GetProc<double(double)>(first, "cos");
  ASSERT_NE(cosine, nullptr) << "one of two loads is left";
  EXPECT_EQ(cosine(0.0), 1.0);
  EXPECT_EQ(GetProcAddress(first, "malloc"), nullptr) << "a function of a library that it needs";
  EXPECT_EQ(GetProcAddress(nullptr, "cos"), nullptr);
  EXPECT_EQ(ModuleImage(nullptr), nullptr);
  FreeLibrary(first);

  const auto on_heap = std::make_unique<int>();
  EXPECT_EQ(GetModuleFileName(on_heap.get()), std::nullopt);
  EXPECT_EQ(ImageOf(on_heap.get()), nullptr);
  Enter("elsewhere");
  static const CWinApp app;
  EXPECT_THAT(app.GetModuleFileName(), testing::Optional(testing::EndsWith("\\test_platform_base")));
}

TEST_F(ModuleTest, WhatIsNoWholeLibraryIsRefused) {
  const std::string native = ToNativePath(library).value();
  const auto size = std::filesystem::file_size(native);
  MakePipe("pipe");
  Write("text.dll", "not a library");
  Write("empty.dll", "");
  std::filesystem::create_directory(Native("directory.dll"));
  for (const char* name : {"pipe", "text.dll", "empty.dll", "directory.dll", "none.dll"}) {
    EXPECT_EQ(LoadLibrary(std::string("d:\\") + name), nullptr) << name;
  }
  // Cut short up to its last segment it would end the process inside the system's loader.
  std::filesystem::copy_file(native, Native("part.dll"));
  HMODULE whole = LoadLibrary("d:\\part.dll");
  EXPECT_NE(whole, nullptr);
  FreeLibrary(whole);
  EXPECT_EQ(ModuleImage(whole), nullptr) << "gone";
  EXPECT_EQ(GetProcAddress(whole, "cos"), nullptr);
  for (const std::uintmax_t part : std::vector<std::uintmax_t>{size / 2, 4096, 1000, 60}) {
    std::filesystem::resize_file(Native("part.dll"), part);
    EXPECT_EQ(LoadLibrary("d:\\part.dll"), nullptr) << part;
  }
}

// ---- Resources. Every table here lies in the test program, which therefore is the library as well.

constexpr StringResource kComponentStrings[] = {
    {900001, "component"}, {900002, "shared"}, {900004, "caf\u00e9"}, {900005, nullptr}};
constexpr StringResource kLibraryStrings[] = {{900002, "override"}, {900003, "library"}};
constexpr StringResource kLaterStrings[] = {{900002, "later"}};
constexpr ResourceTables kComponent{kComponentStrings, {}};
constexpr ResourceTables kLibrary{kLibraryStrings, {}};
constexpr ResourceTables kLater{kLaterStrings, {}};

TEST(ResourcesTest, ACurrentLibraryOverridesTheComponent) {
  const ResourceRegistration component(kComponent, ResourceRole::kComponent);
  EXPECT_EQ(LoadString(900005), "");
  {
    const ResourceRegistration library(kLibrary, ResourceRole::kLibrary);
    EXPECT_EQ(LoadString(900003), "") << "a library counts once it is current";
    SetResourceModule(reinterpret_cast<HMODULE>(dlopen(nullptr, RTLD_NOW)));
    EXPECT_EQ(LoadString(900002), "override");
    EXPECT_EQ(LoadString(900001), "component");
  }
  EXPECT_EQ(LoadString(900002), "shared") << "its tables are gone, though it is still current";
  SetResourceModule(nullptr);
  {
    const ResourceRegistration later(kLater, ResourceRole::kComponent);
    EXPECT_EQ(LoadString(900002), "later") << "the latest component is asked first";
    EXPECT_EQ(LoadString(900001), "component");
  }
  const CodePageScope scope(1252);
  EXPECT_EQ(LoadString(900004), "caf\xE9") << "texts come in the page";
}

}  // namespace
}  // namespace platform
