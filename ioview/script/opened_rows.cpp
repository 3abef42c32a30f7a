#include "ioview/script/opened_rows.h"

namespace ioview {

namespace {

using platform::HTREEITEM;
using platform::SECTreeCtrl;

// The row behind this one among those of the first two levels.
HTREEITEM RowBehind(const SECTreeCtrl& grid, HTREEITEM item) {
  if (grid.GetItemDepth(item) == 0 && grid.IsExpanded(item)) return grid.GetChildItem(item);
  const HTREEITEM sibling = grid.GetNextSiblingItem(item);
  const HTREEITEM parent = grid.GetParentItem(item);
  return sibling != 0 || parent == 0 ? sibling : grid.GetNextSiblingItem(parent);
}

}  // namespace

std::size_t OpenedRows::Count(const SECTreeCtrl& grid) {
  if (!began_) next_ = grid.GetRootItem();
  began_ = true;
  while (next_ != 0) {
    const bool open = grid.IsExpanded(next_);
    if (!open && grid.ItemHasChildren(next_)) break;
    if (open) ++count_;
    next_ = RowBehind(grid, next_);
  }
  return count_;
}

}  // namespace ioview
