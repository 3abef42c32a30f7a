// What the Test menu does: registers are captured into a file, and held against the target later.
#pragma once

#include <string>

#include "ioview/component/instance.h"

class QWidget;

namespace ioview {

// Whatever can't be done is told to the user in a box.
class TestCommands {
 public:
  // Dialogs lie over `window`. Both outlive it.
  TestCommands(Instance& instance, QWidget& window) : instance_(instance), window_(window) {}
  TestCommands(const TestCommands&) = delete;
  TestCommands& operator=(const TestCommands&) = delete;

  // Whether the component has a client for them. The rest does nothing without one.
  bool CanTest() const { return instance_.Test() != nullptr; }
  void ChooseRegisters();
  // Writes the chosen registers to a file that the user names, as `ioview capture` does.
  void Capture();
  // Shows what differs between the snapshot in a file and the target. The registers of the snapshot are the
  // chosen ones from then on.
  void Compare();

 private:
  void CaptureToFile();
  void CompareWithFile();
  // Native paths; empty when the user has cancelled.
  std::string AskForFile(bool save) const;

  Instance& instance_;
  QWidget& window_;
};

}  // namespace ioview
