// Which news of the target make the view read it.

#include <gmock/gmock.h>

#include <functional>
#include <sstream>

#include "host/events.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using testing::ElementsAre;

class RefreshTest : public test::ConnectedTest {
 protected:
  RefreshTest() {
    world.OpenView();
    world.Expand(0, 0);
    world.TakeReads();
  }
  void Lock() { platform::SendMessage(world.Pane(0), platform::WM_COMMAND, 32826); }

  // The reads while the words of the news happen one after another. Steps and target are at rest again then.
  std::size_t ReadsOf(const std::string& news) {
    IQSteppingClient& stepping = *world.Stepping();
    const std::map<std::string, std::function<void()>> acts = {
        {"begin", [&] { stepping.OnStepBegin(1, 0); }},
        {"begin-quiet", [&] { stepping.OnStepBegin(1, 7); }},
        {"begin-quiet-without-steps", [&] { stepping.OnStepBegin(0, 7); }},
        {"step", [&] { stepping.OnStep(); }},
        {"end", [&] { stepping.OnStepEnd(); }},
        {"memory", [&] { instance.Fire(EVENT_MEMORY_CHANGED); }},
        {"refresh1", [&] { instance.Fire(EVENT_VIEW_REFRESH_1); }},
        {"refresh2", [&] { instance.Fire(EVENT_VIEW_REFRESH_2); }},
        {"refresh3", [&] { instance.Fire(EVENT_VIEW_REFRESH_3); }},
        {"another", [&] { instance.Fire(IID_IQDebugger); }},
        {"request", [&] { world.Update()->UpdateWindow(); }},
        {"leave", [&] { instance.Fire(EVENT_TARGET_DISCONNECTED); }},
        {"return", [&] { instance.Fire(EVENT_TARGET_CONNECTED); }}};
    world.TakeReads();
    std::istringstream words(news);
    for (std::string word; words >> word;) acts.at(word)();
    const std::size_t reads = world.TakeReads();
    acts.at("end")();
    acts.at("return")();
    return reads;
  }
};

TEST_F(RefreshTest, NewsAreRefreshesUnlessTheViewIsHiddenOrLocked) {
  struct Row {
    const char* news;
    std::size_t shown, hidden;
  };
  const Row rows[] = {{"begin-quiet step step step step step end", 1, 0},
                      {"begin step step step step step end", 6, 0},
                      {"begin-quiet-without-steps step refresh1 end", 2, 0},
                      {"end", 1, 0},
                      {"step", 1, 0},
                      {"begin memory", 0, 0},
                      {"begin-quiet end memory", 2, 0},
                      {"memory refresh1 refresh2 refresh3", 4, 0},
                      {"another", 0, 0},
                      {"request", 1, 1},
                      {"begin-quiet request", 1, 1},
                      {"leave return", 0, 0},
                      {"leave end", 0, 0}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.news);
    EXPECT_EQ(ReadsOf(row.news), row.shown);
    world.Dock()->shown = false;
    EXPECT_EQ(ReadsOf(row.news), row.hidden) << "hidden";
    world.Dock()->shown = true;
    Lock();
    EXPECT_EQ(ReadsOf(row.news), 0u) << "locked";
    Lock();
  }
}

TEST_F(RefreshTest, ShowsWhatHasChangedOrElseWhatWasThere) {
  const auto expect = [&](const std::string& data, const std::string& direction) {
    EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA " + data, "PDIR " + direction, "TIMER"));
  };
  world.host.Poke(0xFF0000, {0x11});
  Lock();
  EXPECT_EQ(ReadsOf("end"), 0u);
  expect("00", "01");
  Lock();
  EXPECT_EQ(world.TakeReads(), 1u) << "the lock's end";
  expect("11", "01");

  world.host.Poke(0xFF0000, {0x22, 0x33});
  ReadsOf("end");
  expect("22", "33");
  world.host.Poke(0xFF0000, {0x44, 0x55});
  world.host.FailAll("ReadDirect");
  ReadsOf("end");
  expect("22", "33");
  EXPECT_THAT(user, testing::IsEmpty());
}

TEST_F(RefreshTest, AClosedPaneKeepsNoRecordInTheReads) {
  const platform::HWND first = world.Pane(0), second = world.Pane(1);
  EXPECT_EQ(world.TellSink(platform::WM_USER + 1, first), 1);
  EXPECT_EQ(ReadsOf("request"), 0u) << "the module was open in that pane alone";
  EXPECT_EQ(world.TellSink(platform::WM_USER + 4, second), 1);
  EXPECT_EQ(world.Rows(0), std::vector<std::string>{}) << "the pane of the selection, which has nothing";
  const platform::ScopedBstr path(world.dir.Path("device.io"));
  EXPECT_EQ(world.Server()->LoadIOFile(path.Get(), 0), 0) << "which takes no load";
  EXPECT_EQ(world.TellSink(platform::WM_USER + 1, second), 1);
  EXPECT_EQ(world.Dock(), nullptr);

  world.OpenView();
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "TIMER")) << "built from the start";
}

}  // namespace
}  // namespace pvw
