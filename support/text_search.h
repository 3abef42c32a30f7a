// Texts within texts, by whole characters of the ANSI code page.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/base/text.h"

namespace pvw {

// Whether `part`, which begins with a whole character, occurs in `text`. A trail byte that looks like its
// first never counts. An empty part occurs everywhere.
inline bool ContainsText(std::string_view text, std::string_view part) {
  std::size_t start = 0;  // of a character, at or before the place found
  for (std::size_t found = text.find(part); found != std::string_view::npos;
       found = text.find(part, found + 1)) {
    while (start < found) start += platform::CharBytes(text, start);
    if (start == found) return true;
  }
  return false;
}

}  // namespace pvw
