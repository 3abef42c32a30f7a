#include "ioview/script/row_text.h"

namespace ioview {

namespace {

using platform::HTREEITEM;
using platform::SECTreeCtrl;

constexpr platform::COLORREF kRed = 0x0000FF;
constexpr platform::COLORREF kOther = 0x000000;

const char* ExpandBox(const SECTreeCtrl& grid, HTREEITEM item) {
  if (!grid.ItemHasChildren(item)) return "[ ] ";
  return grid.IsExpanded(item) ? "[-] " : "[+] ";
}

std::string Cells(const SECTreeCtrl& grid, HTREEITEM item) {
  int last = grid.GetColumnCount() - 1;
  while (last > 0 && grid.GetItemText(item, last).empty()) --last;
  std::string text = grid.GetItemText(item, 0);
  for (int column = 1; column <= last; ++column) text += " | " + grid.GetItemText(item, column);
  return text;
}

}  // namespace

void ForEachRowText(const SECTreeCtrl& grid, const std::function<void(const std::string&)>& line) {
  for (std::size_t row = 0; row < grid.GetRowCount(); ++row) {
    const HTREEITEM item = grid.GetItemAtRow(row);
    std::string text(2 * static_cast<std::size_t>(grid.GetItemDepth(item)), ' ');
    text += ExpandBox(grid, item);
    if (grid.GetItemHasCheck(item)) text += grid.GetItemCheck(item) ? "[x] " : "[o] ";
    text += std::to_string(grid.GetItemImage(item)) + ' ' + Cells(grid, item);
    if (grid.GetRowTextColour(item, kOther) == kRed) text += " *";
    line(text);
  }
}

}  // namespace ioview
