// Finds the place of a key in a list by the key's hash. The list and the keys are the owner's.
//
// A slot takes 8 bytes, so that the table of a large view's keys stays in the processor's caches: each key of
// a first save is looked for before it is appended.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace ioview {

class KeyIndex {
 public:
  static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

  // The place for which `same` holds among those that were added with that hash; kNone.
  template <typename Same>
  std::uint32_t Find(std::uint32_t hash, Same same) const {
    if (slots_.empty()) return kNone;
    for (std::size_t at = hash & Mask();; at = (at + 1) & Mask()) {
      const Slot& slot = slots_[at];
      if (slot.place == kNone || (slot.hash == hash && same(slot.place))) return slot.place;
    }
  }

  // The place must not be kNone.
  void Add(std::uint32_t hash, std::uint32_t place) {
    if (++count_ * 2 > slots_.size()) Grow();
    Put({hash, place});
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t place = kNone;
  };

  std::size_t Mask() const { return slots_.size() - 1; }
  void Put(Slot added) {
    std::size_t at = added.hash & Mask();
    while (slots_[at].place != kNone) at = (at + 1) & Mask();
    slots_[at] = added;
  }
  void Grow() {
    constexpr std::size_t kFirstSize = 16;
    const std::vector<Slot> old =
        std::exchange(slots_, std::vector<Slot>(slots_.empty() ? kFirstSize : slots_.size() * 2));
    for (const Slot& slot : old) {
      if (slot.place != kNone) Put(slot);
    }
  }

  std::vector<Slot> slots_;  // open addressing with linear probing, a power of two, at most half full
  std::size_t count_ = 0;
};

}  // namespace ioview
