// Collects the message boxes and beeps of its lifetime, each as the line that a script prints for it:
// "message: TEXT", "message [stop]: TEXT", "message [exclamation] \"CAPTION\": TEXT", "beep".
#pragma once

#include <string>
#include <vector>

#include "platform/base/message_box.h"

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
    std::string line = "message";
    if (request.type & platform::MB_ICONSTOP) {
      const bool exclamation = (request.type & platform::MB_ICONEXCLAMATION) == platform::MB_ICONEXCLAMATION;
      line += exclamation ? " [exclamation]" : " [stop]";
    }
    if (!request.caption.empty()) line += " \"" + request.caption + "\"";
    line += ": ";
    for (const char c : request.text) {
      if (c == '\n') {
        line += "\\n";
      } else {
        line += c;
      }
    }
    lines_.push_back(line);
  }
  void Beep() override { lines_.push_back("beep"); }

 private:
  platform::MessagePresenter* previous_;
  std::vector<std::string> lines_;
};

}  // namespace pvw::test
