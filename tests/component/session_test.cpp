// Sessions and news of the target, at windows that the host hasn't shown and at more than one project.

#include <gmock/gmock.h>

#include <functional>

#include "host/events.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using testing::ElementsAre;

class SessionTest : public test::ConnectedTest {};

TEST_F(SessionTest, ReopensTheViewWithoutShowingItOnTheDevicesFileWhenItsOwnIsADirectory) {
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOCtrlIOFile", "$(CONFIGDIR)");
  world.LoadSession();
  ASSERT_NE(world.Dock(), nullptr);
  EXPECT_FALSE(world.Dock()->shown) << "that is up to the host";
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "TIMER"));
  world.OpenView();
  EXPECT_TRUE(world.Dock()->shown);
  EXPECT_EQ(world.PaneCount(), 2u) << "not built again";
}

TEST_F(SessionTest, EachProjectsViewHasAWindowOfItsOwn) {
  world.OpenView();
  world.LoadSession("lab", "rel");
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

TEST_F(SessionTest, TheViewIsReadForStepsOfAnyKindAndOnlyForTheEventsThatItKnows) {
  world.OpenView();
  world.Expand(0, 0);
  const auto steps = [&](std::uint32_t kind, std::uint32_t mode) {
    world.Stepping()->OnStepBegin(kind, mode);
    world.Stepping()->OnStep();
    world.Stepping()->OnStepEnd();
  };
  const auto fire = [&](const platform::GUID& event) { return [&] { instance.Fire(event); }; };
  const struct {
    const char* name;
    std::function<void()> news;
    std::size_t reads;
  } rows[] = {{"a quiet step", [&] { steps(1, 7); }, 1},
              {"a step of another kind", [&] { steps(3, 8); }, 2},
              {"the first refresh", fire(EVENT_VIEW_REFRESH_1), 1},
              {"the third refresh", fire(EVENT_VIEW_REFRESH_3), 1},
              {"another event", fire(IID_IQDebugger), 0},
              {"the target goes", fire(EVENT_TARGET_DISCONNECTED), 0},
              {"a step without a target", [&] { steps(1, 0); }, 0},
              {"the target comes", fire(EVENT_TARGET_CONNECTED), 0}};
  for (const auto& row : rows) {
    world.TakeReads();
    row.news();
    EXPECT_EQ(world.TakeReads(), row.reads) << row.name;
  }
}

}  // namespace
}  // namespace pvw
