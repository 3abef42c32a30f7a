#include "testclient/comparison.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "support/list_text.h"
#include "testclient/list_form.h"
#include "testclient/result_text.h"

namespace pvw {

namespace {

constexpr std::uint32_t kDifferent = 1;
constexpr std::uint32_t kMissing = 2;

// Collects the differences.
struct Report {
  std::string names;
  StringList lines;
  std::uint32_t status = 0;

  void Add(const std::string& name, std::string line, std::uint32_t becomes) {
    if (!lines.empty()) names += ", ";
    names += name;
    lines.push_back(std::move(line));
    status = becomes;
  }
};

void ComparePair(const CompareEntry& a, const CompareEntry& b, bool ignoreAddress, Report& report) {
  if (!ignoreAddress && a.address != b.address) {
    report.Add(a.name, AddressLine(a, b), kDifferent);
  } else if (a.size != b.size) {
    report.Add(a.name, SizeLine(a, b), kDifferent);
  } else if (a.value != b.value) {
    report.Add(a.name, ValueLine(a, b), kDifferent);
  }
}

}  // namespace

Comparison CompareRegisters(std::span<const CompareEntry> first, std::span<const CompareEntry> second,
                            bool ignoreAddress) {
  std::unordered_map<std::string_view, std::size_t, ExactName> index;
  for (std::size_t i = 0; i < second.size(); ++i) index[second[i].name] = i;

  Report report;
  for (const CompareEntry& a : first) {
    const auto found = index.find(a.name);
    if (found == index.end()) {
      report.Add(a.name, NotFoundLine(a.name, Side::kDestination), kMissing);
      continue;
    }
    ComparePair(a, second[found->second], ignoreAddress, report);
    index.erase(found);
  }
  for (std::size_t i = 0; i < second.size() && !index.empty(); ++i) {
    const auto left = index.find(second[i].name);
    if (left == index.end() || left->second != i) continue;
    report.Add(second[i].name, NotFoundLine(second[i].name, Side::kSource), kMissing);
    index.erase(left);
  }
  if (report.status == 0) return {};
  return {report.status, SummaryLine(report.names),
          JoinEscapedList(report.lines, kListSeparator, kListEscape)};
}

}  // namespace pvw
