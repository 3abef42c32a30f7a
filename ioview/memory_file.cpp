#include "ioview/memory_file.h"

#include <cstdint>
#include <vector>

#include "ioview/native_file.h"
#include "ioview/number_text.h"
#include "ioview/program_error.h"

namespace ioview {

namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The next word of `text`, which is cut behind it; empty at the end.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t start = std::min(text.find_first_not_of(kBlanks), text.size());
  text.remove_prefix(start);
  const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(end);
  return word;
}

// What is wrong with the line; nothing when it is a good one.
std::optional<std::string> FillFromLine(SimulatedTarget& target, std::string_view line) {
  line = line.substr(0, line.find('#'));
  if (line.find_first_not_of(kBlanks) == std::string_view::npos) return std::nullopt;

  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) return "there is no ':' behind an address";
  std::string_view head = line.substr(0, colon);
  std::string_view rest = line.substr(colon + 1);
  const std::string_view word = TakeWord(head);
  const std::optional<std::uint32_t> address = ParseHexWord(word, 8);
  if (!address || !TakeWord(head).empty()) {
    return Quoted(line.substr(0, colon)) + " is not an address of up to eight hexadecimal digits";
  }

  std::vector<std::uint8_t> bytes;
  for (std::string_view byte_word = TakeWord(rest); !byte_word.empty(); byte_word = TakeWord(rest)) {
    const std::optional<std::uint32_t> byte = ParseHexWord(byte_word, 2);
    if (!byte) return Quoted(byte_word) + " is not a byte of one or two hexadecimal digits";
    bytes.push_back(static_cast<std::uint8_t>(*byte));
  }
  if (bytes.empty()) return "there are no bytes behind the address";
  if (!target.Poke(*address, bytes)) return "the bytes go past address FFFFFFFF";
  return std::nullopt;
}

}  // namespace

std::optional<MemoryFileError> FillMemory(SimulatedTarget& target, std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    std::optional<std::string> error = FillFromLine(target, text.substr(0, end));
    if (error) return MemoryFileError{number, *std::move(error)};
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return std::nullopt;
}

void LoadMemoryFile(SimulatedTarget& target, const std::string& native) {
  const std::optional<MemoryFileError> error = FillMemory(target, ReadWholeFile(native));
  if (!error) return;
  throw ProgramError(OneLine(native) + ':' + DigitsText(error->line, 10) + ": " + error->text);
}

}  // namespace ioview
