// Numbers as bytes of target memory.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>

namespace pvw {

// The codes are those of the host's debugger library.
enum class ByteOrder : std::uint32_t {
  kBig = 273,     // highest byte first
  kLittle = 274,  // lowest byte first
};

// The number that 1 to 4 bytes in the order of their addresses stand for.
constexpr std::uint32_t UnpackValue(std::span<const std::uint8_t> bytes, ByteOrder order) {
  assert(bytes.size() <= 4 && "a value has at most 4 bytes");
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    value = value << 8 | bytes[order == ByteOrder::kLittle ? bytes.size() - 1 - i : i];
  }
  return value;
}

// Fills `bytes`, at most 8, with the low bytes of `value`; what doesn't fit is cut off at the top.
constexpr void PackValue(std::uint64_t value, ByteOrder order, std::span<std::uint8_t> bytes) {
  assert(bytes.size() <= 8 && "a value has at most 8 bytes");
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[order == ByteOrder::kLittle ? i : bytes.size() - 1 - i] =
        static_cast<std::uint8_t>(value >> (8 * i));
  }
}

}  // namespace pvw
