// Shows message boxes and beeps as lines of text, for a program without a screen.
#pragma once

#include <cstdio>
#include <string>

#include "platform/base/message_box.h"

namespace ioview {

// `message: TEXT`; `message [exclamation]: TEXT` or `message [stop]: TEXT` with an icon; a caption of its own
// stands in quotes before the colon. A line feed in the text becomes \n, all else stays byte for byte. No
// line end.
std::string MessageLine(const platform::MessageBoxRequest& request);

// The presenter that counts as long as it lives; puts the one before back. Each line is flushed.
class MessagePrinter final : public platform::MessagePresenter {
 public:
  explicit MessagePrinter(std::FILE* out) : out_(out), before_(platform::SetMessagePresenter(this)) {}
  MessagePrinter(const MessagePrinter&) = delete;
  MessagePrinter& operator=(const MessagePrinter&) = delete;
  ~MessagePrinter() override { platform::SetMessagePresenter(before_); }

  void Show(const platform::MessageBoxRequest& request) override;
  void Beep() override;

 private:
  void Print(std::string line);

  std::FILE* out_;
  platform::MessagePresenter* before_;
};

}  // namespace ioview
