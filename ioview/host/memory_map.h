// IQMemoryMap over the areas of the simulated target.
#pragma once

#include "host/debug_services.h"
#include "ioview/host/service.h"
#include "ioview/target/simulated_target.h"

namespace ioview {

class MemoryMap : public Service<pvw::IQMemoryMap, pvw::IID_IQMemoryMap> {
 public:
  explicit MemoryMap(const SimulatedTarget& target) : target_(target) {}

  // `*endian` is 1 for a little-endian area, 0 for a big-endian one.
  platform::Status GetAreaInfo(std::uint32_t address, std::uint32_t* first, std::uint32_t* last,
                               std::uint32_t* endian) override {
    if (!Enter("GetAreaInfo", address)) return platform::E_FAIL;
    const MemoryArea area = target_.AreaAt(address);
    *first = area.first;
    *last = area.last;
    *endian = area.order == ByteOrder::kLittle ? 1 : 0;
    return platform::S_OK;
  }

 private:
  const SimulatedTarget& target_;
};

}  // namespace ioview
