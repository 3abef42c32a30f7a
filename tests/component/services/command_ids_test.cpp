#include "component/services/command_ids.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/services/module_state.h"
#include "tests/component/services/menu_world.h"

namespace pvw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class CommandIdsTest : public testing::Test {
 protected:
  const platform::ResourceRegistration resources{test::kMenuWorld, platform::ResourceRole::kLibrary};
  const platform::HMODULE module = ComponentModule();
};

TEST_F(CommandIdsTest, AMenuGivesTheCommandsThatHaveATextAndAnIdInRange) {
  EXPECT_THAT(MenuCommandIds(module, test::kMenu), Optional(ElementsAre(28672, 61439, 28672)));
  EXPECT_THAT(MenuCommandIds(module, test::kDeepMenu), Optional(ElementsAre(30001, 30002, 30003, 30004)))
      << "a submenu's in its place, and none for the submenu itself";
  EXPECT_THAT(MenuCommandIds(module, test::kEmptyMenu), Optional(IsEmpty()));
  EXPECT_EQ(MenuCommandIds(module, 99), std::nullopt);
  EXPECT_EQ(MenuCommandIds(nullptr, test::kMenu), std::nullopt) << "it lies in a module that isn't asked";
}

TEST_F(CommandIdsTest, AToolbarGivesItsButtonsWithoutSeparators) {
  EXPECT_THAT(ToolbarCommandIds(module, 0, test::kToolbar), Optional(ElementsAre(32817, 5, 32826)))
      << "the second id stands in for a first of 0";
  EXPECT_EQ(ToolbarCommandIds(module, 99, test::kToolbar), std::nullopt) << "and for no other";
  EXPECT_THAT(ToolbarCommandIds(module, test::kCutToolbar, 0), Optional(ElementsAre(32817, 32826)))
      << "a count beyond the end of the resource";
  EXPECT_THAT(ToolbarCommandIds(module, test::kHeadlessToolbar, 0), Optional(IsEmpty()));
  EXPECT_EQ(platform::ResourceModule(), nullptr) << "as before";
}

}  // namespace
}  // namespace pvw
