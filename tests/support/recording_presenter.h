// Collects the message boxes and beeps of its lifetime, each as the line that a script prints for it:
// "message: TEXT", "message [stop]: TEXT", "message [exclamation] \"CAPTION\": TEXT", "beep".
#pragma once

#include <string>
#include <vector>

#include "platform/headless/headless_display.h"

namespace pvw::test {

class RecordingPresenter final : public platform::MessagePresenter {
 public:
  RecordingPresenter() : previous_(platform::SetMessagePresenter(this)) {}
  RecordingPresenter(const RecordingPresenter&) = delete;
  RecordingPresenter& operator=(const RecordingPresenter&) = delete;
  ~RecordingPresenter() override { platform::SetMessagePresenter(previous_); }

  const std::vector<std::string>& Lines() const { return lines_; }
  void Clear() { lines_.clear(); }

  void Show(const platform::MessageBoxRequest& request) override {
    lines_.push_back(platform::MessageLine(request));
  }
  void Beep() override { lines_.push_back("beep"); }

 private:
  platform::MessagePresenter* previous_;
  std::vector<std::string> lines_;
};

}  // namespace pvw::test
