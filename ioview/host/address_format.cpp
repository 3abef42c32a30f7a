#include "ioview/host/address_format.h"

#include <limits>
#include <optional>
#include <string>

#include "ioview/number_text.h"
#include "ioview/statuses.h"

namespace ioview {

namespace {

// Reads blanks, a minus sign, and what `read` makes of the rest.
template <typename Read>
platform::Status Evaluate(platform::BSTR text, std::int64_t* value, const Read& read) {
  const std::string typed = platform::BstrText(text);
  std::string_view digits = TrimBlanks(typed);
  const bool negative = digits.starts_with('-');
  if (negative) digits.remove_prefix(1);
  const std::optional<std::uint64_t> magnitude = read(digits);
  const auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (!magnitude || *magnitude > most + (negative ? 1 : 0)) return kInvalidNumber;
  *value = static_cast<std::int64_t>(negative ? 0 - *magnitude : *magnitude);
  return platform::S_OK;
}

}  // namespace

platform::Status AddressFormat::QueryInterface(const platform::GUID* iid, void** out) {
  if (*iid == pvw::IID_IQErrorReporter) {
    *out = nullptr;
    if (!Enter("QueryInterface", iid)) return platform::E_FAIL;
    *out = static_cast<pvw::IQErrorReporter*>(&reporter_);
    return platform::S_OK;
  }
  return Service::QueryInterface(iid, out);
}

platform::Status AddressFormat::FormatAddress(std::uint32_t address, std::uint32_t space, std::uint32_t mask,
                                              std::uint32_t flags, platform::BSTR* text) {
  if (!Enter("FormatAddress", address, space, mask, flags)) return platform::E_FAIL;
  return GiveText("H'" + DigitsText(address & mask, 16, 8), text);
}

platform::Status AddressFormat::EvaluateExpression(platform::BSTR text, std::uint32_t radix,
                                                   std::int64_t* value) {
  if (!Enter("EvaluateExpression", text, radix)) return platform::E_FAIL;
  if (radix == 0) radix = 16;
  if (radix != 16 && radix != 10 && radix != 8 && radix != 2) return kInvalidNumber;
  return Evaluate(text, value, [radix](std::string_view digits) { return ParseDigits(digits, radix); });
}

platform::Status AddressFormat::EvaluateExpression2(platform::BSTR text, std::uint32_t radix,
                                                    std::int64_t* value) {
  if (!Enter("EvaluateExpression2", text, radix)) return platform::E_FAIL;
  return Evaluate(text, value, ParseTypedNumber);
}

}  // namespace ioview
