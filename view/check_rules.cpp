#include "view/check_rules.h"

#include "frame/controls/tree_grid_state.h"

namespace pvw {

using platform::HTREEITEM;
using platform::SECTreeCtrl;

namespace {

bool HasCheckedSibling(const SECTreeCtrl& tree, HTREEITEM row, HTREEITEM parent) {
  for (HTREEITEM other = tree.GetChildItem(parent); other != 0; other = tree.GetNextSiblingItem(other)) {
    if (other != row && tree.GetItemCheck(other)) return true;
  }
  return false;
}

}  // namespace

void ToggleCheckOf(SECTreeCtrl& tree, HTREEITEM row) {
  const bool on = !tree.GetItemCheck(row);
  const int depth = tree.GetItemDepth(row);
  for (HTREEITEM below = NextRow(tree, row, true); below != 0 && tree.GetItemDepth(below) > depth;
       below = NextRow(tree, below, true)) {
    if (tree.GetItemHasCheck(below)) tree.SetItemCheck(below, on);
  }
  HTREEITEM from = row;
  for (HTREEITEM parent = tree.GetParentItem(row); parent != 0; parent = tree.GetParentItem(parent)) {
    if (!on && HasCheckedSibling(tree, from, parent)) break;
    tree.SetItemCheck(parent, on);
    from = parent;
  }
  tree.SetItemCheck(row, on);
  tree.SelectItem(row);
}

void SetAllChecks(SECTreeCtrl& tree, bool on) {
  for (HTREEITEM row = tree.GetRootItem(); row != 0; row = NextRow(tree, row, true)) {
    if (tree.GetItemHasCheck(row)) tree.SetItemCheck(row, on);
  }
}

}  // namespace pvw
