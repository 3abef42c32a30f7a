#include "testclient/compared_registers.h"

#include <utility>

namespace pvw {

void ComparedRegisters::Enter(CompareEntry entry) {
  const auto [place, added] = m_places.try_emplace(entry.name, m_entries.size());
  if (added) {
    m_entries.push_back(std::move(entry));
  } else {
    m_entries[place->second] = std::move(entry);
  }
}

void ComparedRegisters::SetValue(std::string_view name, std::uint32_t value) {
  const auto place = m_places.find(name);
  if (place != m_places.end()) m_entries[place->second].value = value;
}

}  // namespace pvw
