// The rows of a tree: links, texts, picture and marks of each, and the order in which they show. Texts lie
// column by column, so that a walk over one column's touches nothing else; a column costs 32 bytes a row from
// the first text in it on.
//
// Inside, a row is the number that RowSequence gives it, which is used again; to the outside it is a handle,
// which isn't: it counts up in its upper 36 bits and names the row's number in its lower 28.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/row_sequence.h"
#include "platform/gui/tree_types.h"

namespace platform {

struct TreeRow {
  // RowSequence::kRoot for none.
  RowSequence::Row parent = RowSequence::kRoot;
  RowSequence::Row first_child = RowSequence::kRoot;
  RowSequence::Row last_child = RowSequence::kRoot;
  RowSequence::Row next = RowSequence::kRoot;
  RowSequence::Row previous = RowSequence::kRoot;
  int image = -1;
  bool flag = false;
  bool has_check = false;
  bool checked = false;
};

class TreeRows {
 public:
  using Row = RowSequence::Row;
  static constexpr Row kRoot = RowSequence::kRoot;
  static constexpr Row kNone = ~Row{0};

  TreeRows() { Clear(); }

  // Behind the parent's last child. kNone when there is no number left.
  Row Append(Row parent);
  // With all below it. A row that has lost its last child is closed.
  void Erase(Row row);
  void Clear();

  // kRoot for kTreeRoot, kNone for a handle whose row is gone.
  Row Find(HTREEITEM handle) const {
    if (handle == kTreeRoot) return kRoot;
    const Row row = RowNumber(handle);
    return handle != 0 && row < m_handles.size() && m_handles[row] == handle ? row : kNone;
  }
  HTREEITEM HandleOf(Row row) const { return m_handles[row]; }
  const TreeRow& operator[](Row row) const { return m_rows[row]; }
  TreeRow& operator[](Row row) { return m_rows[row]; }
  bool HasChildren(Row row) const { return m_rows[row].first_child != kRoot; }
  const std::string& Text(Row row, int column) const;
  void SetText(Row row, int column, std::string_view text);

  RowSequence& Order() { return m_order; }
  const RowSequence& Order() const { return m_order; }

 private:
  RowSequence m_order;
  std::vector<TreeRow> m_rows;                    // the root's first
  std::vector<HTREEITEM> m_handles;               // of the same; apart, for walks that look at nothing else
  std::vector<std::vector<std::string>> m_texts;  // by column and row, each as far as it has texts
  std::uint64_t m_count = 0;                      // of rows made so far
};

}  // namespace platform
