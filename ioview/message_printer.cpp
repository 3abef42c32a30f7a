#include "ioview/message_printer.h"

#include <utility>

namespace ioview {

namespace {

constexpr std::uint32_t kIconBits = 0xF0;

}  // namespace

std::string MessageLine(const platform::MessageBoxRequest& request) {
  std::string line = "message";
  const std::uint32_t icon = request.type & kIconBits;
  if (icon == platform::MB_ICONEXCLAMATION) line += " [exclamation]";
  if (icon == platform::MB_ICONSTOP) line += " [stop]";
  if (!request.caption.empty()) line += " \"" + request.caption + '"';
  line += ": ";
  for (const char c : request.text) {
    if (c == '\n') {
      line += "\\n";
    } else {
      line += c;
    }
  }
  return line;
}

void MessagePrinter::Show(const platform::MessageBoxRequest& request) {
  Print(MessageLine(request));
}

void MessagePrinter::Beep() {
  Print("beep");
}

void MessagePrinter::Print(std::string line) {
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), out_);
  std::fflush(out_);
}

}  // namespace ioview
