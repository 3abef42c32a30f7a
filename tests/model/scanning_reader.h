// Lookups that read through the whole text each time: what the index must agree with, and be faster than.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pvw::test {

std::string ScanForValue(std::string_view text, std::string_view section, std::string_view key);
std::vector<std::string> ScanForKeys(std::string_view text, std::string_view section);

}  // namespace pvw::test
