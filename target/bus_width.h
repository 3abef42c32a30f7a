// The choice of access width for a write, from where the value lies and how wide the target's data bus is.
#pragma once

#include <cstdint>

namespace pvw {

// Width in bytes, 1, 2 or 4, of the accesses that write `size` bytes at `address` over a bus of `bus` bits. A
// bus counts only as wide as the address is aligned to.
constexpr std::uint32_t WriteAccessWidth(std::uint32_t address, std::uint32_t size, std::uint32_t bus) {
  if (address % 2 != 0) return 1;
  if (address % 4 != 0 && bus > 16) {
    bus = 16;
  } else if (address % 8 != 0 && bus > 32) {
    bus = 32;
  }
  if (bus == 8 || size == 1) return 1;
  return bus == 16 || size == 2 ? 2 : 4;
}

}  // namespace pvw
