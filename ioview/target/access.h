// One access of the component to the target, for the log of accesses.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ioview {

struct Access {
  enum class Kind { kRead, kReadLittle, kWrite, kBlock };

  Kind kind = Kind::kRead;
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  std::uint32_t width = 0;          // of reads and writes; blocks have none
  std::vector<std::uint8_t> bytes;  // of writes and blocks, as the component gave them
  bool failed = false;
};

// "read ADDR-LAST width N plain", "read … little", "write ADDR-LAST width N: BYTES", "block ADDR-LAST:
// BYTES", with " failed" behind a failed one. Addresses have eight digits, bytes two.
std::string AccessText(const Access& access);

}  // namespace ioview
