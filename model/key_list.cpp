#include "model/key_list.h"

#include <algorithm>

namespace pvw {

KeyList KeyList::UpTo(CIODataFile& file, std::string_view section, std::size_t size) {
  KeyList list;
  // Not cleared: most lists use a fraction of their buffer.
  list.m_buffer = std::make_unique_for_overwrite<char[]>(size);
  list.m_used = file.GetKeys(section, {list.m_buffer.get(), size});
  return list;
}

KeyList KeyList::All(CIODataFile& file, std::string_view section) {
  constexpr std::size_t kFirstSize = 1024;
  for (std::size_t size = kFirstSize;; size *= 2) {
    KeyList list = UpTo(file, section, size);
    if (list.m_used != size - 2) return list;
  }
}

std::string_view KeyList::Next(std::string_view& rest) {
  const std::size_t end = std::min(rest.find('\0'), rest.size());
  const std::string_view key = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return key;
}

}  // namespace pvw
