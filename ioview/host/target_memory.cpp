#include "ioview/host/target_memory.h"

#include "ioview/statuses.h"

namespace ioview {

platform::Status BlockMemory::WriteBlock(std::uint32_t first, std::uint32_t last, std::uint32_t flag,
                                         std::uint32_t size, const std::uint8_t* buffer) {
  if (!Enter("WriteBlock", first, last, flag, size, buffer)) return platform::E_FAIL;
  if (last >= first && std::uint64_t{last} - first + 1 != size) return kTooManyBytes;
  return target_.WriteNumber(first, last, buffer);
}

}  // namespace ioview
