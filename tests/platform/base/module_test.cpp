#include "platform/base/module.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <cmath>
#include <vector>

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
  EXPECT_EQ(GetModuleFileName(reinterpret_cast<const void*>(cosine)), library);
  FreeLibrary(first);
}

TEST_F(ModuleTest, OnlyTheModulesOwnFunctionsAreFound) {
  HMODULE module = LoadLibrary(library);
  EXPECT_EQ(GetProcAddress(module, "no_such_function"), nullptr);
  EXPECT_EQ(GetProcAddress(module, "malloc"), nullptr) << "a function of a library that it needs";
  EXPECT_EQ(GetProcAddress(nullptr, "cos"), nullptr);
  FreeLibrary(module);
}

TEST_F(ModuleTest, TheProgramAndTheHeapHaveTheirOwnAnswers) {
  static const int in_program = 0;
  const std::string program = std::filesystem::read_symlink("/proc/self/exe").native();
  std::filesystem::current_path("/");
  EXPECT_EQ(GetModuleFileName(&in_program), FromNativePath(program));
  const auto on_heap = std::make_unique<int>();
  EXPECT_EQ(GetModuleFileName(on_heap.get()), std::nullopt);
  EXPECT_EQ(ImageOf(on_heap.get()), nullptr);
  EXPECT_EQ(ModuleImage(nullptr), nullptr);
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
  // Cut short anywhere up to its last segment it would end the process inside the system's loader; what
  // lies behind that isn't loaded.
  std::filesystem::copy_file(native, Native("part.dll"));
  HMODULE whole = LoadLibrary("d:\\part.dll");
  EXPECT_NE(whole, nullptr);
  FreeLibrary(whole);
  EXPECT_EQ(ModuleImage(whole), nullptr) << "gone";
  EXPECT_EQ(GetProcAddress(whole, "cos"), nullptr);
  for (std::uintmax_t part = size; part > size - 4096; part -= 64) {
    std::filesystem::resize_file(Native("part.dll"), part);
    FreeLibrary(LoadLibrary("d:\\part.dll"));
  }
  for (const std::uintmax_t part :
       {size / 2, std::uintmax_t{4096}, std::uintmax_t{1000}, std::uintmax_t{60}}) {
    std::filesystem::resize_file(Native("part.dll"), part);
    EXPECT_EQ(LoadLibrary("d:\\part.dll"), nullptr) << part;
  }
}

// ---- Resources. Every table here lies in the test program, which therefore is the library as well.

constexpr StringResource kComponentStrings[] = {{900001, "component"},
                                                {900002, "shared"},
                                                {900001, "repeated"},
                                                {900004, "caf\u00e9"},
                                                {900005, nullptr}};
constexpr StringResource kLibraryStrings[] = {{900002, "override"}, {900003, "library"}};
constexpr StringResource kLaterStrings[] = {{900002, "later"}};
constexpr AcceleratorKey kKeys[] = {{kAccelControl, 'I', 32770}, {kAccelShift | kAccelAlt, 0x70, 2}};
constexpr AcceleratorResource kAccelerators[] = {{1906, kKeys}};
constexpr ResourceTables kComponent{kComponentStrings, {}};
constexpr ResourceTables kLibrary{kLibraryStrings, kAccelerators};
constexpr ResourceTables kLater{kLaterStrings, {}};

class ResourcesTest : public testing::Test {
 protected:
  ~ResourcesTest() override { SetResourceModule(nullptr); }

  HMODULE program = reinterpret_cast<HMODULE>(dlopen(nullptr, RTLD_NOW));
};

TEST_F(ResourcesTest, ACurrentLibraryOverridesTheComponent) {
  const ResourceRegistration component(kComponent, ResourceRole::kComponent);
  EXPECT_EQ(LoadString(900001), "component") << "the first of a repeated id";
  EXPECT_EQ(LoadString(900002), "shared");
  EXPECT_EQ(LoadString(900005), "");
  {
    const ResourceRegistration library(kLibrary, ResourceRole::kLibrary);
    EXPECT_EQ(LoadString(900003), "") << "a library counts once it is current";
    SetResourceModule(program);
    EXPECT_EQ(ResourceModule(), program);
    EXPECT_EQ(LoadString(900002), "override");
    EXPECT_EQ(LoadString(900003), "library");
    EXPECT_EQ(LoadString(900001), "component");
    EXPECT_EQ(LoadString(900009), "");
  }
  EXPECT_EQ(LoadString(900002), "shared") << "its tables are gone, though it is still current";
  EXPECT_EQ(LoadString(900003), "");
}

TEST_F(ResourcesTest, TheLatestComponentIsAskedFirst) {
  const ResourceRegistration component(kComponent, ResourceRole::kComponent);
  auto later = std::make_unique<ResourceRegistration>(kLater, ResourceRole::kComponent);
  EXPECT_EQ(LoadString(900002), "later");
  EXPECT_EQ(LoadString(900001), "component");
  later.reset();
  EXPECT_EQ(LoadString(900002), "shared");
}

TEST_F(ResourcesTest, TextsComeInThePage) {
  const ResourceRegistration component(kComponent, ResourceRole::kComponent);
  const CodePageScope scope(1252);
  EXPECT_EQ(LoadString(900004), "caf\xE9");
}

TEST_F(ResourcesTest, AcceleratorsBelongToOneModule) {
  const ResourceRegistration library(kLibrary, ResourceRole::kLibrary);
  const auto keys = LoadAccelerators(program, 1906);
  ASSERT_TRUE(keys.has_value());
  EXPECT_EQ(keys->data(), kKeys);
  EXPECT_EQ(keys->size(), 2u);
  EXPECT_FALSE(LoadAccelerators(program, 1907).has_value());
  EXPECT_FALSE(LoadAccelerators(nullptr, 1906).has_value());
  HMODULE other = LoadLibrary(GetModuleFileName(CosineInUse()).value());
  EXPECT_FALSE(LoadAccelerators(other, 1906).has_value());
  FreeLibrary(other);
}

}  // namespace
}  // namespace platform
