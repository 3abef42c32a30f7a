#include "platform/gui/post_queue.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/gui/display.h"
#include "platform/gui/window.h"

namespace platform {

namespace post_queue {

namespace {

struct PendingCall {
  const std::function<void()>* work;
  bool of_worker;
  bool done = false;
  std::exception_ptr thrown;
};

struct Queue {
  std::mutex mutex;
  std::condition_variable changed;
  std::thread::id ui_thread;
  std::deque<MSG> posted;
  std::deque<PendingCall*> calls;
  unsigned workers = 0;
  unsigned workers_ended = 0;
  unsigned workers_served = 0;  // they wait for a call of theirs that is being carried out
};

thread_local bool t_is_worker = false;

// Outlives every thread.
Queue& TheQueue() {
  static auto* const queue = new Queue;
  return *queue;
}

void WakeDisplay() {
  if (Display* display = GetDisplay()) display->Wake();
}

}  // namespace

void ClaimUiThread() {
  Queue& queue = TheQueue();
  const std::lock_guard lock(queue.mutex);
  queue.ui_thread = std::this_thread::get_id();
}

bool IsUiThread() {
  Queue& queue = TheQueue();
  const std::lock_guard lock(queue.mutex);
  if (queue.ui_thread == std::thread::id()) queue.ui_thread = std::this_thread::get_id();
  return queue.ui_thread == std::this_thread::get_id();
}

void Call(const std::function<void()>& work) {
  Queue& queue = TheQueue();
  PendingCall call{&work, t_is_worker, false, nullptr};
  {
    const std::lock_guard lock(queue.mutex);
    queue.calls.push_back(&call);
  }
  queue.changed.notify_all();
  WakeDisplay();
  std::unique_lock lock(queue.mutex);
  queue.changed.wait(lock, [&] { return call.done; });
  if (call.thrown) std::rethrow_exception(call.thrown);
}

bool RunPosted() {
  Queue& queue = TheQueue();
  std::unique_lock lock(queue.mutex);
  const std::size_t count = queue.posted.size();
  // One at a time: a nested loop in a handler goes on with what is left.
  for (std::size_t i = 0; i < count && !queue.posted.empty(); ++i) {
    const MSG msg = queue.posted.front();
    queue.posted.pop_front();
    lock.unlock();
    SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
    lock.lock();
  }
  return count > 0;
}

bool RunCall() {
  Queue& queue = TheQueue();
  std::unique_lock lock(queue.mutex);
  if (queue.calls.empty()) return false;
  PendingCall& call = *queue.calls.front();
  queue.calls.pop_front();
  if (call.of_worker) ++queue.workers_served;
  lock.unlock();
  std::exception_ptr thrown;
  try {
    (*call.work)();
  } catch (...) {
    thrown = std::current_exception();
  }
  lock.lock();
  if (call.of_worker) --queue.workers_served;
  call.thrown = thrown;
  call.done = true;
  // Under the lock: once it sees `done`, the caller may go, and `call` with it.
  queue.changed.notify_all();
  return true;
}

bool WaitForThreads(bool posts_too) {
  Queue& queue = TheQueue();
  std::unique_lock lock(queue.mutex);
  const unsigned ended = queue.workers_ended;
  if (queue.workers == queue.workers_served) return !queue.calls.empty();
  queue.changed.wait(lock, [&] {
    return !queue.calls.empty() || queue.workers_ended != ended || (posts_too && !queue.posted.empty());
  });
  return true;
}

void WorkerStarts() {
  Queue& queue = TheQueue();
  const std::lock_guard lock(queue.mutex);
  ++queue.workers;
}

void WorkerRuns() {
  t_is_worker = true;
}

void WorkerEnds() {
  Queue& queue = TheQueue();
  {
    const std::lock_guard lock(queue.mutex);
    --queue.workers;
    ++queue.workers_ended;
  }
  queue.changed.notify_all();
  WakeDisplay();
}

}  // namespace post_queue

void PostMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  post_queue::Queue& queue = post_queue::TheQueue();
  {
    const std::lock_guard lock(queue.mutex);
    queue.posted.push_back({handle, message, wParam, lParam});
  }
  queue.changed.notify_all();
  post_queue::WakeDisplay();
}

bool gui::RunPending() {
  const bool posted = post_queue::RunPosted();
  // Only the calls that wait now, so that a busy worker doesn't hold up the user's input.
  std::size_t calls = 0;
  {
    const std::lock_guard lock(post_queue::TheQueue().mutex);
    calls = post_queue::TheQueue().calls.size();
  }
  for (std::size_t i = 0; i < calls; ++i) post_queue::RunCall();
  return posted || calls > 0;
}

void gui::CallUi(const std::function<void()>& work) {
  if (post_queue::IsUiThread()) {
    work();
  } else {
    post_queue::Call(work);
  }
}

}  // namespace platform
