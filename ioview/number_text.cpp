#include "ioview/number_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace ioview {

namespace {

struct Prefix {
  std::string_view text;
  unsigned radix;
};
constexpr Prefix kPrefixes[] = {{"H'", 16}, {"h'", 16}, {"0x", 16}, {"0X", 16}, {"D'", 10}, {"B'", 2}};

}  // namespace

std::optional<std::uint64_t> ParseDigits(std::string_view digits, unsigned radix) {
  std::uint64_t value = 0;
  const char* end = digits.data() + digits.size();
  const std::from_chars_result read = std::from_chars(digits.data(), end, value, static_cast<int>(radix));
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return value;
}

std::optional<std::uint32_t> ParseHexWord(std::string_view word, std::size_t digits) {
  if (word.starts_with("0x") || word.starts_with("0X")) word.remove_prefix(2);
  if (word.size() > digits) return std::nullopt;
  const std::optional<std::uint64_t> value = ParseDigits(word, 16);
  if (!value || *value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  return static_cast<std::uint32_t>(*value);
}

std::string_view TrimBlanks(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

std::optional<std::uint64_t> ParseTypedNumber(std::string_view text) {
  text = TrimBlanks(text);
  for (const Prefix& prefix : kPrefixes) {
    if (!text.starts_with(prefix.text)) continue;
    text.remove_prefix(prefix.text.size());
    return text.empty() ? 0 : ParseDigits(text, prefix.radix);
  }
  return ParseDigits(text, 16);
}

std::string DigitsText(std::uint64_t value, unsigned radix, std::size_t digits) {
  std::string text;
  do {
    text += "0123456789ABCDEF"[value % radix];
    value /= radix;
  } while (value != 0);
  if (text.size() < digits) text.append(digits - text.size(), '0');
  std::ranges::reverse(text);
  return text;
}

}  // namespace ioview
