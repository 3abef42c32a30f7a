// The memory map of a target: which part of the address space has which byte order.
#pragma once

#include <cstdint>
#include <map>

namespace ioview {

enum class ByteOrder { kBig, kLittle };

// A part of the address space, by its first and its last address.
struct MemoryArea {
  std::uint32_t first = 0;
  std::uint32_t last = 0xFFFFFFFF;
  ByteOrder order = ByteOrder::kBig;

  friend bool operator==(const MemoryArea&, const MemoryArea&) = default;
};

// Covers the whole space without gaps; at first it is one big-endian area.
class AreaMap {
 public:
  // Lays `area` over what was there: areas below it are cut, hidden, or split in two. `first` must not be
  // above `last`.
  void Set(const MemoryArea& area);
  // The area in force at `address`, with the bounds that later areas left it.
  MemoryArea At(std::uint32_t address) const;

 private:
  // Makes `address` the first one of an area.
  void SplitAt(std::uint32_t address);

  std::map<std::uint32_t, MemoryArea> areas_ = {{0, MemoryArea{}}};  // by first address
};

}  // namespace ioview
