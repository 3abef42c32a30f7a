// IQDebugSession, which says whether the target runs, and IQDebugger, which says that there is a target.
#pragma once

#include "host/debug_services.h"
#include "ioview/host/service.h"

namespace ioview {

// The target is stopped at first.
class DebugSession : public Service<pvw::IQDebugSession, pvw::IID_IQDebugSession> {
 public:
  void SetRunning(bool running) { running_ = running; }
  platform::Status IsTargetRunning() override {
    return Enter("IsTargetRunning") && running_ ? platform::S_OK : platform::E_FAIL;
  }

 private:
  bool running_ = false;
};

class Debugger : public Service<pvw::IQDebugger, pvw::IID_IQDebugger> {};

}  // namespace ioview
