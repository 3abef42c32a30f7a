#include "component/services/module_state.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

#include "platform/base/paths.h"

namespace pvw {
namespace {

using platform::CWinApp;

std::string Other() {
  return platform::FromNativePath(BINARY_DIR "/test_modules/other_component.so").value();
}

// Lies in the file of the component's code, as an application object does.
std::optional<CWinApp> g_own;

TEST(ModuleState, TheComponentsOwnApplicationIsCurrentUntilTheScopeEnds) {
  g_own.emplace();
  const platform::HMODULE other = platform::LoadLibrary(Other());
  ASSERT_NE(other, nullptr);
  CWinApp* const others = platform::GetProc<CWinApp*()>(other, "GetApp")();
  ASSERT_EQ(CWinApp::Current(), others) << "the latest, when no scope says otherwise";

  try {
    const CModuleState state;
    EXPECT_EQ(CWinApp::Current(), &*g_own);
    throw std::runtime_error("out");
  } catch (const std::runtime_error&) {
  }
  EXPECT_EQ(CWinApp::Current(), others);
  platform::FreeLibrary(other);
  g_own.reset();
}

TEST(ModuleState, TheComponentsHandleIsThatOfTheFileWithItsCode) {
  EXPECT_EQ(platform::ModuleImage(ComponentModule()), platform::ImageOf(__func__));
}

}  // namespace
}  // namespace pvw
