#include "ioview/target/sparse_memory.h"

#include <algorithm>
#include <cassert>

namespace ioview {

namespace {

// A range as the pieces of it that lie in one page each: calls `visit(page, offset, position, count)`.
template <typename Visit>
void ForEachPage(std::uint32_t page_bytes, std::uint32_t address, std::size_t size, const Visit& visit) {
  assert(size <= 0x100000000u - address && "a range of the address space doesn't wrap");
  std::size_t position = 0;
  while (position < size) {
    const std::uint64_t at = address + position;
    const auto page = static_cast<std::uint32_t>(at / page_bytes);
    const auto offset = static_cast<std::size_t>(at % page_bytes);
    const std::size_t count = std::min<std::size_t>(page_bytes - offset, size - position);
    visit(page, offset, position, count);
    position += count;
  }
}

}  // namespace

void SparseMemory::Write(std::uint32_t address, std::span<const std::uint8_t> bytes) {
  ForEachPage(kPageBytes, address, bytes.size(),
              [&](std::uint32_t page, std::size_t offset, std::size_t position, std::size_t count) {
                std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(position), count,
                            pages_[page].begin() + static_cast<std::ptrdiff_t>(offset));
              });
}

void SparseMemory::Read(std::uint32_t address, std::span<std::uint8_t> bytes) const {
  ForEachPage(kPageBytes, address, bytes.size(),
              [&](std::uint32_t page, std::size_t offset, std::size_t position, std::size_t count) {
                const auto out = bytes.begin() + static_cast<std::ptrdiff_t>(position);
                const auto found = pages_.find(page);
                if (found == pages_.end()) {
                  std::fill_n(out, count, std::uint8_t{0});
                } else {
                  std::copy_n(found->second.begin() + static_cast<std::ptrdiff_t>(offset), count, out);
                }
              });
}

}  // namespace ioview
