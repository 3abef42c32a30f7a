// Timers, and threads beside the user interface's.

#include <sched.h>

#include <atomic>
#include <stdexcept>
#include <thread>

#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {
namespace {

class Timers : public Scenario {};
class Threads : public Scenario {};

TEST_F(Timers, ATimerComesAgainAndAgainUntilItIsKilled) {
  Traced<CWnd> pane("pane");
  Add(pane, 1);
  int left = 3;
  pane.During(WM_TIMER, [&] {
    if (--left == 2) MessageBox("Once");
    if (left == 0) KillTimer(pane.GetHandle(), 5);
  });
  stage->InNextBox([&] {
    stage->Wait(100);
    EXPECT_LE(left, 0) << "it runs on in the loop that its own handler runs";
  });
  SetTimer(pane.GetHandle(), 1, 10);
  SetTimer(pane.GetHandle(), 1, 60'000);  // replaces it
  SetTimer(pane.GetHandle(), 5, 20);
  EXPECT_EQ(Settled(), "");
  stage->Wait(200);
  EXPECT_EQ(Story(), "pane TIMER 5\nmessage: Once\npane TIMER 5\npane TIMER 5\n");
  pane.During(WM_TIMER, [&] { pane.DestroyWindow(); });
  SetTimer(pane.GetHandle(), 5, 10);
  stage->Wait(50);
  EXPECT_EQ(Story(), "pane TIMER 5\npane DESTROY\n") << "it ends with its window";
}

TEST_F(Threads, AMessageOfAnotherThreadRunsOnOursWhileTheSenderWaits) {
  Traced<CWnd> pane("pane");
  Add(pane, 1);
  const std::thread::id ours = std::this_thread::get_id();
  pane.On(WM_USER, [&]() -> LRESULT { return std::this_thread::get_id() == ours ? 42 : 1; });
  std::atomic<LRESULT> answer = 0;
  std::atomic<int> policy = -1;
  gui::Worker worker;
  std::atomic<bool> thrown = false;
  worker.Start([&, handle = pane.GetHandle()] {
    policy = sched_getscheduler(0);
    answer = SendMessage(handle, WM_USER);
    PostMessage(handle, WM_USER + 1);
    try {
      gui::CallUi([] { throw std::runtime_error("no row"); });
    } catch (const std::runtime_error&) {
      thrown = true;
    }
  });
  worker.Join();
  EXPECT_TRUE(thrown) << "it comes out in the thread that called";
  EXPECT_EQ(answer, 42);
  EXPECT_EQ(policy, SCHED_IDLE);
  EXPECT_EQ(Story(), "pane USER+0\n");
  EXPECT_EQ(Settled(), "pane USER+1\n");
}

TEST_F(Threads, ADialogMayEndWithItsWorkerAtWork) {
  const std::thread::id ours = std::this_thread::get_id();
  for (int round = 0; round < 500; ++round) {
    Traced<CDialog> dialog("dialog", kEmptyDialog, nullptr);
    gui::Worker worker;
    bool over = false;
    bool elsewhere = false;
    dialog.During(WM_DESTROY, [&] {
      over = true;
      worker.Join();
    });
    stage->InNextDialog({[&](CDialog& open) {
      worker.Start([&] {
        for (bool more = true; more;) {
          gui::CallUi([&] {
            more = !over;
            elsewhere = elsewhere || std::this_thread::get_id() != ours;
          });
        }
      });
      round % 2 == 0 ? static_cast<void>(open.Send(WM_COMMAND, IDCANCEL)) : open.DestroyWindow();
    }});
    ASSERT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL)) << "in round " << round;
    EXPECT_FALSE(elsewhere);
    Story();
  }
}

}  // namespace
}  // namespace platform::conformance
