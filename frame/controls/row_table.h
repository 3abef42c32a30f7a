// What an owner keeps for rows of a tree: a value a row, found by handle and walked in the order in which the
// rows lie in memory, which is mostly the order in which they were made.
//
// Costs a place for each row number that the tree has used.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/gui/tree_types.h"

namespace pvw {

template <typename Value>
class CRowTable {
 public:
  using Entry = std::pair<platform::HTREEITEM, Value>;

  // Null for a row that has none. Good until the next Set.
  const Value* Find(platform::HTREEITEM item) const {
    const std::size_t number = platform::RowNumber(item);
    return item != 0 && number < m_entries.size() && m_entries[number].first == item
               ? &m_entries[number].second
               : nullptr;
  }
  // A row that had the same number before has none any more.
  void Set(platform::HTREEITEM item, Value value) {
    const std::size_t number = platform::RowNumber(item);
    if (number >= m_entries.size()) m_entries.resize(number + 1);
    m_entries[number] = {item, std::move(value)};
  }
  void Erase(platform::HTREEITEM item) {
    if (Find(item) != nullptr) m_entries[platform::RowNumber(item)] = {};
  }
  void Clear() { m_entries.clear(); }

  // Calls `visit` with the handle and the value of each row that has one. By index: a call may set or clear.
  template <typename Visit>
  void ForEach(Visit visit) const {
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
      // What the values point at lies anywhere: it is on its way from memory while those before it are
      // visited.
      if constexpr (std::is_pointer_v<Value>) {
        if (i + kAhead < m_entries.size()) __builtin_prefetch(m_entries[i + kAhead].second);
      }
      if (m_entries[i].first == 0) continue;
      const Entry entry = m_entries[i];
      visit(entry.first, entry.second);
    }
  }

 private:
  static constexpr std::size_t kAhead = 6;

  std::vector<Entry> m_entries;  // by row number; a handle of 0 for none
};

}  // namespace pvw
