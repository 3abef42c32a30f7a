// Lookups that read through the whole text each time: what the index must agree with, and be faster than.
#pragma once

#include <string_view>
#include <vector>

#include "model/profile_text.h"

namespace pvw::test {

// The entries of the first section of that name.
std::vector<ProfileLine> ScanForEntries(std::string_view text, std::string_view section);
// The value of its first entry with that key.
std::string_view ScanForValue(std::string_view text, std::string_view section, std::string_view key);

}  // namespace pvw::test
