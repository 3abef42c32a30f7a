// Texts of messages with a place for a name in them.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace pvw {

// The text with its first "%1" or "%s" replaced by `insert`, which goes in as it stands: a percent sign in a
// name means nothing. A text without a place stays as it is.
inline std::string FormatMessageText(std::string text, std::string_view insert) {
  const std::size_t place = std::min(text.find("%1"), text.find("%s"));
  if (place != std::string::npos) text.replace(place, 2, insert);
  return text;
}

}  // namespace pvw
