#include "platform/base/app.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace platform {
namespace {

TEST(AppTest, TheLatestIsCurrentUnlessAScopeSaysOtherwise) {
  EXPECT_EQ(CWinApp::Current(), nullptr);
  CWinApp first;
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

TEST(AppTest, AnAppKnowsTheFileThatItLiesIn) {
  static CWinApp app;
  const std::optional<std::string> name = app.GetModuleFileName();
  ASSERT_TRUE(name);
  EXPECT_TRUE(name->ends_with("\\test_platform_base")) << *name;
}

}  // namespace
}  // namespace platform
