// A target that exists in this process only: memory, areas with a byte order, accesses that fail on request,
// and a log of what the component did.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "ioview/target/access.h"
#include "ioview/target/area_map.h"
#include "ioview/target/sparse_memory.h"
#include "platform/base/types.h"

namespace ioview {

class SimulatedTarget {
 public:
  // The longest range that one access of the component may cover, in bytes.
  static constexpr std::uint64_t kLongestAccess = 16u << 20;
  // What the log keeps when nobody takes it; older accesses are dropped then.
  static constexpr std::size_t kMostAccesses = 1'000'000;
  static constexpr std::size_t kMostLoggedBytes = std::size_t{64} << 20;  // of their values

  // What somebody beside the component does to the memory: never logged, never failing on request. False,
  // and nothing done, when the range would go past address FFFFFFFF.
  bool Poke(std::uint32_t address, std::span<const std::uint8_t> bytes);
  bool Peek(std::uint32_t address, std::span<std::uint8_t> bytes) const;

  // A later area wins over the ones before it.
  void SetArea(const MemoryArea& area) { areas_.Set(area); }
  MemoryArea AreaAt(std::uint32_t address) const { return areas_.At(address); }

  // From now on reads, or writes, fail with this negative status; the other kind works again.
  void FailReads(platform::Status status);
  void FailWrites(platform::Status status);
  void FailNothing();

  // Accesses of the component over the addresses `first` to `last`. `width` is 1, 2 or 4. A range that wraps
  // or is longer than kLongestAccess, another width, or a null buffer fails with kTargetAccessFailed and
  // touches nothing. Bytes stand in the order of their addresses.
  platform::Status Read(Access::Kind kind, std::uint32_t first, std::uint32_t last, std::uint32_t width,
                        std::uint8_t* bytes);
  platform::Status Write(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                         const std::uint8_t* bytes);
  // Writes one number that fills the range, given highest byte first, in the byte order of the area that
  // `first` lies in.
  platform::Status WriteNumber(std::uint32_t first, std::uint32_t last, const std::uint8_t* bytes);

  // Off at first: nobody may ever take the log. Switching it off forgets what it holds.
  void LogAccesses(bool on);
  // The accesses since the last call.
  std::vector<Access> TakeAccesses();

 private:
  void Log(Access access);

  SparseMemory memory_;
  AreaMap areas_;
  platform::Status read_failure_ = platform::S_OK;
  platform::Status write_failure_ = platform::S_OK;
  bool logging_ = false;
  std::deque<Access> accesses_;
  std::size_t logged_bytes_ = 0;
};

}  // namespace ioview
