// The rows of a tree in the order of the screen, open or not. The walk counts the depth that it is at, so
// that the tree needn't be asked row by row.
#pragma once

#include "platform/gui/tree_ctrl.h"

namespace pvw {

class RowWalk {
 public:
  // All rows below `top`, down to `deepest`; with 0 those of the whole tree.
  RowWalk(const platform::SECTreeCtrl& tree, int deepest, platform::HTREEITEM top = 0)
      : m_tree(tree),
        m_top(top),
        m_deepest(deepest),
        m_row(top != 0 ? tree.GetChildItem(top) : tree.GetRootItem()) {}
  // Of a walk over the whole tree.
  void StartBehind(platform::HTREEITEM row) {
    m_row = row;
    m_depth = m_tree.GetItemDepth(row);
    Next();
  }

  platform::HTREEITEM Row() const { return m_row; }  // 0 at the end
  int Depth() const { return m_depth; }              // 0 right below the top
  void Next() {
    if (const platform::HTREEITEM child = m_depth < m_deepest ? m_tree.GetChildItem(m_row) : 0) {
      m_row = child;
      ++m_depth;
      return;
    }
    // A row that has gone meanwhile has no parent: the walk ends there.
    while (m_row != m_top && m_row != 0) {
      if (const platform::HTREEITEM sibling = m_tree.GetNextSiblingItem(m_row)) {
        m_row = sibling;
        return;
      }
      m_row = m_tree.GetParentItem(m_row);
      --m_depth;
    }
    m_row = 0;
  }

 private:
  const platform::SECTreeCtrl& m_tree;
  const platform::HTREEITEM m_top;
  const int m_deepest;
  platform::HTREEITEM m_row;
  int m_depth = 0;
};

}  // namespace pvw
