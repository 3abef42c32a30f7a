#include "ioview/target/area_map.h"

#include <cassert>
#include <iterator>

namespace ioview {

void AreaMap::Set(const MemoryArea& area) {
  assert(area.first <= area.last && "an area has at least one address");
  SplitAt(area.first);
  if (area.last != 0xFFFFFFFF) SplitAt(area.last + 1);
  areas_.erase(areas_.lower_bound(area.first), areas_.upper_bound(area.last));
  areas_.emplace(area.first, area);
}

MemoryArea AreaMap::At(std::uint32_t address) const {
  return std::prev(areas_.upper_bound(address))->second;
}

void AreaMap::SplitAt(std::uint32_t address) {
  MemoryArea& area = std::prev(areas_.upper_bound(address))->second;
  if (area.first == address) return;
  areas_.emplace(address, MemoryArea{address, area.last, area.order});
  area.last = address - 1;
}

}  // namespace ioview
