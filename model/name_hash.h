// Hashes of names, and the equality of names of sections and keys, which are without regard to case.
#pragma once

#include <cstdint>
#include <string_view>

namespace pvw {

// Equal for names that are equal without regard to case. Seeded for each run of the program, so that no
// file can be written whose names meet in one place.
std::uint32_t NameHash(std::string_view name);

// With regard to case, seeded alike.
std::uint32_t ExactNameHash(std::string_view name);

// Without regard to case, by whole characters of the ANSI code page.
bool NamesEqual(std::string_view a, std::string_view b);

}  // namespace pvw
