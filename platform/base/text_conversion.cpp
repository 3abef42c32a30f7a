#include <iconv.h>

#include <algorithm>
#include <atomic>
#include <memory>

#include "platform/base/code_page.h"
#include "platform/base/text.h"

namespace platform {

using namespace detail;

namespace {

std::atomic<unsigned> g_page{kUtf8};

// Converts single characters; without the system's module for a page nothing has a meaning.
class Converter {
 public:
  Converter(const char* to, const char* from) : descriptor_(iconv_open(to, from)) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (IsOpen()) iconv_close(descriptor_);
  }

  // Bytes written to `out`; 0 when `in` isn't exactly one character or has no counterpart of up to 2 bytes.
  std::size_t Convert(std::array<char, 2> in, std::size_t in_size, std::array<std::uint8_t, 2>& out) {
    if (!IsOpen()) return 0;
    char* from = in.data();
    char* to = reinterpret_cast<char*>(out.data());
    std::size_t to_left = out.size();
    if (iconv(descriptor_, &from, &in_size, &to, &to_left) == static_cast<std::size_t>(-1)) {
      iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
      return 0;
    }
    return out.size() - to_left;
  }

 private:
  bool IsOpen() const { return reinterpret_cast<std::intptr_t>(descriptor_) != -1; }

  iconv_t descriptor_;
};

std::unique_ptr<const PageTable> BuildTable(const char* name, bool double_byte) {
  auto table = std::make_unique<PageTable>();
  std::array<std::uint8_t, 2> out{};

  Converter decode("UTF-16LE", name);
  const auto fill = [&](std::size_t code, std::array<char, 2> in, std::size_t size) {
    if (decode.Convert(in, size, out) == 2) {
      table->to_wide[code] = static_cast<char16_t>(out[0] | out[1] << 8);
    }
  };
  for (unsigned byte = 0; byte < 0x100; ++byte) {
    if (byte < 0x80) {
      table->to_wide[byte] = static_cast<char16_t>(byte);
      table->from_wide[byte] = static_cast<std::uint16_t>(byte);
    } else {
      fill(byte, {static_cast<char>(byte)}, 1);
    }
    if (!double_byte || !IsLeadByte(static_cast<std::uint8_t>(byte))) continue;
    for (unsigned trail = 0x40; trail <= 0xFC; ++trail) {
      if (IsTrailByte(static_cast<std::uint8_t>(trail))) {
        fill(byte << 8 | trail, {static_cast<char>(byte), static_cast<char>(trail)}, 2);
      }
    }
  }

  Converter encode(name, "UTF-16LE");
  for (std::uint32_t wide = 0x80; wide < 0x10000; ++wide) {
    if (IsSurrogate(wide)) continue;
    const std::size_t size =
        encode.Convert({static_cast<char>(wide & 0xFF), static_cast<char>(wide >> 8)}, 2, out);
    const unsigned code = size == 2 ? static_cast<unsigned>(out[0] << 8 | out[1]) : size == 1 ? out[0] : 0u;
    if (code >= 0x80) table->from_wide[wide] = static_cast<std::uint16_t>(code);
  }
  return table;
}

std::u16string Widen(std::string_view text, unsigned page) {
  if (IsAscii(text)) return {text.begin(), text.end()};
  std::u16string wide;
  wide.reserve(text.size());
  if (page == kUtf8) {
    for (std::size_t at = 0; at < text.size();) {
      const CodePoint c = DecodeUtf8(text, at);
      at += c.bytes;
      if (c.value >= 0x10000) {
        wide += static_cast<char16_t>(0xD7C0 + (c.value >> 10));
        wide += static_cast<char16_t>(0xDC00 | (c.value & 0x3FF));
      } else {
        wide += static_cast<char16_t>(c.value);
      }
    }
    return wide;
  }
  const PageTable& table = TableOf(page);
  const auto append = [&](std::uint8_t byte) {
    const char16_t unit = table.to_wide[byte];
    wide += unit != 0 || byte == 0 ? unit : static_cast<char16_t>(kRawByte + byte);
  };
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::uint8_t byte = ByteAt(text, at);
    if (page != kJapanese || JapaneseBytes(text, at) == 1) {
      append(byte);
      continue;
    }
    const std::uint8_t trail = ByteAt(text, ++at);
    if (const char16_t unit = table.to_wide[byte << 8 | trail]; unit != 0) {
      wide += unit;
    } else {
      append(byte);
      append(trail);
    }
  }
  return wide;
}

