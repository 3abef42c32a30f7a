#include "support/placeholder_scan.h"

#include "platform/base/text.h"
#include "support/list_text.h"

namespace pvw {

namespace {

constexpr std::size_t npos = std::string_view::npos;

// The shortest placeholder has four characters, counted to the end of the text.
bool HasFourCharacters(std::string_view text, std::size_t dollar) {
  const std::size_t third = dollar + 2;
  const std::size_t fourth = third + platform::CharBytes(text, third);
  return fourth < text.size();
}

}  // namespace

bool CPlaceholderScan::Next() {
  const std::size_t start = end_;
  std::size_t last_dollar = npos;
  for (std::size_t i = start; (i = platform::FindChar(text_, '$', i)) != npos; ++i) {
    const bool doubled = i == start ? dollar_before_ : last_dollar + 1 == i;
    last_dollar = i;
    if (doubled || !text_.substr(i + 1).starts_with('(')) continue;
    if (!HasFourCharacters(text_, i)) return false;
    const std::size_t close = platform::FindChar(text_, ')', i + 2);
    if (close == npos) return false;
    plain_ = start;
    hit_ = i;
    end_ = close + 1;
    dollar_before_ = false;
    return true;
  }
  return false;
}

void CPlaceholderScan::Replace(std::string_view value) {
  dollar_before_ = value.substr(LastCharacterOf(value)) == "$";
}

}  // namespace pvw
