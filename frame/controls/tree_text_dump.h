// The layout of the text dump: how titles and rows become lines of columns.
//
// Texts are in the ANSI code page. Widths of a line count columns as platform::CharColumns does; no cut
// splits a character.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pvw {

struct DumpColumn {
  std::string title;
  int pixels = 0;  // 0: hidden
};

struct DumpHeader {
  std::vector<std::size_t> widths;  // one for each column, about 85 together; all 0 when all are hidden
  std::string titles;               // a title that doesn't fit is left out, its blanks too
  std::string rule;                 // one dash a pixel
};

DumpHeader LayOutHeader(std::span<const DumpColumn> columns);

struct DumpRow {
  std::size_t level = 0;  // 0 at the top
  bool has_children = false;
  bool open = false;
  std::vector<std::string_view> cells;
};

// The line of a row with its line feed; nothing when no cell leaves a character. `widths` has one for each
// cell. Top-level rows aren't cut and push the columns behind them to the right; below, a text that is too
// long keeps its start and its last character, and one in a hidden column goes. Costs the length of the
// cells, whatever the level.
void AppendRow(std::string& out, const DumpRow& row, std::span<const std::size_t> widths);

}  // namespace pvw
