#include "tests/model/scanning_reader.h"

#include <algorithm>

#include "model/profile_text.h"
#include "platform/base/text.h"

namespace pvw::test {
namespace {

// Calls `visit` with each entry of the first section of that name until it gives true.
template <typename Visit>
void ScanSection(std::string_view text, std::string_view section, const Visit& visit) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  bool inside = false;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const ProfileLine line = ParseProfileLine(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.kind == ProfileLine::Kind::kSection) {
      if (inside) return;
      inside = platform::EqualNoCase(line.name, section);
    } else if (line.kind == ProfileLine::Kind::kEntry && inside && visit(line)) {
      return;
    }
  }
}

}  // namespace

std::string ScanForValue(std::string_view text, std::string_view section, std::string_view key) {
  std::string value;
  ScanSection(text, section, [&](const ProfileLine& line) {
    if (!platform::EqualNoCase(line.name, key)) return false;
    value = line.value;
    return true;
  });
  return value;
}

std::vector<std::string> ScanForKeys(std::string_view text, std::string_view section) {
  std::vector<std::string> keys;
  ScanSection(text, section, [&](const ProfileLine& line) {
    keys.emplace_back(line.name);
    return false;
  });
  return keys;
}

}  // namespace pvw::test
