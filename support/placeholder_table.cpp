#include "support/placeholder_table.h"

#include <algorithm>
#include <array>

#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "resources/ids.h"

namespace pvw {

namespace {

constexpr std::string_view kErrorText = "ERROR";

struct Row {
  std::string_view long_name;
  std::string_view short_name;
};

// An ending of *** makes a name a pattern.
constexpr std::array<Row, kPlaceholderCount> kRows{{
    {"ERROR", "ERROR"},   {"FULLFILE", "FF"},   {"FILENAME", "FN"},        {"FILELEAF", "FL"},
    {"FILEDIR", "FD"},    {"EXTENSION", "EX"},  {"QBNDIR", "QD"},          {"TEMPDIR", "TD"},
    {"WORKSPDIR", "WD"},  {"WORKSPNAME", "WN"}, {"PROJDIR", "PD"},         {"PROJECTNAME", "PN"},
    {"CONFIGNAME", "CN"}, {"CONFIGDIR", "CD"},  {"TCINSTALL", "TI"},       {"EXEDIR", "ED"},
    {"EXENAME", "EN"},    {"WINDIR", "WR"},     {"WINSYSDIR", "WS"},       {"LINE", "LN"},
    {"TOOLDIR", "TD"},    {"QBN_HWND", "QH"},   {"QBN_ID", "QI"},          {"TIME", "TM"},
    {"DATE_TEXT", "DT"},  {"DATE_DMY", "DD"},   {"DATE_MDY", "DM"},        {"DATE_YMD", "DY"},
    {"USER", "UR"},       {"CURSOR", "CU"},     {"PAGENO", "PN"},          {"LEFT", "LT"},
    {"CENTRE", "CR"},     {"RIGHT", "RT"},      {"USERINPUT***", "UI***"}, {"DEVICEDETAILS", "DE"},
}};

constexpr std::string_view kPatternEnding = "***";

bool Matches(std::string_view name, std::string_view entry) {
  if (name == entry) return true;
  if (entry.size() <= kPatternEnding.size() || !entry.ends_with(kPatternEnding)) return false;
  return platform::StartsWithNoCase(name, entry.substr(0, entry.size() - kPatternEnding.size()));
}

PlaceholderIndex FindIn(std::string_view Row::*names, std::string_view name) {
  const auto row =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return Matches(name, r.*names); });
  return row == kRows.end() ? kPlaceholderUnknown : static_cast<PlaceholderIndex>(row - kRows.begin());
}

const Row* RowOf(std::int32_t index) {
  if (index <= kPlaceholderError || index >= kPlaceholderCount) return nullptr;
  return &kRows[static_cast<std::size_t>(index)];
}

}  // namespace

PlaceholderIndex FindPlaceholderIndex(std::string_view name) {
  const PlaceholderIndex index = FindIn(&Row::long_name, name);
  return index != kPlaceholderUnknown ? index : FindIn(&Row::short_name, name);
}

std::string GetPlaceholderLabel(std::int32_t index) {
  if (RowOf(index) == nullptr) return std::string(kErrorText);
  // The last two have no label of their own.
  const std::int32_t labelled = index <= kPlaceholderRight ? index : kPlaceholderError;
  return platform::LoadString(IDS_PLACEHOLDER_FIRST + static_cast<std::uint32_t>(labelled));
}

std::string GetPlaceholderText(std::int32_t index, bool bracketed) {
  const Row* row = RowOf(index);
  if (row == nullptr) return std::string(kErrorText);
  const std::string name(row->long_name);
  return bracketed ? "$(" + name + ")" : name;
}

}  // namespace pvw
