// Inside of the text functions: one character of each code page, and the tables that iconv fills.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace platform::detail {

inline constexpr unsigned kUtf8 = 65001;
inline constexpr unsigned kWestern = 1252;
inline constexpr unsigned kJapanese = 932;

// A byte without a meaning travels as this much plus the byte.
inline constexpr char32_t kRawByte = 0xDC00;
constexpr bool IsRawByte(char32_t code) {
  return code >= 0xDC80 && code <= 0xDCFF;
}
constexpr bool IsSurrogate(char32_t code) {
  return code >= 0xD800 && code <= 0xDFFF;
}

constexpr std::uint8_t ByteAt(std::string_view text, std::size_t position) {
  return static_cast<std::uint8_t>(text[position]);
}

// Eight bytes at a time: nearly every text that a lookup sees passes.
inline bool IsAscii(std::string_view text) {
  const char* at = text.data();
  std::size_t left = text.size();
  for (; left >= 8; at += 8, left -= 8) {
    std::uint64_t word;
    std::memcpy(&word, at, 8);
    if (word & 0x8080808080808080u) return false;
  }
  for (; left > 0; ++at, --left) {
    if (static_cast<std::uint8_t>(*at) >= 0x80) return false;
  }
  return true;
}

struct CodePoint {
  char32_t value = 0;
  std::size_t bytes = 0;
};

// The UTF-8 character at `position`, which lies before the end. Overlong forms, surrogates and values above
// U+10FFFF have no meaning: their first byte counts alone, as a raw byte.
CodePoint DecodeUtf8(std::string_view text, std::size_t position);
// A raw byte goes out as the byte itself.
void AppendUtf8(std::string& out, char32_t code);

// Page 932.
constexpr bool IsLeadByte(std::uint8_t c) {
  return ((c ^ 0x20) - 0xA1u) < 0x3C;
}
constexpr bool IsTrailByte(std::uint8_t c) {
  return c >= 0x40 && c <= 0xFC && c != 0x7F;
}
// 2 for a lead byte with a trail byte behind it, else 1; `position` lies before the end.
inline std::size_t JapaneseBytes(std::string_view text, std::size_t position) {
  return IsLeadByte(ByteAt(text, position)) && position + 1 < text.size() &&
                 IsTrailByte(ByteAt(text, position + 1))
             ? 2
             : 1;
}

// Page 1252 or 932 both ways. A code is a byte, or lead byte * 256 + trail byte; 0 stands for no meaning
// (but for code 0 itself). No character outside ASCII has an ASCII code: a name with U+00A5 in it doesn't
// turn into one with a backslash.
struct PageTable {
  std::array<char16_t, 0x10000> to_wide{};
  std::array<std::uint16_t, 0x10000> from_wide{};
};
const PageTable& TableOf(unsigned page);

// As platform::EqualNoCase, in UTF-8 whatever the page of the process.
bool EqualNoCaseUtf8(std::string_view a, std::string_view b);

}  // namespace platform::detail
