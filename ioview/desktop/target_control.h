// What the Debug menu does with the target: it tells the component as a debugger would.
#pragma once

#include <cstdint>
#include <string>

#include "ioview/component/instance.h"
#include "ioview/target/demo_device.h"

namespace ioview {

class TargetControl {
 public:
  // Steps that the view doesn't follow one by one.
  static constexpr std::uint32_t kQuietSteps = 10;

  explicit TargetControl(Instance& instance) : demo(instance.host.target), instance_(instance) {}
  TargetControl(const TargetControl&) = delete;
  TargetControl& operator=(const TargetControl&) = delete;

  DemoDevice demo;

  bool IsConnected() const { return connected_; }
  bool IsRunning() const { return running_; }
  // Whether the target can be stepped, or run.
  bool IsStopped() const { return connected_ && !running_; }
  // "Not connected", "Running" or "Stopped".
  std::string StateText() const;

  // The component has been told already.
  void SetConnected(bool connected) { connected_ = connected; }
  // Each does nothing when the target isn't in a state for it.
  void Connect();
  void Disconnect();
  void Run();
  void Stop();
  void Step();
  void StepQuietly();

 private:
  void SetRunning(bool running);

  Instance& instance_;
  bool connected_ = false;
  bool running_ = false;
};

}  // namespace ioview
