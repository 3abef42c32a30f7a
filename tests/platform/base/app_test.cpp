#include "platform/base/app.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <stdexcept>

namespace platform {
namespace {

TEST(AppTest, TheLatestIsCurrentUnlessAScopeSaysOtherwise) {
  EXPECT_EQ(CWinApp::Current(), nullptr);
  std::filesystem::current_path("/");  // which doesn't change where the program lies
  static CWinApp first;
  EXPECT_THAT(first.GetModuleFileName(), testing::Optional(testing::EndsWith("\\test_platform_base")));
  {
    CWinApp second;
    EXPECT_EQ(CWinApp::Current(), &second);
    try {
      const ScopedModuleState scope(first);
      EXPECT_EQ(CWinApp::Current(), &first);
      throw std::runtime_error("a way out");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(CWinApp::Current(), &second);
  }
  EXPECT_EQ(CWinApp::Current(), &first);
}

}  // namespace
}  // namespace platform
