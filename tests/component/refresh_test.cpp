// Which news of the target make the view read it.

#include <functional>
#include <sstream>

#include "host/events.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

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
        {"begin-of-another-kind", [&] { stepping.OnStepBegin(3, 8); }},
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
                      {"begin-of-another-kind step end", 2, 0},
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

}  // namespace
}  // namespace pvw
