// Registrations by the owner that they stand under, to be undone together.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace pvw {

template <typename Record>
class COwnerTable {
 public:
  // Kept behind what the owner has already, also when it equals that.
  void Add(std::uint64_t owner, Record record) { m_records[owner].push_back(std::move(record)); }
  // The owner's records in the order in which they came; the table has none of it any more.
  std::vector<Record> Take(std::uint64_t owner) {
    const auto found = m_records.find(owner);
    if (found == m_records.end()) return {};
    std::vector<Record> records = std::move(found->second);
    m_records.erase(found);
    return records;
  }

 private:
  std::unordered_map<std::uint64_t, std::vector<Record>> m_records;
};

}  // namespace pvw
