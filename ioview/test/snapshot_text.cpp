#include "ioview/test/snapshot_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <span>

#include "ioview/number_text.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr char kSeparator = '&';
constexpr char kEscape = '\\';
constexpr std::string_view kVersion = "1.0";
constexpr std::size_t kFlagItem = 2;
constexpr std::size_t kCountItem = 3;
constexpr std::size_t kFirstRegister = 4;
constexpr std::ptrdiff_t kBlanksOfRegister = 3;

}  // namespace

// By whole characters: the second byte of a double-byte character may look like either.
std::vector<std::string> SplitItems(std::string_view text) {
  std::vector<std::string> items(1);
  for (std::size_t i = 0; i < text.size();) {
    std::size_t length = platform::CharBytes(text, i);
    if (text[i] == kEscape && i + 1 < text.size()) {
      i += 1;
      length = platform::CharBytes(text, i);
    } else if (text[i] == kSeparator) {
      items.emplace_back();
      i += 1;
      continue;
    }
    items.back() += text.substr(i, length);
    i += length;
  }
  return items;
}

std::string JoinItems(const std::vector<std::string>& items) {
  std::string text;
  for (const std::string& item : items) {
    if (&item != &items.front()) text += kSeparator;
    for (std::size_t i = 0; i < item.size();) {
      const std::size_t length = platform::CharBytes(item, i);
      if (item[i] == kSeparator || item[i] == kEscape) text += kEscape;
      text += item.substr(i, length);
      i += length;
    }
  }
  return text;
}

std::string SnapshotRequest(const std::vector<std::string>& names) {
  char count[20];
  std::snprintf(count, sizeof count, "%zx", names.size());
  std::vector<std::string> items = {std::string(kVersion), "device", "0", count};
  for (const std::string& name : names) items.push_back(name + " H'0 1 0");
  return JoinItems(items);
}

std::vector<std::string> SnapshotNames(std::string_view text) {
  std::vector<std::string> names;
  const std::vector<std::string> items = SplitItems(text);
  for (std::size_t i = kFirstRegister; i < items.size(); ++i) {
    names.push_back(items[i].substr(0, items[i].find(' ')));
  }
  return names;
}

bool IsSnapshot(std::string_view text) {
  const std::vector<std::string> items = SplitItems(text);
  if (items.size() < kFirstRegister || items.front() != kVersion) return false;
  const std::span registers = std::span(items).subspan(kFirstRegister);
  return ParseDigits(items[kCountItem], 16) == registers.size() &&
         std::ranges::all_of(registers, [](const std::string& item) {
           return std::ranges::count(item, ' ') >= kBlanksOfRegister && !item.ends_with(' ');
         });
}

std::string IgnoringAddresses(std::string_view text) {
  std::vector<std::string> items = SplitItems(text);
  if (items.size() > kFlagItem) items[kFlagItem] = "1";
  return JoinItems(items);
}

}  // namespace ioview
