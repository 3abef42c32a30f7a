// The resources as modules carry them: the resource library with its exports, a component, an override.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "platform/base/module.h"
#include "platform/base/paths.h"
#include "platform/base/resources.h"
#include "resources/ids.h"

namespace pvw {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

// A module beside the test program, loaded for the length of a test.
class Loaded {
 public:
  explicit Loaded(const std::string& name)
      : module_(platform::LoadLibrary(platform::FromNativePath(Native(name)).value())) {
    EXPECT_NE(module_, nullptr) << name;
  }
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;
  ~Loaded() { platform::FreeLibrary(module_); }

  platform::HMODULE Get() const { return module_; }
  template <typename Function>
  Function* Proc(const char* name) const {
    return platform::GetProc<Function>(module_, name);
  }
  static std::string Native(const std::string& name) { return std::string(BINARY_DIR "/bin/") + name; }

 private:
  platform::HMODULE module_;
};

using GiveText = std::int32_t(char*, std::uint32_t*);

TEST(ResourceLibrary, SaysThatItIsOfTheKindAndVersionThatTheComponentTakes) {
  const Loaded library("PvwIOExtRes.dll");
  std::uint32_t major = 9;
  std::uint32_t minor = 9;
  std::uint32_t ordinal = 9;
  EXPECT_EQ(
      library.Proc<std::int32_t(std::uint32_t*, std::uint32_t*)>("GetDLLInterfaceVersion")(&major, &minor),
      0);
  EXPECT_EQ(library.Proc<std::int32_t(std::uint32_t*)>("GetDLLOrdinalVersion")(&ordinal), 0);
  EXPECT_EQ(std::tie(major, minor, ordinal), std::make_tuple(1u, 0u, 1u));
}

TEST(ResourceLibrary, GivesATextIntoEnoughRoomAndElseTheSizeThatItNeeds) {
  struct Row {
    const char* name;
    std::uint32_t room;
    bool fits;
  };
  const std::pair<const char*, std::string> texts[] = {{"GetDLLType", "Resource"},
                                                       {"GetDLLProductVersion", "1.0"}};
  const Loaded library("PvwIOExtRes.dll");
  for (const auto& [name, text] : texts) {
    const auto needed = static_cast<std::uint32_t>(text.size() + 1);
    const Row rows[] = {{"no room at all", 0, false},
                        {"room for all but the terminator", needed - 1, false},
                        {"just enough", needed, true},
                        {"more than enough", 1024, true}};
    GiveText* const give = library.Proc<GiveText>(name);
    ASSERT_NE(give, nullptr) << name;
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(name) + ": " + row.name);
      // Exactly as large as it says, so that a byte too many is seen.
      const auto buffer = std::make_unique<char[]>(row.room);
      std::uint32_t size = row.room;
      EXPECT_EQ(give(buffer.get(), &size) > 0, !row.fits);
      EXPECT_EQ(size, row.fits ? row.room : needed);
      if (row.fits) {
        EXPECT_EQ(std::string(buffer.get()), text);
      } else {
        EXPECT_EQ(std::string(buffer.get(), row.room), std::string(row.room, '\0')) << "left alone";
      }
    }
    std::uint32_t size = 1024;
    EXPECT_GT(give(nullptr, &size), 0) << "no buffer";
    EXPECT_EQ(size, needed);
  }
}

TEST(ResourceLibrary, ExportsFourNamesAndNoMore) {
  const std::string command = "nm -D --defined-only '" + Loaded::Native("PvwIOExtRes.dll") + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> listing(popen(command.c_str(), "r"), pclose);
  ASSERT_NE(listing, nullptr);
  std::vector<std::string> names;
  char name[256];
  while (std::fscanf(listing.get(), "%*s %*s %255s", name) == 1) names.emplace_back(name);
  EXPECT_THAT(names, UnorderedElementsAre("GetDLLInterfaceVersion", "GetDLLOrdinalVersion",
                                          "GetDLLProductVersion", "GetDLLType"));
}

using Key = std::tuple<int, int, std::uint32_t>;

std::vector<Key> Keys(const Loaded& module, std::uint32_t id) {
  std::vector<Key> keys;
  for (const auto& key :
       platform::LoadAccelerators(module.Get(), id).value_or(std::span<platform::AcceleratorKey>())) {
    keys.emplace_back(key.modifiers, key.key, key.command);
  }
  return keys;
}

TEST(Accelerators, ThePanesLieInTheLibraryAndTheFramesInTheComponent) {
  const Loaded library("PvwIOExtRes.dll");
  const Loaded component("bare_component.dll");

  EXPECT_THAT(Keys(library, IDA_PANE),
              ElementsAre(Key(platform::kAccelControl, 'F', 39507), Key(0, 0x72, 39512)));
  EXPECT_THAT(Keys(component, IDA_FRAME), ElementsAre(Key(platform::kAccelControl, 'I', 32770)))
      << "also when nothing in the module refers to its resources";
  EXPECT_FALSE(platform::LoadAccelerators(library.Get(), IDA_FRAME));
  EXPECT_FALSE(platform::LoadAccelerators(component.Get(), IDA_PANE));
}

TEST(Override, ATextOfTheLibraryStandsBeforeTheComponentsWhileItIsCurrent) {
  {
    const Loaded library("override_library.dll");
    EXPECT_EQ(platform::LoadString(IDS_COLUMN_NAME), "Name") << "loaded and not current";

    platform::SetResourceModule(library.Get());
    EXPECT_EQ(platform::LoadString(IDS_COLUMN_NAME), "Nom");
    EXPECT_EQ(platform::LoadString(IDS_COLUMN_ADDRESS), "Address") << "a text that the library lacks";
  }
  EXPECT_EQ(platform::LoadString(IDS_COLUMN_NAME), "Name") << "the library is gone";
  platform::SetResourceModule(nullptr);
}

}  // namespace
}  // namespace pvw
