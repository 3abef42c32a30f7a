// Numbers as digits of a radix, and the readers of hexadecimal words that users type.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ioview {

// Digits of either case alone, at least one; nothing for any other text or a number above 64 bits. The radix
// is 2 to 16.
std::optional<std::uint64_t> ParseDigits(std::string_view digits, unsigned radix);

// A hexadecimal number with or without `0x`, of at most `digits` digits.
std::optional<std::uint32_t> ParseHexWord(std::string_view word, std::size_t digits);

// A number as users type it, blanks around it: hexadecimal digits bare or behind H', h', 0x or 0X, decimal
// ones behind D', binary ones behind B'. A prefix alone is 0. Nothing for any other text, the empty one
// included, or a number above 64 bits.
std::optional<std::uint64_t> ParseTypedNumber(std::string_view text);

// Without the blanks (20) at both ends.
std::string_view TrimBlanks(std::string_view text);

// Upper-case digits, filled up with zeros to at least `digits`.
std::string DigitsText(std::uint64_t value, unsigned radix, std::size_t digits = 1);

}  // namespace ioview
