// The comparison of two snapshots.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "testclient/compared_registers.h"

namespace pvw {

struct Comparison {
  // 0: equal. Else 2 when a register of the second is missing in the first, or when the last difference in
  // the order of the first was one that is missing in the second; 1 for any other difference.
  std::uint32_t status = 0;
  std::string summary;  // the coded names, and one coded line for each: see result_text.h
  std::string detail;   // in the escaped form of a list
};

// A register gives one line at most, for the first that differs of presence, address, size and value; the
// first's in its order, then what is left over in the order of the second. Of entries with the same name the
// last of the second counts, and it answers one of the first.
Comparison CompareRegisters(std::span<const CompareEntry> first, std::span<const CompareEntry> second,
                            bool ignoreAddress);

}  // namespace pvw
