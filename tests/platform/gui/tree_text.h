// A tree grid as text: the rows that it is given, those that show, and what is drawn.
#pragma once

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "platform/gui/tree_ctrl.h"
#include "platform/headless/recording_dc.h"

namespace platform {

using ItemsByName = std::map<std::string, HTREEITEM>;

// Appends a row for each line of the text: two blanks a level, the name and behind bars further cells; "-"
// before the name opens the row. One with children has image 0, others have image 2.
inline void FillTree(SECTreeCtrl& tree, const std::string& text, ItemsByName& items) {
  std::istringstream lines(text);
  std::vector<HTREEITEM> above = {kTreeRoot};
  std::vector<HTREEITEM> open;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t level = line.find_first_not_of(' ') / 2;
    std::istringstream cells(line.substr(2 * level));
    std::string cell;
    std::getline(cells, cell, '|');
    const bool opens = cell.starts_with('-');
    if (opens) cell.erase(0, 1);
    above.resize(level + 1);
    tree.SetItemImage(above.back(), 0);
    const HTREEITEM item = tree.InsertItem(cell, 2, above.back());
    if (opens) open.push_back(item);
    items[cell] = item;
    above.push_back(item);
    for (int column = 1; std::getline(cells, cell, '|'); ++column) tree.SetItemText(item, column, cell);
  }
  for (const HTREEITEM item : open) tree.Expand(item, TVE_EXPAND);
}

// The rows that aren't under a closed one: two blanks a level, "-", "+" or ".", the name, and "<" when
// selected.
inline std::string ShownRows(const SECTreeCtrl& tree) {
  std::string text;
  for (std::size_t row = 0; row < tree.GetRowCount(); ++row) {
    const HTREEITEM item = tree.GetItemAtRow(row);
    text.append(static_cast<std::size_t>(tree.GetItemDepth(item)) * 2, ' ');
    text += !tree.ItemHasChildren(item) ? '.' : tree.IsExpanded(item) ? '-' : '+';
    text += tree.GetItemText(item, 0);
    text += item == tree.GetSelectedItem() ? "<\n" : "\n";
  }
  return text;
}

// What is drawn between the two rows of pixels, a line each operation.
inline std::string PaintedText(SECTreeCtrl& tree, int top, int bottom) {
  const RECT clip{0, top, tree.GetClientRect().right, bottom};
  RecordingDC dc(clip);
  tree.Paint(dc, clip);
  std::string text;
  for (const std::string& line : dc.GetLines()) text += line + '\n';
  return text;
}

inline POINT MiddleOf(const RECT& rect) {
  return {rect.left + rect.Width() / 2, rect.top + rect.Height() / 2};
}

}  // namespace platform
