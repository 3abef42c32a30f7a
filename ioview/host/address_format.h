// IQAddressFormat: target addresses as text, and numbers that stand for expressions.
#pragma once

#include "host/format_services.h"
#include "ioview/host/error_texts.h"
#include "ioview/host/service.h"

namespace ioview {

// Explains its failures: asked for IQErrorReporter, it gives one.
class AddressFormat : public Service<pvw::IQAddressFormat, pvw::IID_IQAddressFormat> {
 public:
  void LogTo(CallLog& calls) {
    Service::LogTo(calls);
    reporter_.LogTo(calls);
  }
  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;

  // H' and the eight upper-case digits of `address` within `mask`. This host has one address space and no
  // flags.
  platform::Status FormatAddress(std::uint32_t address, std::uint32_t space, std::uint32_t mask,
                                 std::uint32_t flags, platform::BSTR* text) override;

  // The first reads digits of the radix (0 counts as 16), the second a number with a prefix as NumberFormat
  // reads it; both with blanks around and a minus sign in front. This host knows no names and no operators:
  // another text, or a number beyond 64 signed bits, is kInvalidNumber and stores nothing.
  platform::Status EvaluateExpression(platform::BSTR text, std::uint32_t radix, std::int64_t* value) override;
  platform::Status EvaluateExpression2(platform::BSTR text, std::uint32_t radix,
                                       std::int64_t* value) override;

 private:
  ErrorReporter reporter_;
};

}  // namespace ioview
