#include "resources/strings.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "resources/ids.h"

namespace pvw {
namespace {

TEST(ComponentStrings, EachIdStandsOnceAndIsFound) {
  std::set<std::uint32_t> seen;
  for (const platform::StringResource& string : ComponentStrings()) {
    EXPECT_TRUE(seen.insert(string.id).second) << string.id;
    EXPECT_EQ(platform::LoadString(string.id), string.text);
  }
}

// Texts that a host shows.
TEST(ComponentStrings, TextsAreExactToTheCharacter) {
  EXPECT_EQ(platform::LoadString(32778), "Open Customise toolbar dialog");
  EXPECT_EQ(platform::LoadString(32826), "Lock Refresh IO View\nLockRefresh");
}

}  // namespace
}  // namespace pvw
