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
  // Values that know how to be fetched from memory ahead of their turn are.
  // A call that gives false is the last, and the table may be gone behind it.
  template <typename Visit>
  void ForEach(Visit visit) const {
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
      if constexpr (requires(Value value) { value->Prefetch(); }) {
        constexpr std::size_t kSteps = std::remove_pointer_t<Value>::kPrefetchSteps;
        const Value ahead = i + kSteps < m_entries.size() ? m_entries[i + kSteps].second : nullptr;
        if (ahead != nullptr) ahead->Prefetch();
      }
      if (m_entries[i].first == 0) continue;
      const Entry entry = m_entries[i];
      if constexpr (std::is_void_v<decltype(visit(entry.first, entry.second))>) {
        visit(entry.first, entry.second);
      } else if (!visit(entry.first, entry.second)) {
        return;
      }
    }
  }

 private:
  std::vector<Entry> m_entries;  // by row number; a handle of 0 for none
};

}  // namespace pvw
