#include "ioview/host/number_format.h"

#include <optional>
#include <string>

#include "ioview/number_text.h"
#include "ioview/statuses.h"

namespace ioview {

namespace {

platform::Status Format(std::uint64_t value, unsigned bits, std::uint32_t radix, platform::BSTR* text) {
  *text = nullptr;
  std::string number;
  switch (radix) {
    case 16:
      number = "H'" + DigitsText(value, 16, bits / 4);
      break;
    case 10:
      number = "D'" + DigitsText(value, 10);
      break;
    case 8:
      number = "Q'" + DigitsText(value, 8, (bits + 2) / 3);
      break;
    case 2:
      number = "B'" + DigitsText(value, 2, bits);
      break;
    default:
      return kInvalidNumber;
  }
  return GiveText(number, text);
}

}  // namespace

platform::Status NumberFormat::ParseValue(platform::BSTR text, std::uint64_t* value) {
  if (!Enter("ParseValue", text)) return platform::E_FAIL;
  const std::optional<std::uint64_t> number = ParseTypedNumber(platform::BstrText(text));
  if (!number) return kInvalidNumber;
  *value = *number;
  return platform::S_OK;
}

platform::Status NumberFormat::FormatByte(std::uint8_t value, std::uint32_t radix, platform::BSTR* text) {
  if (!Enter("FormatByte", value, radix)) return platform::E_FAIL;
  return Format(value, 8, radix, text);
}

platform::Status NumberFormat::FormatWord(std::uint16_t value, std::uint32_t radix, platform::BSTR* text) {
  if (!Enter("FormatWord", value, radix)) return platform::E_FAIL;
  return Format(value, 16, radix, text);
}

platform::Status NumberFormat::FormatLong(std::uint32_t value, std::uint32_t radix, platform::BSTR* text) {
  if (!Enter("FormatLong", value, radix)) return platform::E_FAIL;
  return Format(value, 32, radix, text);
}

platform::Status NumberFormat::FormatQuad(std::uint32_t low, std::uint32_t high, std::uint32_t radix,
                                          platform::BSTR* text) {
  if (!Enter("FormatQuad", low, high, radix)) return platform::E_FAIL;
  return Format(std::uint64_t{high} << 32 | low, 64, radix, text);
}

}  // namespace ioview
