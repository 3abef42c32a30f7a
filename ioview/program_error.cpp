#include "ioview/program_error.h"

#include "ioview/number_text.h"

namespace ioview {

namespace {

constexpr std::size_t kLongestWord = 60;  // in bytes

}  // namespace

std::string OneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\r') {
      line += "\\r";
    } else if (c == '\t') {
      line += "\\t";
    } else if (byte < 0x20 || byte == 0x7F) {
      line += "\\x" + DigitsText(byte, 16, 2);
    } else {
      line += c;
    }
  }
  return line;
}

std::string Quoted(std::string_view word) {
  const bool cut = word.size() > kLongestWord;
  return '\'' + OneLine(word.substr(0, kLongestWord)) + (cut ? "...'" : "'");
}

}  // namespace ioview
