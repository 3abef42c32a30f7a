#include "platform/gui/tree_layout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/base/text.h"

namespace platform::tree_layout {

namespace {

constexpr int kBox = 9;
constexpr int kCheck = 13;
constexpr int kCheckRoom = kCheck + 4;
constexpr int kPlainHalf = 8;
// A row's parts stand this far to the right at most, so that no depth overflows a coordinate.
constexpr std::int64_t kFarthest = 1 << 28;

// The first position from `at` on that has a dot.
int ToDot(int at, int origin) {
  return at + ((at - origin) & 1);
}

// Where the lines of a level run.
std::int64_t LevelX(const RowShape& shape, std::int64_t level) {
  const int half = shape.image.cx > 0 ? shape.image.cx / 2 : kPlainHalf;
  return shape.cell.left + shape.indent * level + half;
}

RECT Centred(int left, SIZE size, const RECT& cell) {
  const int top = cell.top + (cell.Height() - size.cy) / 2;
  return {left, top, left + size.cx, top + size.cy};
}

}  // namespace

std::string ShownText(std::string_view text) {
  constexpr std::size_t kMostCharacters = 259;
  constexpr std::size_t kTab = 8;
  text = text.substr(0, text.find_first_of("\r\n"));
  std::string shown;
  std::size_t at = 0;
  for (std::size_t count = 0; at < text.size() && count < kMostCharacters; ++count) {
    const std::size_t bytes = CharBytes(text, at);
    if (text[at] == '\t') {
      shown.append(kTab - ColumnCount(shown) % kTab, ' ');
    } else {
      shown += text.substr(at, bytes);
    }
    at += bytes;
  }
  return shown;
}

RowParts PartsOf(const RowShape& shape, POINT origin) {
  RowParts parts;
  const std::int64_t level = std::int64_t{shape.depth} + (shape.leads ? 1 : 0);
  parts.first = shape.cell.left + static_cast<int>(std::min(shape.indent * level, kFarthest));
  int left = parts.first;
  if (shape.has_check) {
    parts.check = Centred(left, {kCheck, kCheck}, shape.cell);
    left += kCheckRoom;
  }
  if (shape.image.cx > 0) {
    parts.image = Centred(left, shape.image, shape.cell);
    left = parts.image.right;
  }
  const int text_end = left + kTextGap + std::max(shape.text_width, 0) + kTextGap;
  int right = text_end;
  if (shape.text_width < 0) {
    right = shape.cell.right;
  } else if (!shape.one_column) {
    right = std::min(text_end, shape.cell.right - 2);
  }
  parts.label = {left, shape.cell.top, right, shape.cell.bottom};

  const RECT& middle = parts.image.IsEmpty() ? parts.label : parts.image;
  const int x = static_cast<int>(std::min(LevelX(shape, shape.depth), kFarthest));
  parts.node = {ToDot(x, origin.x), ToDot(middle.top + middle.Height() / 2, origin.y)};
  parts.button = {parts.node.x - kBox / 2, parts.node.y - kBox / 2, parts.node.x + kBox / 2 + 1,
                  parts.node.y + kBox / 2 + 1};
  return parts;
}

std::vector<Dotted> LinesOf(const RowShape& shape, const RowParts& parts, const RowLines& lines, POINT origin,
                            const RECT& view, const std::function<bool(int)>& has_next) {
  std::vector<Dotted> drawn;
  const RECT& cell = shape.cell;
  const int left = std::max(view.left, cell.left);
  const int right = std::min(view.right, cell.right);
  const int top = ToDot(cell.top, origin.y);
  const auto vertical = [&](std::int64_t x, int from, int to) {
    if (x >= left && x < right && from < to) {
      drawn.push_back({{static_cast<int>(x), from}, {static_cast<int>(x), to}});
    }
  };
  const int depth = shape.depth;
  const POINT node = parts.node;

  const int from = node.x < left ? ToDot(left, origin.x) : node.x;
  const int to = std::min(parts.first - 1, right);
  if (from < to) drawn.push_back({{from, node.y}, {to, node.y}});
  if (!lines.first && (depth > 0 || lines.at_root)) vertical(node.x, top, node.y);
  if (lines.open) {
    const RECT& middle = !parts.image.IsEmpty()   ? parts.image
                         : !parts.check.IsEmpty() ? parts.check
                                                  : parts.label;
    vertical(std::int64_t{node.x} + shape.indent, ToDot(node.y + middle.Height() / 2, origin.y), cell.bottom);
  }

  // Only levels that show are walked, however deep the row is.
  const std::int64_t top_level = lines.at_root ? 0 : 1;
  const std::int64_t shown_from = (left - LevelX(shape, 0)) / shape.indent - 1;
  const std::int64_t shown_to = (right - LevelX(shape, 0)) / shape.indent + 1;
  for (std::int64_t level = std::min<std::int64_t>(depth, shown_to); level >= std::max(top_level, shown_from);
       --level) {
    const std::int64_t x = LevelX(shape, level);
    const int shift = static_cast<int>((x - origin.x) & 1);
    if (x + shift < left || x + shift >= right || !has_next(static_cast<int>(level))) continue;
    vertical(x + shift, level == depth ? node.y : top, cell.bottom);
  }
  return drawn;
}

}  // namespace platform::tree_layout
