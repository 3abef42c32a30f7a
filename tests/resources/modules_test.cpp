// The resources as modules carry them: the resource library with its exports and a component.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
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

// A module beside the test program, loaded for the length of a test.
using Loaded = std::unique_ptr<platform::Module, void (*)(platform::HMODULE)>;

std::string Native(const std::string& name) {
  return BINARY_DIR "/bin/" + name;
}
Loaded Load(const std::string& name) {
  return {platform::LoadLibrary(platform::FromNativePath(Native(name)).value()), platform::FreeLibrary};
}

TEST(ResourceLibrary, SaysThatItIsOfTheVersionThatTheComponentTakes) {
  const Loaded library = Load("PvwIOExtRes.dll");
  ASSERT_NE(library, nullptr);
  std::uint32_t major = 9, minor = 9, ordinal = 9;
  using GiveTwo = std::int32_t(std::uint32_t*, std::uint32_t*);
  EXPECT_EQ(platform::GetProc<GiveTwo>(library.get(), "GetDLLInterfaceVersion")(&major, &minor), 0);
  EXPECT_EQ(platform::GetProc<std::int32_t(std::uint32_t*)>(library.get(), "GetDLLOrdinalVersion")(&ordinal),
            0);
  EXPECT_EQ(std::tie(major, minor, ordinal), std::make_tuple(1u, 0u, 1u));
}

TEST(ResourceLibrary, GivesATextIntoEnoughRoomAndElseTheSizeThatItNeeds) {
  const Loaded library = Load("PvwIOExtRes.dll");
  ASSERT_NE(library, nullptr);
  const std::pair<const char*, std::string> texts[] = {{"GetDLLType", "Resource"},
                                                       {"GetDLLProductVersion", "1.0"}};
  for (const auto& [name, text] : texts) {
    auto* const give = platform::GetProc<std::int32_t(char*, std::uint32_t*)>(library.get(), name);
    ASSERT_NE(give, nullptr) << name;
    const auto needed = static_cast<std::uint32_t>(text.size() + 1);
    for (const std::uint32_t room : {0u, needed - 1, needed, 1024u}) {
      SCOPED_TRACE(name + (" " + std::to_string(room)));
      // Exactly as large as it says, so that a byte too many is seen.
      const auto buffer = std::make_unique<char[]>(room);
      std::uint32_t size = room;
      const bool fits = room >= needed;
      EXPECT_EQ(give(buffer.get(), &size) > 0, !fits);
      EXPECT_EQ(size, fits ? room : needed);
      EXPECT_EQ(std::string(buffer.get(), std::min(room, needed - 1)), fits ? text : std::string(room, '\0'));
    }
    std::uint32_t size = 1024;
    EXPECT_GT(give(nullptr, &size), 0) << "no buffer";
    EXPECT_EQ(size, needed);
  }
}

TEST(ResourceLibrary, ExportsFourNamesAndNoMore) {
  const std::string command = "nm -D --defined-only '" + Native("PvwIOExtRes.dll") + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> listing(popen(command.c_str(), "r"), pclose);
  ASSERT_NE(listing, nullptr);
  std::vector<std::string> names;
  char name[256];
  while (std::fscanf(listing.get(), "%*s %*s %255s", name) == 1) names.emplace_back(name);
  EXPECT_THAT(names, testing::UnorderedElementsAre("GetDLLInterfaceVersion", "GetDLLOrdinalVersion",
                                                   "GetDLLProductVersion", "GetDLLType"));
}

TEST(Accelerators, ThePanesLieInTheLibraryAndTheFramesInTheComponent) {
  const Loaded library = Load("PvwIOExtRes.dll");
  ASSERT_NE(library, nullptr);
  const Loaded component = Load("bare_component.dll");
  const auto keys = [](const Loaded& module, std::uint32_t id) {
    std::string text;
    const auto found = platform::LoadAccelerators(module.get(), id);
    for (const auto& key : found.value_or(std::span<platform::AcceleratorKey>())) {
      text += std::to_string(key.modifiers) + " " + std::to_string(key.key) + " " +
              std::to_string(key.command) + ";";
    }
    return text;
  };
  const std::string control = std::to_string(platform::kAccelControl) + " ";
  EXPECT_EQ(keys(library, IDA_PANE), control + "70 39507;0 114 39512;");
  EXPECT_EQ(keys(component, IDA_FRAME), control + "73 32770;") << "though nothing in the module refers to it";
  EXPECT_EQ(keys(library, IDA_FRAME) + keys(component, IDA_PANE), "");
}

}  // namespace
}  // namespace pvw
