#include "ioview/program_error.h"

#include "ioview/number_text.h"

namespace ioview {

namespace {

constexpr std::size_t kLongestWord = 60;  // in bytes
constexpr std::size_t kLongestTail = 3;   // of a UTF-8 character, behind its first byte

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

std::string FileWord(std::string_view name) {
  return name.empty() ? "''" : OneLine(name);
}

std::string Quoted(std::string_view word) {
  if (word.size() <= kLongestWord) return '\'' + OneLine(word) + '\'';
  // The words of a command line are UTF-8: the cut goes in front of a character that it would split.
  std::size_t end = kLongestWord;
  while (end > kLongestWord - kLongestTail && (static_cast<unsigned char>(word[end]) & 0xC0) == 0x80) --end;
  return '\'' + OneLine(word.substr(0, end)) + "...'";
}

}  // namespace ioview
