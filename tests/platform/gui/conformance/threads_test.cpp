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

// Opens rows from a worker until it is cancelled, or all are open.
class CRowsDialog : public CDialog {
 public:
  CRowsDialog() : CDialog(kEmptyDialog, nullptr) {}
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void OnInitDialog() override {
    worker.Start([this] {
      bool more = true;
      while (more) {
        gui::CallUi([&] {
          more = remaining > 0;
          if (!more) return;
          --remaining;
          if (cancelled) ++opened_after_cancel;
        });
      }
    });
  }
  void OnCancel() override {
    cancelled = true;
    remaining = 0;
    CDialog::OnCancel();
  }
  LRESULT OnDestroy(const MSG& msg) {
    const LRESULT result = Default(msg, kMessages);
    remaining = 0;
    worker.Join();
    return result;
  }
  int remaining = 20;
  int opened_after_cancel = 0;
  bool cancelled = false;
  gui::Worker worker;
};
const MessageTable CRowsDialog::kMessages{&CDialog::kMessages,
                                          {OnMessage<&CRowsDialog::OnDestroy>(WM_DESTROY)}};

TEST_F(Threads, NothingOpensAfterCancel) {
  for (int round = 0; round < 500; ++round) {
    CRowsDialog dialog;
    stage->InNextDialog({[](CDialog& open) { open.Send(WM_COMMAND, IDCANCEL); }});
    EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
    ASSERT_EQ(dialog.opened_after_cancel, 0) << "in round " << round;
    Story();
  }
}

TEST_F(Threads, ADialogMayGoWithItsWorkerAtWork) {
  CRowsDialog dialog;
  dialog.remaining = 1'000'000'000;
  stage->InNextDialog({[](CDialog& open) { open.DestroyWindow(); }});
  EXPECT_EQ(dialog.DoModal(), static_cast<int>(IDCANCEL));
}

}  // namespace
}  // namespace platform::conformance
