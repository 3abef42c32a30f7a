#include <clocale>
#include <cwctype>

#include "platform/base/code_page.h"
#include "platform/base/text.h"

namespace platform {

using namespace detail;

namespace {

enum class Case { kLower, kUpper };

constexpr bool IsAsciiUpper(char32_t c) {
  return c - U'A' < 26;
}
constexpr bool IsAsciiLower(char32_t c) {
  return c - U'a' < 26;
}
constexpr char32_t MapAscii(char32_t c, Case to) {
  if (to == Case::kLower) return IsAsciiUpper(c) ? c + 32 : c;
  return IsAsciiLower(c) ? c - 32 : c;
}

// Character classes of all scripts, one locale for the life of the process; null on a system without it,
// where only ASCII has case and letters.
locale_t UnicodeLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

char32_t MapUnicode(char32_t c, Case to) {
  const locale_t locale = UnicodeLocale();
  if (c < 0x80 || locale == nullptr) return MapAscii(c, to);
  const auto wide = static_cast<wint_t>(c);
  return static_cast<char32_t>(to == Case::kLower ? towlower_l(wide, locale) : towupper_l(wide, locale));
}

bool IsAlphaUnicode(char32_t c) {
  if (c < 0x80) return IsAsciiUpper(c) || IsAsciiLower(c);
  const locale_t locale = UnicodeLocale();
  return locale != nullptr && iswalpha_l(static_cast<wint_t>(c), locale) != 0;
}

// A byte whose other case lies outside the page has none.
std::array<std::uint8_t, 256> WesternCase(Case to) {
  const PageTable& table = TableOf(kWestern);
  std::array<std::uint8_t, 256> mapped{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    const char32_t wide = MapUnicode(table.to_wide[byte], to);
    const unsigned code = wide < 0x10000 ? table.from_wide[wide] : 0u;
    mapped[byte] = static_cast<std::uint8_t>(code != 0 ? code : byte);
  }
  return mapped;
}

std::uint8_t MapWestern(std::uint8_t byte, Case to) {
  static const std::array<std::uint8_t, 256> lower = WesternCase(Case::kLower);
  static const std::array<std::uint8_t, 256> upper = WesternCase(Case::kUpper);
  return to == Case::kLower ? lower[byte] : upper[byte];
}

// The full-width letters are the only double-byte characters with case.
char32_t MapJapanese(char32_t code, Case to) {
  constexpr char32_t kUpperA = 0x8260;
  constexpr char32_t kLowerA = 0x8281;
  if (code < 0x100) return MapAscii(code, to);
  if (to == Case::kLower) return code - kUpperA < 26 ? code - kUpperA + kLowerA : code;
  return code - kLowerA < 26 ? code - kLowerA + kUpperA : code;
}

// One character in the wanted case: a code point of UTF-8, else a byte or lead byte * 256 + trail byte.
CodePoint MappedAt(std::string_view text, std::size_t at, unsigned page, Case to) {
  const std::uint8_t byte = ByteAt(text, at);
  if (byte < 0x80) return {MapAscii(byte, to), 1};
  if (page == kUtf8) {
    CodePoint c = DecodeUtf8(text, at);
    c.value = MapUnicode(c.value, to);
    return c;
  }
  if (page == kJapanese && JapaneseBytes(text, at) == 2) {
    return {MapJapanese(static_cast<char32_t>(byte << 8 | ByteAt(text, at + 1)), to), 2};
  }
  return {page == kWestern ? MapWestern(byte, to) : byte, 1};
}

std::string Mapped(std::string_view text, Case to) {
  std::string mapped;
  if (IsAscii(text)) {
    mapped.resize(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
      mapped[i] = static_cast<char>(MapAscii(ByteAt(text, i), to));
    }
    return mapped;
  }
  mapped.reserve(text.size());
  const unsigned page = AnsiCodePage();
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint c = MappedAt(text, at, page, to);
    at += c.bytes;
    if (page == kUtf8) {
      AppendUtf8(mapped, c.value);
    } else {
      if (c.bytes == 2) mapped += static_cast<char>(c.value >> 8);
      mapped += static_cast<char>(c.value & 0xFF);
    }
  }
  return mapped;
}

// Where `prefix` ends in `text`; npos when the text doesn't begin with it.
std::size_t MatchNoCase(std::string_view text, std::string_view prefix, unsigned page) {
  std::size_t in_text = 0;
  std::size_t in_prefix = 0;
  while (in_prefix < prefix.size()) {
    if (in_text >= text.size()) return std::string_view::npos;
    const std::uint8_t a = ByteAt(text, in_text);
    const std::uint8_t b = ByteAt(prefix, in_prefix);
    if ((a | b) < 0x80) {
      if (a != b && MapAscii(a, Case::kLower) != MapAscii(b, Case::kLower)) return std::string_view::npos;
      ++in_text;
      ++in_prefix;
      continue;
    }
    const CodePoint c = MappedAt(text, in_text, page, Case::kLower);
    const CodePoint d = MappedAt(prefix, in_prefix, page, Case::kLower);
    if (c.value != d.value) return std::string_view::npos;
    in_text += c.bytes;
    in_prefix += d.bytes;
  }
  return in_text;
}

}  // namespace

bool detail::EqualNoCaseUtf8(std::string_view a, std::string_view b) {
  return MatchNoCase(a, b, kUtf8) == a.size();
}

bool IsAlphaAt(std::string_view text, std::size_t position) {
  const std::size_t bytes = CharBytes(text, position);
  if (bytes == 0) return false;
  const unsigned page = AnsiCodePage();
  if (page == kUtf8) return IsAlphaUnicode(DecodeUtf8(text, position).value);
  const std::size_t code =
      bytes == 2 ? static_cast<std::size_t>(ByteAt(text, position) << 8) | ByteAt(text, position + 1)
                 : ByteAt(text, position);
  return IsAlphaUnicode(TableOf(page).to_wide[code]);
}

std::string LowerCase(std::string_view text) {
  return Mapped(text, Case::kLower);
}

std::string UpperCase(std::string_view text) {
  return Mapped(text, Case::kUpper);
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return MatchNoCase(a, b, AnsiCodePage()) == a.size();
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  return MatchNoCase(text, prefix, AnsiCodePage()) != std::string_view::npos;
}

}  // namespace platform
