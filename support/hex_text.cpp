#include "support/hex_text.h"

#include <algorithm>
#include <cstddef>

namespace pvw {

namespace {

// Value of a digit, or -1. No byte of a longer character is a digit behind a byte that is one too, so bytes
// do.
int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::uint32_t ParseHex(std::string_view text) {
  std::uint32_t sum = 0;
  std::size_t place = 0;
  for (auto c = text.rbegin(); c != text.rend(); ++c, ++place) {
    const int digit = DigitValue(*c);
    if (digit < 0) return 0;
    sum += static_cast<std::uint32_t>(digit) << (4 * place % 32);
  }
  return sum;
}

bool IsHexNumber(std::string_view text) {
  if (text.empty()) return false;
  for (const std::string_view prefix : {"H'", "h'", "0x", "0X"}) {
    if (text.starts_with(prefix)) {
      text.remove_prefix(prefix.size());
      break;
    }
  }
  return std::all_of(text.begin(), text.end(), [](char c) { return DigitValue(c) >= 0; });
}

}  // namespace pvw
