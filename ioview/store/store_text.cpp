#include "ioview/store/store_text.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace ioview {

namespace {

constexpr std::size_t kMarkDigits = 4;
constexpr char32_t kNoCharacter = 0xFFFD;

bool IsLead(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsTrail(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendMark(std::string& out, char16_t unit) {
  out += '\0';
  for (int shift = 12; shift >= 0; shift -= 4) out += "0123456789ABCDEF"[unit >> shift & 0xF];
}

void AppendUtf8(std::string& out, char32_t c) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | c >> 6);
    tail(0);
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | c >> 12);
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | c >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

void AppendUtf16(std::u16string& out, char32_t c) {
  if (c >= 0x10000) {
    out += static_cast<char16_t>(0xD7C0 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 | (c & 0x3FF));
  } else {
    out += static_cast<char16_t>(c);
  }
}

// The unit behind the zero at the start of `text`.
std::optional<char16_t> MarkedUnit(std::string_view text) {
  if (text.size() <= kMarkDigits) return std::nullopt;
  std::uint16_t unit = 0;
  const char* const end = text.data() + 1 + kMarkDigits;
  const auto [at, error] = std::from_chars(text.data() + 1, end, unit, 16);
  if (error != std::errc() || at != end) return std::nullopt;
  return static_cast<char16_t>(unit);
}

// The character at the start of `text`, which is then taken from it.
char32_t TakeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  if (first < 0x80) return first;
  const std::size_t tails = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  if (tails == 0 || text.size() < tails) return kNoCharacter;
  char32_t c = first & (0x3Fu >> tails);
  for (std::size_t i = 0; i < tails; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return kNoCharacter;
    c = c << 6 | (byte & 0x3F);
  }
  text.remove_prefix(tails);
  return c <= 0x10FFFF ? c : kNoCharacter;
}

}  // namespace

std::string StoredText(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsLead(unit) && i + 1 < text.size() && IsTrail(text[i + 1])) {
      AppendUtf8(out, 0x10000 + ((unit & 0x3FFu) << 10) + (text[++i] & 0x3FFu));
    } else if (unit == 0 || IsLead(unit) || IsTrail(unit)) {
      AppendMark(out, unit);
    } else {
      AppendUtf8(out, unit);
    }
  }
  return out;
}

std::u16string TextFromStore(std::string_view stored) {
  std::u16string out;
  out.reserve(stored.size());
  while (!stored.empty()) {
    if (stored.front() == '\0') {
      if (const std::optional<char16_t> unit = MarkedUnit(stored)) {
        out += *unit;
        stored.remove_prefix(1 + kMarkDigits);
        continue;
      }
    }
    AppendUtf16(out, TakeCharacter(stored));
  }
  return out;
}

}  // namespace ioview
