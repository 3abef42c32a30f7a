// Scans one value of a definition file field by field, with the meaning of C's sscanf.
//
// A scan object stands for one call of sscanf and each call on it for one conversion of its format:
//
//   FieldScan scan(value);
//   if (scan.Hex(address) && scan.Char(size) && scan.Char(flag)) ...      "%lx %c %c"
//
// White space is C's six characters and is skipped before every field. The first field that isn't converted
// ends the scan: it and all behind it give false and leave their output alone. A zero byte ends the text.
// Numbers of any length are taken modulo 2 to the 32nd, their sign included; nothing saturates.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pvw {

constexpr bool IsWhiteSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

enum class NumberBase { kDecimal, kHexadecimal, kAutomatic };

class FieldScan {
 public:
  explicit FieldScan(std::string_view text);

  // "%lx": a sign and 0x or 0X may stand in front; letters A to F run on, so "FF0000B I" gives FF0000B.
  // 0x without a digit behind it isn't a number.
  bool Hex(std::uint32_t& value);
  // "%d": a sign may stand in front.
  bool Decimal(std::uint32_t& value);
  bool Decimal(std::int32_t& value);
  // "%i": as "%d", but 0x or 0X in front makes it hexadecimal and any other leading 0 octal.
  bool Integer(std::uint32_t& value);
  bool Integer(std::int32_t& value);
  // " %c": one byte that isn't white space; it needs no blank before or behind.
  bool Char(char& c);
  // "%s": up to the next white space, at least one byte.
  bool Word(std::string& word);

 private:
  // Skips white space; false when the scan has ended or ends here.
  bool BeginField();
  bool Number(NumberBase base, std::uint32_t& value);

  std::string_view m_rest;
  bool m_bEnded = false;
};

// The whole of `text` as a number of automatic base, as C's strtoul with base 0 reads it: white space and a
// sign may stand in front. Nothing when there is no number or when any text is left behind it.
std::optional<std::uint32_t> ParseNumber(std::string_view text);

}  // namespace pvw
