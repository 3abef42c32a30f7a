#include "model/number_text.h"

#include <algorithm>
#include <string_view>

#include "platform/base/bstr.h"

namespace pvw {
namespace {

constexpr std::size_t kPrefixLength = 2;

platform::Status Format(IQNumberFormat& format, std::uint64_t value, std::uint32_t bits,
                        platform::BSTR* text) {
  const auto low = static_cast<std::uint32_t>(value);
  if (bits > 32 && bits <= 64) {
    return format.FormatQuad(low, static_cast<std::uint32_t>(value >> 32), kRadixHexadecimal, text);
  }
  if (bits > 16 && bits <= 32) return format.FormatLong(low, kRadixHexadecimal, text);
  if (bits > 8 && bits <= 16) {
    return format.FormatWord(static_cast<std::uint16_t>(value), kRadixHexadecimal, text);
  }
  return format.FormatByte(static_cast<std::uint8_t>(value), kRadixHexadecimal, text);
}

}  // namespace

std::string NumberText(IQNumberFormat* numberFormat, std::uint64_t value, std::uint32_t bits) {
  platform::ScopedBstr text;
  if (numberFormat == nullptr || platform::Failed(Format(*numberFormat, value, bits, text.Receive()))) {
    return "0";
  }
  const std::string number = text.Text();
  std::string_view digits = number;
  digits.remove_prefix(std::min(kPrefixLength, digits.size()));
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return std::string(digits.empty() ? "0" : digits);
}

}  // namespace pvw
