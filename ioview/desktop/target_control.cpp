#include "ioview/desktop/target_control.h"

namespace ioview {

namespace {

constexpr std::uint32_t kStepKind = 0;
constexpr std::uint32_t kQuietKind = 7;

}  // namespace

std::string TargetControl::StateText() const {
  if (!connected_) return "Not connected";
  return running_ ? "Running" : "Stopped";
}

void TargetControl::SetRunning(bool running) {
  running_ = running;
  instance_.host.session.SetRunning(running);
}

void TargetControl::Connect() {
  if (connected_) return;
  connected_ = true;
  instance_.ConnectTarget();
}

void TargetControl::Disconnect() {
  if (!connected_) return;
  SetRunning(false);
  connected_ = false;
  instance_.DisconnectTarget();
}

void TargetControl::Run() {
  if (IsStopped()) SetRunning(true);
}

void TargetControl::Stop() {
  if (!connected_ || !running_) return;
  SetRunning(false);
  demo.Step();
  instance_.Step(0, kStepKind, 0);
}

// The last step of a row is told by its end alone, so that the marks are those of the stop.
void TargetControl::Step() {
  if (!IsStopped()) return;
  demo.Step();
  instance_.Step(1, kStepKind, 0);
}

void TargetControl::StepQuietly() {
  if (!IsStopped()) return;
  for (std::uint32_t i = 0; i < kQuietSteps; ++i) demo.Step();
  instance_.Step(kQuietSteps, kQuietKind, kQuietSteps - 1);
}

}  // namespace ioview
