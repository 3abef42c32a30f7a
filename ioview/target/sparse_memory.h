// The bytes of a 32-bit address space, of which only the pages that were written take room.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <span>

namespace ioview {

class SparseMemory {
 public:
  // The range must end at or below FFFFFFFF.
  void Write(std::uint32_t address, std::span<const std::uint8_t> bytes);
  // Fills `bytes`; a byte that was never written reads as 0. The range as above.
  void Read(std::uint32_t address, std::span<std::uint8_t> bytes) const;

 private:
  // Small, so that an image of scattered single bytes takes no more than a few times its file's size.
  static constexpr std::uint32_t kPageBytes = 64;
  using Page = std::array<std::uint8_t, kPageBytes>;

  std::map<std::uint32_t, Page> pages_;  // by address / kPageBytes
};

}  // namespace ioview
