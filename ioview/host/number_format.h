// IQNumberFormat: numbers as text with a two-character prefix for their radix, H' D' Q' or B'.
#pragma once

#include "host/format_services.h"
#include "ioview/host/service.h"

namespace ioview {

class NumberFormat : public Service<pvw::IQNumberFormat, pvw::IID_IQNumberFormat> {
 public:
  // Reads what ParseTypedNumber reads. Any other text is kInvalidNumber and stores nothing.
  platform::Status ParseValue(platform::BSTR text, std::uint64_t* value) override;

  // Hexadecimal, octal and binary digits fill the number's whole width, decimal ones don't. The radix is 16,
  // 10, 8 or 2; another is kInvalidNumber and gives null.
  platform::Status FormatByte(std::uint8_t value, std::uint32_t radix, platform::BSTR* text) override;
  platform::Status FormatWord(std::uint16_t value, std::uint32_t radix, platform::BSTR* text) override;
  platform::Status FormatLong(std::uint32_t value, std::uint32_t radix, platform::BSTR* text) override;
  platform::Status FormatQuad(std::uint32_t low, std::uint32_t high, std::uint32_t radix,
                              platform::BSTR* text) override;
};

}  // namespace ioview
