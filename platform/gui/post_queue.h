// What waits for the user interface's thread: posted messages, and calls of other threads.
#pragma once

#include <functional>

namespace platform::post_queue {

// The user interface's thread is the one that asks first, or that set the display.
void ClaimUiThread();
bool IsUiThread();

// Of another thread: has `work` run on the user interface's and waits for it. What it throws comes out here.
void Call(const std::function<void()>& work);

// Sends the messages that were waiting when it began; false when there were none.
bool RunPosted();
// Serves one call; false when none waits.
bool RunCall();
// Sleeps until another thread calls or a worker ends, or, when that is asked for, posts. False, at once, when
// no worker runs, or each waits for a call that is being carried out.
bool WaitForThreads(bool posts_too);

// A worker is about to be started; its thread begins; its thread is about to end.
void WorkerStarts();
void WorkerRuns();
void WorkerEnds();

}  // namespace platform::post_queue
