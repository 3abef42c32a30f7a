// Sessions where a story can't look: at windows that the host hasn't shown, and at more than one project.

#include <gmock/gmock.h>

#include "tests/component/component_world.h"

namespace pvw {
namespace {

using platform::ScopedBstr;
using testing::ElementsAre;

class SessionTest : public test::ConnectedTest {};

TEST_F(SessionTest, ReopensTheViewWithoutShowingItOnTheDevicesFileWhenItsOwnIsADirectory) {
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOCtrlIOFile", "$(CONFIGDIR)");
  world.LoadSession();
  EXPECT_THAT(world.host.Asked("Get"), testing::Contains("GetConfigurationKey ws prj cfg"));
  ASSERT_NE(world.Dock(), nullptr);
  EXPECT_FALSE(world.Dock()->shown) << "that is up to the host";
  EXPECT_EQ(world.Dock()->title, "IO");
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "TIMER"));
  EXPECT_TRUE(world.CanOpenView());
  for (const char* when : {"not built again", "nor while it shows"}) {
    world.OpenView();
    EXPECT_TRUE(world.Dock()->shown);
    EXPECT_FALSE(world.CanOpenView());
    EXPECT_EQ(world.PaneCount(), 2u) << when;
  }
  world.TellSink(platform::WM_USER + 3, world.Pane(0));
  EXPECT_FALSE(world.Dock()->shown);
}

TEST_F(SessionTest, EachProjectsViewHasAWindowOfItsOwn) {
  world.OpenView();
  const ScopedBstr workspace("ws"), project("lab"), name("day"), configuration("rel");
  world.Sessions()->LoadSessionData(workspace.Get(), project.Get(), name.Get(), configuration.Get());
  world.OpenView();
  auto* const other = world.host.Ui().Dock("{WK_00000001_IO}key of ws labkey of ws lab rel");
  ASSERT_NE(other, nullptr);
  EXPECT_EQ(world.host.Ui().Pages(other->window->GetHandle()).size(), 2u);
  EXPECT_EQ(world.host.Ui().Owners().size(), 6u) << "the panes of the first are gone";
}

TEST_F(SessionTest, OneThatIsLoadedEndsTheLockAndLetsTheColourThatWaitedThrough) {
  world.OpenView();
  world.Format()->SetTextColours(3, 0);
  platform::SendMessage(world.Pane(0), platform::WM_COMMAND, 32826);
  world.Format()->SetTextColours(4, 6);
  world.host.ClearTranscript();
  world.LoadSession();
  EXPECT_THAT(world.host.Asked("Write"),
              ElementsAre("WriteInt PVW_IO_BKCOLOUR = 0", "WriteInt PVW_IO_FGCOLOUR = 4"));
  world.Expand(0, 0);
  EXPECT_THAT(world.Rows(0), testing::SizeIs(4)) << "rows open again";
}

}  // namespace
}  // namespace pvw
