#include "model/field_scan.h"

namespace pvw {
namespace {

// 16 and above for what isn't a digit in any base.
constexpr unsigned DigitValue(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  const char lower = static_cast<char>(c | 0x20);
  if (lower >= 'a' && lower <= 'f') return static_cast<unsigned>(lower - 'a') + 10;
  return 16;
}

void TakeWhiteSpace(std::string_view& text) {
  while (!text.empty() && IsWhiteSpace(text.front())) text.remove_prefix(1);
}

// Takes the number at the front of `text`: a sign, the prefix that `base` allows, at least one digit.
bool TakeNumber(std::string_view& text, NumberBase base, std::uint32_t& value) {
  bool negative = false;
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  unsigned radix = base == NumberBase::kHexadecimal ? 16 : 10;
  if (base != NumberBase::kDecimal && !text.empty() && text.front() == '0') {
    if (text.size() > 1 && (text[1] == 'x' || text[1] == 'X')) {
      radix = 16;
      text.remove_prefix(2);
    } else if (base == NumberBase::kAutomatic) {
      radix = 8;
    }
  }
  if (text.empty() || DigitValue(text.front()) >= radix) return false;
  std::uint32_t number = 0;
  for (; !text.empty() && DigitValue(text.front()) < radix; text.remove_prefix(1)) {
    number = number * radix + DigitValue(text.front());
  }
  value = negative ? 0 - number : number;
  return true;
}

}  // namespace

FieldScan::FieldScan(std::string_view text) : m_rest(text.substr(0, text.find('\0'))) {}

bool FieldScan::BeginField() {
  if (m_bEnded) return false;
  TakeWhiteSpace(m_rest);
  m_bEnded = m_rest.empty();
  return !m_bEnded;
}

bool FieldScan::Number(NumberBase base, std::uint32_t& value) {
  if (!BeginField()) return false;
  m_bEnded = !TakeNumber(m_rest, base, value);
  return !m_bEnded;
}

bool FieldScan::Hex(std::uint32_t& value) {
  return Number(NumberBase::kHexadecimal, value);
}

bool FieldScan::Decimal(std::uint32_t& value) {
  return Number(NumberBase::kDecimal, value);
}

bool FieldScan::Integer(std::uint32_t& value) {
  return Number(NumberBase::kAutomatic, value);
}

bool FieldScan::Decimal(std::int32_t& value) {
  std::uint32_t number = 0;
  if (!Decimal(number)) return false;
  value = static_cast<std::int32_t>(number);
  return true;
}

bool FieldScan::Integer(std::int32_t& value) {
  std::uint32_t number = 0;
  if (!Integer(number)) return false;
  value = static_cast<std::int32_t>(number);
  return true;
}

bool FieldScan::Char(char& c) {
  if (!BeginField()) return false;
  c = m_rest.front();
  m_rest.remove_prefix(1);
  return true;
}

bool FieldScan::Word(std::string& word) {
  if (!BeginField()) return false;
  std::size_t size = 0;
  while (size < m_rest.size() && !IsWhiteSpace(m_rest[size])) ++size;
  word.assign(m_rest.substr(0, size));
  m_rest.remove_prefix(size);
  return true;
}

std::optional<std::uint32_t> ParseNumber(std::string_view text) {
  TakeWhiteSpace(text);
  std::uint32_t value = 0;
  if (!TakeNumber(text, NumberBase::kAutomatic, value) || !text.empty()) return std::nullopt;
  return value;
}

}  // namespace pvw
