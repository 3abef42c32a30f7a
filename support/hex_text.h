// Hexadecimal numbers as text.
#pragma once

#include <cstdint>
#include <string_view>

namespace pvw {

// The sum of all digits, each shifted to its place, the shift counted modulo 32: a ninth digit from the right
// adds to the lowest place again. 0 for an empty text and for one with any other character, a prefix
// included; 0 doesn't tell a bad text from the number.
std::uint32_t ParseHex(std::string_view text);

// True for a text of hexadecimal digits, bare or behind one of H' h' 0x 0X. A prefix alone counts as a
// number.
bool IsHexNumber(std::string_view text);

}  // namespace pvw
