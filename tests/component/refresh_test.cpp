// Which news of the target make the view read it.

#include <gmock/gmock.h>

#include <functional>

#include "host/events.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using test::Instance;
using test::World;
using testing::ElementsAre;

class RefreshTest : public test::ConnectedTest {
 protected:
  RefreshTest() {
    world.OpenView();
    world.Expand(0, 0);
    world.TakeReads();
  }
  void Lock() {
    const auto pages = world.host.Ui().Pages(world.Dock()->window->GetHandle());
    platform::SendMessage(pages[0].window, platform::WM_COMMAND, 32826);
  }
};

struct Step {
  World& world;
  Instance& instance;
  void Begin(std::uint32_t count, std::uint32_t kind) { world.Stepping()->OnStepBegin(count, kind); }
  void Single(int times) {
    for (int i = 0; i < times; ++i) world.Stepping()->OnStep();
  }
  void End() { world.Stepping()->OnStepEnd(); }
  void Fire(const platform::GUID& event) { instance.Fire(event); }
};

struct News {
  const char* name;
  std::function<void(Step)> happen;
  std::size_t refreshes;
};

const News kNews[] = {
    {"five quiet steps",
     [](Step s) {
       s.Begin(1, 7);
       s.Single(5);
       s.End();
     },
     1},
    {"five steps",
     [](Step s) {
       s.Begin(1, 0);
       s.Single(5);
       s.End();
     },
     6},
    {"a stop without steps, quiet, with an event in it",
     [](Step s) {
       s.Begin(0, 7);
       s.Single(1);
       s.Fire(EVENT_VIEW_REFRESH_1);
       s.End();
     },
     2},
    {"an end without a begin", [](Step s) { s.End(); }, 1},
    {"a step without a begin", [](Step s) { s.Single(1); }, 1},
    {"a change of memory in the midst of a step",
     [](Step s) {
       s.Begin(1, 0);
       s.Fire(EVENT_MEMORY_CHANGED);
     },
     0},
    {"a change of memory after a quiet step",
     [](Step s) {
       s.Begin(3, 7);
       s.End();
       s.Fire(EVENT_MEMORY_CHANGED);
     },
     2},
    {"each of the refresh events",
     [](Step s) {
       s.Fire(EVENT_MEMORY_CHANGED);
       s.Fire(EVENT_VIEW_REFRESH_1);
       s.Fire(EVENT_VIEW_REFRESH_2);
       s.Fire(EVENT_VIEW_REFRESH_3);
     },
     4},
    {"any other event", [](Step s) { s.Fire(IID_IQDebugger); }, 0},
    {"the host's request", [](Step s) { s.world.Update()->UpdateWindow(); }, 1},
    {"the host's request in the midst of a quiet step",
     [](Step s) {
       s.Begin(1, 7);
       s.world.Update()->UpdateWindow();
     },
     1},
    {"the target's coming back",
     [](Step s) {
       s.Fire(EVENT_TARGET_DISCONNECTED);
       s.Fire(EVENT_TARGET_CONNECTED);
     },
     0},
    {"a stop while the target is away",
     [](Step s) {
       s.Fire(EVENT_TARGET_DISCONNECTED);
       s.End();
     },
     0},
};

TEST_F(RefreshTest, NewsAreRefreshes) {
  for (const News& news : kNews) {
    world.TakeReads();
    news.happen({world, instance});
    EXPECT_EQ(world.TakeReads(), news.refreshes) << news.name;
    world.Stepping()->OnStepEnd();
    instance.Fire(EVENT_TARGET_CONNECTED);
  }
}

TEST_F(RefreshTest, AHiddenViewIsReadAtTheHostsRequestAlone) {
  world.Dock()->shown = false;
  for (const News& news : kNews) {
    const bool asks = std::string_view(news.name).starts_with("the host's request");
    world.TakeReads();
    news.happen({world, instance});
    EXPECT_EQ(world.TakeReads(), asks ? 1u : 0u) << news.name;
    world.Stepping()->OnStepEnd();
    instance.Fire(EVENT_TARGET_CONNECTED);
  }
}

TEST_F(RefreshTest, ALockedViewIsNotReadUntilTheLockEnds) {
  world.host.Poke(0xFF0000, {0x11});
  Lock();
  world.TakeReads();
  for (const News& news : kNews) news.happen({world, instance});
  EXPECT_EQ(world.TakeReads(), 0u);
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 00", "PDIR 01", "TIMER"));

  instance.Fire(EVENT_TARGET_CONNECTED);
  Lock();
  EXPECT_EQ(world.TakeReads(), 1u);
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 11", "PDIR 01", "TIMER"));
}

TEST_F(RefreshTest, AStopShowsWhatHasChangedAndAFailedReadWhatWasThere) {
  world.host.Poke(0xFF0000, {0x22, 0x33});
  world.Stepping()->OnStepEnd();
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 22", "PDIR 33", "TIMER"));
  world.host.Poke(0xFF0000, {0x44, 0x55});
  world.host.FailAll("ReadDirect");
  world.Stepping()->OnStepEnd();
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 22", "PDIR 33", "TIMER"));
  EXPECT_THAT(user, testing::IsEmpty());
}

TEST_F(RefreshTest, AClosedPaneKeepsNoRecordInTheReads) {
  const auto pages = world.host.Ui().Pages(world.Dock()->window->GetHandle());
  const platform::HWND sink = world.host.Ui().SinkOf(32770);
  EXPECT_EQ(platform::SendMessage(sink, platform::WM_USER + 1, pages[0].window), 1);
  world.TakeReads();
  world.Update()->UpdateWindow();
  EXPECT_EQ(world.TakeReads(), 0u) << "the module was open in that pane alone";
  EXPECT_EQ(platform::SendMessage(sink, platform::WM_USER + 4, pages[1].window), 1);
  EXPECT_EQ(world.Rows(0), std::vector<std::string>{}) << "the pane of the selection, which has nothing";
  const platform::ScopedBstr path(world.dir.Path("device.io"));
  EXPECT_EQ(world.Server()->LoadIOFile(path.Get(), 0), 0) << "which takes no load";
  EXPECT_EQ(platform::SendMessage(sink, platform::WM_USER + 1, pages[1].window), 1);
  EXPECT_EQ(world.Dock(), nullptr);

  world.OpenView();
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "TIMER")) << "built from the start";
}

}  // namespace
}  // namespace pvw
