// IQCommandRecorder: keeps the commands that the component gives it while it is on.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/format_services.h"
#include "ioview/host/service.h"

namespace ioview {

// Off at first.
class CommandRecorder : public Service<pvw::IQCommandRecorder, pvw::IID_IQCommandRecorder> {
 public:
  void Switch(bool on) { on_ = on; }
  // The commands since the last call, in the ANSI code page.
  std::vector<std::string> Take() { return std::exchange(commands_, {}); }

  platform::Status IsActive() override {
    return Enter("IsActive") && on_ ? platform::S_OK : platform::E_FAIL;
  }
  // Fails, and keeps nothing, while the recorder is off.
  platform::Status AddCommand(platform::BSTR text) override {
    if (!Enter("AddCommand", text) || !on_) return platform::E_FAIL;
    commands_.push_back(platform::BstrText(text));
    return platform::S_OK;
  }

 private:
  bool on_ = false;
  std::vector<std::string> commands_;
};

}  // namespace ioview
