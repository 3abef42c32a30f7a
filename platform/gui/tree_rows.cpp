#include "platform/gui/tree_rows.h"

#include <utility>

namespace platform {

void TreeRows::Clear() {
  m_order.Clear();
  m_rows.assign(1, {});
  m_handles.assign(1, kTreeRoot);
  m_texts.clear();
}

TreeRows::Row TreeRows::Append(Row parent) {
  constexpr std::uint64_t kMostRows = std::uint64_t{1} << kRowNumberBits;
  constexpr std::uint64_t kLastHandle = kTreeRoot >> kRowNumberBits;
  if (m_rows.size() >= kMostRows || m_count + 1 >= kLastHandle) return kNone;
  const Row row = m_order.Append(parent);
  if (row >= m_rows.size()) {
    m_rows.resize(row + 1);
    m_handles.resize(row + 1);
  }
  m_handles[row] = ++m_count << kRowNumberBits | row;
  TreeRow& added = m_rows[row];
  added.parent = parent;
  added.previous = m_rows[parent].last_child;
  (added.previous != kRoot ? m_rows[added.previous].next : m_rows[parent].first_child) = row;
  m_rows[parent].last_child = row;
  return row;
}

void TreeRows::Erase(Row row) {
  const TreeRow& gone = m_rows[row];
  TreeRow& parent = m_rows[gone.parent];
  (gone.previous != kRoot ? m_rows[gone.previous].next : parent.first_child) = gone.next;
  (gone.next != kRoot ? m_rows[gone.next].previous : parent.last_child) = gone.previous;
  if (parent.first_child == kRoot && gone.parent != kRoot) m_order.Close(gone.parent);
  std::vector<Row> erased;
  m_order.Erase(row, erased);
  for (const Row each : erased) {
    m_rows[each] = TreeRow();
    m_handles[each] = 0;
    for (std::vector<std::string>& column : m_texts) {
      if (each < column.size()) column[each] = std::string();
    }
  }
}

const std::string& TreeRows::Text(Row row, int column) const {
  static const std::string empty;
  const auto index = static_cast<std::size_t>(column);
  return column >= 0 && index < m_texts.size() && row < m_texts[index].size() ? m_texts[index][row] : empty;
}

void TreeRows::SetText(Row row, int column, std::string_view text) {
  const auto index = static_cast<std::size_t>(column);
  std::string copy(text);  // it may be another of these texts
  if (index >= m_texts.size() || row >= m_texts[index].size()) {
    if (text.empty()) return;
    if (index >= m_texts.size()) m_texts.resize(index + 1);
    m_texts[index].resize(row + 1);
  }
  m_texts[index][row] = std::move(copy);
}

}  // namespace platform
