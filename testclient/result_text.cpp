#include "testclient/result_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/list_text.h"
#include "testclient/list_form.h"

namespace pvw {

namespace {

constexpr std::size_t kMostDigits = 32;

// What a detail text begins with, and a summary doesn't.
constexpr char kDetail = '1';

constexpr const char* kSides[] = {"Src", "Dest"};

std::string Line(std::initializer_list<std::string> fields) {
  return JoinList(std::span(fields.begin(), fields.size()), kFieldSeparator);
}

std::string ValueDigits(const CompareEntry& entry) {
  std::array<char, 8> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), entry.value, 16).ptr;
  std::string text(digits.data(), end);
  std::ranges::transform(text, text.begin(),
                         [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
  const std::size_t width = std::min(std::size_t{2} * entry.size, kMostDigits);
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  return text;
}

// As a signed number, which it is to the framework.
std::string SizeDigits(const CompareEntry& entry) {
  return std::to_string(static_cast<std::int32_t>(entry.size));
}

// Takes the text up to the first separator, and the separator.
std::string_view TakeField(std::string_view& rest) {
  const std::size_t end = rest.find(kFieldSeparator);
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return field;
}

// -1 when the field isn't a number.
int NumberOf(std::string_view field) {
  int number = 0;
  const char* const last = field.data() + field.size();
  const auto [end, error] = std::from_chars(field.data(), last, number);
  return error == std::errc() && end == last ? number : -1;
}

// Each "%s" stands for one insert, which goes in as it stands.
std::string Fill(std::string_view text, std::initializer_list<std::string_view> inserts) {
  constexpr std::string_view kPlace = "%s";
  std::string filled;
  for (const std::string_view insert : inserts) {
    const std::size_t place = text.find(kPlace);
    if (place == std::string_view::npos) break;
    filled.append(text.substr(0, place)).append(insert);
    text.remove_prefix(place + kPlace.size());
  }
  return filled.append(text);
}

std::string WordsOfLine(std::string_view line) {
  const int kind = NumberOf(TakeField(line));
  const int number = NumberOf(TakeField(line));
  if (kind == 0 && number == 0) return Fill(platform::LoadString(IDS_DIFFERENT), {line});
  if (kind != 1) return {};
  const std::string_view name = TakeField(line);
  const std::string_view first = TakeField(line);
  const std::string_view second = TakeField(line);
  switch (number) {
    case 0:
      return Fill(platform::LoadString(IDS_NOT_FOUND), {name, first});
    case 1:
      return Fill(platform::LoadString(IDS_DIFFERENT_ADDRESS), {name, first, second});
    case 2:
      return Fill(platform::LoadString(IDS_DIFFERENT_SIZE), {name, first, second});
    case 3:
      return Fill(platform::LoadString(IDS_DIFFERENT_VALUE), {name, first, second});
    default:
      return {};
  }
}

}  // namespace

std::string NotFoundLine(const std::string& name, Side missing) {
  return Line({"1", "0", name, kSides[static_cast<std::size_t>(missing)]});
}

std::string AddressLine(const CompareEntry& first, const CompareEntry& second) {
  return Line({"1", "1", first.name, first.address, second.address});
}

std::string SizeLine(const CompareEntry& first, const CompareEntry& second) {
  return Line({"1", "2", first.name, SizeDigits(first), SizeDigits(second)});
}

std::string ValueLine(const CompareEntry& first, const CompareEntry& second) {
  return Line({"1", "3", first.name, ValueDigits(first), ValueDigits(second)});
}

std::string SummaryLine(std::string_view names) {
  return Line({"0", "0", std::string(names)});
}

std::string WordsOfResult(std::string_view text) {
  StringList lines;
  if (text.starts_with(kDetail)) {
    SplitEscapedList(text, lines, kListSeparator, kListEscape);
  } else {
    lines.emplace_back(text);
  }
  for (std::string& line : lines) line = WordsOfLine(line);
  return JoinEscapedList(lines, kListSeparator, kListEscape);
}

}  // namespace pvw