std::string Narrow(std::u16string_view text, unsigned page) {
  if (std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; })) {
    return {text.begin(), text.end()};
  }
  std::string narrow;
  narrow.reserve(text.size());
  const PageTable* table = page == kUtf8 ? nullptr : &TableOf(page);
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t code = text[at];
    if (code < 0x80) {
      narrow += static_cast<char>(code);
      continue;
    }
    if (code >= 0xD800 && code < 0xDC00 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00) {
      code = 0x10000 + ((code & 0x3FF) << 10 | (text[++at] & 0x3FF));
    }
    if (IsRawByte(code)) {
      narrow += static_cast<char>(code - kRawByte);
    } else if (table == nullptr) {
      AppendUtf8(narrow, IsSurrogate(code) ? U'?' : code);
    } else {
      unsigned value = code < 0x10000 ? table->from_wide[code] : 0u;
      if (value == 0) value = '?';
      if (value >= 0x100) narrow += static_cast<char>(value >> 8);
      narrow += static_cast<char>(value & 0xFF);
    }
  }
  return narrow;
}

}  // namespace

namespace detail {

CodePoint DecodeUtf8(std::string_view text, std::size_t position) {
  const std::uint8_t first = ByteAt(text, position);
  if (first < 0x80) return {first, 1};
  const CodePoint raw{kRawByte + first, 1};
  std::size_t size = 0;
  char32_t value = 0;
  char32_t least = 0;
  if ((first & 0xE0) == 0xC0) {
    size = 2, value = first & 0x1Fu, least = 0x80;
  } else if ((first & 0xF0) == 0xE0) {
    size = 3, value = first & 0x0Fu, least = 0x800;
  } else if (first >= 0xF0 && first <= 0xF4) {
    size = 4, value = first & 0x07u, least = 0x10000;
  } else {
    return raw;
  }
  if (text.size() - position < size) return raw;
  for (std::size_t i = 1; i < size; ++i) {
    const std::uint8_t byte = ByteAt(text, position + i);
    if ((byte & 0xC0) != 0x80) return raw;
    value = value << 6 | (byte & 0x3Fu);
  }
  if (value < least || value > 0x10FFFF || IsSurrogate(value)) return raw;
  return {value, size};
}

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
    return;
  }
  if (IsRawByte(code)) {
    out += static_cast<char>(code - kRawByte);
    return;
  }
  if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | code >> 18);
    out += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  }
  out += static_cast<char>(0x80 | (code & 0x3F));
}

const PageTable& TableOf(unsigned page) {
  if (page == kJapanese) {
    static const std::unique_ptr<const PageTable> japanese = BuildTable("CP932", true);
    return *japanese;
  }
  static const std::unique_ptr<const PageTable> western = BuildTable("CP1252", false);
  return *western;
}

}  // namespace detail

bool SetAnsiCodePage(unsigned page) {
  if (page != kUtf8 && page != kWestern && page != kJapanese) return false;
  g_page.store(page, std::memory_order_relaxed);
  return true;
}

unsigned AnsiCodePage() {
  return g_page.load(std::memory_order_relaxed);
}

std::u16string ToWide(std::string_view text) {
  return Widen(text, AnsiCodePage());
}

std::string FromWide(std::u16string_view text) {
  return Narrow(text, AnsiCodePage());
}

std::string ToUtf8(std::string_view text) {
  const unsigned page = AnsiCodePage();
  if (page == kUtf8 || IsAscii(text)) return std::string(text);
  return Narrow(Widen(text, page), kUtf8);
}

std::string FromUtf8(std::string_view text) {
  const unsigned page = AnsiCodePage();
  if (page == kUtf8 || IsAscii(text)) return std::string(text);
  return Narrow(Widen(text, kUtf8), page);
}

}  // namespace platform
