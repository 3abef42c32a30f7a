#include "testclient/test_data_text.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "support/hex_text.h"
#include "support/list_text.h"
#include "testclient/list_form.h"

namespace pvw {

namespace {

constexpr const char* kVersion = "1.0";

// Places of the items.
constexpr std::size_t kIgnoreAddress = 2;
constexpr std::size_t kFirstRegister = 4;

// Places of a register's fields.
constexpr std::size_t kName = 0, kAddress = 1, kSize = 2, kValue = 3, kFields = 4;

std::string Hex(std::uint32_t number) {
  std::array<char, 8> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
  return std::string(digits.data(), end);
}

}  // namespace

TestData ParseTestData(std::string_view text) {
  TestData data;
  StringList items;
  SplitEscapedList(text, items, kListSeparator, kListEscape);
  if (items.size() > kIgnoreAddress) data.ignoreAddress = ParseHex(items[kIgnoreAddress]) != 0;
  StringList fields;
  for (std::size_t i = kFirstRegister; i < items.size(); ++i) {
    if (SplitList(items[i], fields, kFieldSeparator) < kFields) continue;
    data.registers.push_back(
        {fields[kName], fields[kAddress], ParseHex(fields[kValue]), ParseHex(fields[kSize])});
  }
  return data;
}

std::string MakeTestData(std::string_view device, bool ignoreAddress,
                         std::span<const CompareEntry> registers) {
  StringList items{kVersion, std::string(device), Hex(ignoreAddress ? 1 : 0),
                   Hex(static_cast<std::uint32_t>(registers.size()))};
  items.reserve(kFirstRegister + registers.size());
  for (const CompareEntry& entry : registers) {
    const std::array<std::string, kFields> fields{entry.name, entry.address, Hex(entry.size),
                                                  Hex(entry.value)};
    items.push_back(JoinList(fields, kFieldSeparator));
  }
  return JoinEscapedList(items, kListSeparator, kListEscape);
}

}  // namespace pvw
