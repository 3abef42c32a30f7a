#include "platform/headless/text_metrics.h"

#include <algorithm>
#include <cstdlib>

#include "platform/base/text.h"

namespace platform {

namespace {

constexpr int kLargest = 10000;  // pixels; a font of a settings file can ask for any size

SIZE CellOf(const LOGFONT& font) {
  if (font.height == 0 && font.point_tenths <= 0) return {6, 13};
  if (font.height > 0) {
    const int height = std::min(font.height, kLargest);
    return {font.width > 0 ? std::min(font.width, kLargest) : (height + 1) / 2, height};
  }
  const int em = font.height < 0 ? std::min(-std::max(font.height, -kLargest), kLargest)
                                 : (std::min(font.point_tenths, kLargest) * 96 + 360) / 720;
  return {font.width > 0 ? std::min(font.width, kLargest) : (em * 3 + 2) / 5, em + (em + 4) / 8};
}

}  // namespace

SIZE MeasureText(const LOGFONT& font, std::string_view text) {
  const SIZE cell = CellOf(font);
  return {static_cast<int>(std::min<std::size_t>(ColumnCount(text), kLargest)) * cell.cx, cell.cy};
}

}  // namespace platform
