#include "model/name_compare.h"

#include "model/name_hash.h"

namespace pvw {
namespace {

constexpr char kBlank = ' ';
constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// The name itself when it holds no blank, else its copy in `storage` without them. No code page has a longer
// character with this byte in it.
std::string_view WithoutBlanks(std::string_view name, std::string& storage) {
  if (name.find(kBlank) == std::string_view::npos) return name;
  storage = name;
  std::erase(storage, kBlank);
  return storage;
}

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
  std::string storageA;
  std::string storageB;
  return NamesEqual(WithoutBlanks(a, storageA), WithoutBlanks(b, storageB));
}

std::size_t NameIndex::Hash::operator()(std::string_view name) const {
  return NameHash(name);
}

bool NameIndex::Equal::operator()(std::string_view a, std::string_view b) const {
  return NamesEqual(a, b);
}

void NameIndex::Add(std::string_view name, std::size_t place) {
  const std::size_t entry = m_entries.size();
  m_entries.push_back({place, kNone});
  std::string storage;
  const auto [chain, added] =
      m_chains.try_emplace(std::string(WithoutBlanks(name, storage)), Chain{entry, entry});
  if (added) return;
  m_entries[chain->second.tail].next = entry;
  chain->second.tail = entry;
}

std::optional<std::size_t> NameIndex::First(std::string_view name) const {
  std::string storage;
  const auto chain = m_chains.find(WithoutBlanks(name, storage));
  if (chain == m_chains.end()) return std::nullopt;
  return m_entries[chain->second.head].place;
}

std::optional<std::size_t> NameIndex::TakeFirst(std::string_view name) {
  std::string storage;
  const auto chain = m_chains.find(WithoutBlanks(name, storage));
  if (chain == m_chains.end()) return std::nullopt;
  const Entry taken = m_entries[chain->second.head];
  if (taken.next == kNone) {
    m_chains.erase(chain);
  } else {
    chain->second.head = taken.next;
  }
  return taken.place;
}

}  // namespace pvw
