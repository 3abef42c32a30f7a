// Display names as the selection compares them: without blanks, without regard to case. "P DATA" and "pdata"
// are one name. A blank is the character 0x20 alone.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pvw {

bool SameName(std::string_view a, std::string_view b);

// Finds the places of names in a list. Of names that are the same the first one added counts, until it is
// taken.
class NameIndex {
 public:
  void Add(std::string_view name, std::size_t place);
  std::optional<std::size_t> First(std::string_view name) const;
  // The same, and the place counts no more.
  std::optional<std::size_t> TakeFirst(std::string_view name);

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const;
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
  };
  // Entries of one name hang together in the order in which they were added.
  struct Chain {
    std::size_t head;
    std::size_t tail;
  };
  struct Entry {
    std::size_t place;
    std::size_t next;
  };

  std::unordered_map<std::string, Chain, Hash, Equal> m_chains;  // by the name without its blanks
  std::vector<Entry> m_entries;
};

}  // namespace pvw
