#include <pthread.h>
#include <sched.h>

#include <atomic>
#include <thread>
#include <utility>

#include "platform/gui/display.h"
#include "platform/gui/post_queue.h"

namespace platform::gui {

struct Worker::State {
  std::thread thread;
  std::atomic<bool> ended = false;
};

Worker::Worker() : m_state(std::make_unique<State>()) {}

Worker::~Worker() {
  Join();
}

void Worker::Start(std::function<void()> work) {
  Join();
  m_state->ended = false;
  post_queue::WorkerStarts();
  m_state->thread = std::thread([state = m_state.get(), job = std::move(work)] {
    post_queue::WorkerRuns();
    const sched_param priority{};
    // Where the system refuses, the thread runs as any other.
    static_cast<void>(pthread_setschedparam(pthread_self(), SCHED_IDLE, &priority));
    job();
    state->ended = true;
    post_queue::WorkerEnds();
  });
}

void Worker::Join() {
  if (!m_state->thread.joinable()) return;
  while (!m_state->ended) {
    if (!post_queue::RunCall()) post_queue::WaitForThreads(false);
  }
  m_state->thread.join();
}

}  // namespace platform::gui
