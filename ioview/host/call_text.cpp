#include "ioview/host/call_text.h"

namespace ioview {

std::string ArgumentText(const char16_t* text) {
  std::string quoted = "\"";
  for (const char c : platform::BstrText(text)) {
    if (c == '\n') {
      quoted += "\\n";
    } else {
      quoted += c;
    }
  }
  return quoted += '"';
}

std::string ArgumentText(const platform::GUID* id) {
  return id != nullptr ? platform::GuidText(*id) : "*";
}

}  // namespace ioview
