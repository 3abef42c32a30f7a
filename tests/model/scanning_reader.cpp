#include "tests/model/scanning_reader.h"

#include <algorithm>

#include "platform/base/text.h"

namespace pvw::test {

std::vector<ProfileLine> ScanForEntries(std::string_view text, std::string_view section) {
  std::vector<ProfileLine> entries;
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  bool inside = false;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const ProfileLine line = ParseProfileLine(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.kind == ProfileLine::Kind::kSection && inside) break;
    if (line.kind == ProfileLine::Kind::kSection) inside = platform::EqualNoCase(line.name, section);
    if (line.kind == ProfileLine::Kind::kEntry && inside) entries.push_back(line);
  }
  return entries;
}

std::string_view ScanForValue(std::string_view text, std::string_view section, std::string_view key) {
  for (const ProfileLine& entry : ScanForEntries(text, section)) {
    if (platform::EqualNoCase(entry.name, key)) return entry.value;
  }
  return {};
}

}  // namespace pvw::test
