// Numbers as hexadecimal digits by the host's number service: values of bit fields, and limits in messages.
#pragma once

#include <cstdint>
#include <string>

#include "host/format_services.h"

namespace pvw {

inline constexpr std::uint32_t kRadixHexadecimal = 16;  // as the host's services count

// Upper-case digits as the host gives them, without its two-character prefix and without leading zeros; "0"
// for zero. The bit count picks the host's operation: above 32 up to 64 the quad, down to 17 the long, down
// to 9 the word, any other count the byte; the value is cut to what that takes. Without the service, and
// when it fails or gives a text of less than the prefix, the text is "0".
std::string NumberText(IQNumberFormat* numberFormat, std::uint64_t value, std::uint32_t bits);

}  // namespace pvw
