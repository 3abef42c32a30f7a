// Interface, service and event ids. Stands in for the system's GUID and its text form
// "{80D58C53-E47D-11D3-8AF5-00AA0026624A}".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct GUID {
  std::uint32_t data1 = 0;
  std::uint16_t data2 = 0;
  std::uint16_t data3 = 0;
  std::array<std::uint8_t, 8> data4{};

  friend bool operator==(const GUID&, const GUID&) = default;
};

// Reads the braced text form, hexadecimal digits of either case; nothing for any other text.
constexpr std::optional<GUID> ParseGuid(std::string_view text) {
  if (text.size() != 38 || text.front() != '{' || text.back() != '}') return std::nullopt;
  std::array<std::uint8_t, 16> bytes{};
  std::size_t digits = 0;
  for (std::size_t i = 1; i < 37; ++i) {
    const char c = text[i];
    if (i == 9 || i == 14 || i == 19 || i == 24) {
      if (c != '-') return std::nullopt;
      continue;
    }
    std::uint8_t value = 0;
    if (c >= '0' && c <= '9') {
      value = static_cast<std::uint8_t>(c - '0');
    } else if (c >= 'A' && c <= 'F') {
      value = static_cast<std::uint8_t>(c - 'A' + 10);
    } else if (c >= 'a' && c <= 'f') {
      value = static_cast<std::uint8_t>(c - 'a' + 10);
    } else {
      return std::nullopt;
    }
    bytes[digits / 2] = static_cast<std::uint8_t>(bytes[digits / 2] * 16 + value);
    ++digits;
  }
  GUID guid;
  guid.data1 = static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
               static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
  guid.data2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
  guid.data3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
  for (std::size_t i = 0; i < 8; ++i) guid.data4[i] = bytes[8 + i];
  return guid;
}

// A GUID from a literal; a text that isn't one fails to compile.
consteval GUID MakeGuid(std::string_view text) { return ParseGuid(text).value(); }

// The braced text form in upper case.
std::string GuidText(const GUID& guid);

}  // namespace platform

template <>
struct std::hash<platform::GUID> {
  std::size_t operator()(const platform::GUID& guid) const noexcept {
    std::size_t value = guid.data1 * 0x9E3779B97F4A7C15ull ^ (guid.data2 << 16 | guid.data3);
    for (const std::uint8_t byte : guid.data4) value = value * 31 + byte;
    return value;
  }
};
