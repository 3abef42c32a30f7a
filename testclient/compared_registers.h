// The registers under test: what a snapshot holds of each, and the list of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/name_hash.h"

namespace pvw {

struct CompareEntry {
  std::string name;         // as shown
  std::string address;      // as the host writes it
  std::uint32_t value = 0;  // the digits of the value's text, read as hexadecimal
  std::uint32_t size = 0;   // half the number of those digits

  friend bool operator==(const CompareEntry&, const CompareEntry&) = default;
};

using CompareEntries = std::vector<CompareEntry>;

struct ExactName {
  using is_transparent = void;
  std::size_t operator()(std::string_view name) const { return ExactNameHash(name); }
};

// By display name, with regard to case.
template <typename Value>
using ByName = std::unordered_map<std::string, Value, ExactName, std::equal_to<>>;

// Each name once, in the order in which the names came.
class ComparedRegisters {
 public:
  // One of the same name is replaced in its place.
  void Enter(CompareEntry entry);
  bool Contains(std::string_view name) const { return m_places.contains(name); }
  // Nothing for a name that isn't there.
  void SetValue(std::string_view name, std::uint32_t value);
  bool IsEmpty() const { return m_entries.empty(); }
  const CompareEntries& GetEntries() const { return m_entries; }

 private:
  CompareEntries m_entries;
  ByName<std::size_t> m_places;
};

}  // namespace pvw
