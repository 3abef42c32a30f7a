// The layout of the text dump: how titles and rows become lines of columns.
//
// Widths count columns as platform::CharColumns does. The pixel widths 200, 100, 100 and 100 share a line
// of 85.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace ioview::interim {

inline constexpr std::size_t kColumns = 4;
inline constexpr std::array<std::size_t, kColumns> kColumnWidths = {34, 17, 17, 17};
inline constexpr std::size_t kRuleWidth = 500;  // one dash a pixel

struct RowText {
  std::size_t level = 0;  // 0 at the top
  bool has_children = false;
  bool open = false;
  std::array<std::string, kColumns> cells;
};

// `text` filled up with blanks to `width` columns, at least 2. A longer one is cut, if it may be, to that
// width: its last character is kept, and in front of it as many whole characters of the start as there is
// room for, filled up with a blank where only half a character fits.
std::string FitColumn(std::string_view text, std::size_t width, bool may_cut);

// Both lines above the rows.
void AppendHeader(std::string& out, const std::array<std::string, kColumns>& titles);
// The line of a row. Top-level rows aren't cut and push the columns behind them to the right.
void AppendRow(std::string& out, const RowText& row);

}  // namespace ioview::interim
