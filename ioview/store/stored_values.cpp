#include "ioview/store/stored_values.h"

#include <functional>
#include <utility>

namespace ioview {

namespace {

std::uint32_t HashOf(std::u16string_view key) {
  return static_cast<std::uint32_t>(std::hash<std::u16string_view>()(key));
}

}  // namespace

std::size_t SessionValues::Session::PlaceOf(std::u16string_view key) const {
  if (next < entries.size() && entries[next].key == key) return next++;
  const std::uint32_t place =
      index.Find(HashOf(key), [&](std::uint32_t candidate) { return entries[candidate].key == key; });
  const std::size_t at = place != KeyIndex::kNone ? place : entries.size();
  next = at + 1;
  return at;
}

void SessionValues::Session::Append(std::u16string_view key, std::u16string_view value) {
  std::pmr::polymorphic_allocator<char16_t> memory(key_memory.get());
  char16_t* const text = memory.allocate(key.size());
  key.copy(text, key.size());
  const std::u16string_view stored(text, key.size());
  index.Add(HashOf(stored), static_cast<std::uint32_t>(entries.size()));
  entries.push_back({stored, std::u16string(value)});
}

void SessionValues::Set(const Names& names, std::u16string_view key, std::u16string_view value) {
  const auto [place, is_new] = places_.try_emplace(names, sessions_.size());
  if (is_new) sessions_.emplace_back(names, Session());
  Session& session = sessions_[place->second].second;
  const std::size_t at = session.PlaceOf(key);
  if (at == session.entries.size()) {
    session.Append(key, value);
  } else {
    std::u16string& stored = session.entries[at].value;
    if (stored == value) return;
    stored = value;
  }
  ++changes_;
}

const std::u16string* SessionValues::Find(const Names& names, std::u16string_view key) const {
  const auto place = places_.find(names);
  if (place == places_.end()) return nullptr;
  const Session& session = sessions_[place->second].second;
  const std::size_t at = session.PlaceOf(key);
  return at < session.entries.size() ? &session.entries[at].value : nullptr;
}

const std::deque<SessionValues::Entry>& SessionValues::Entries(const Names& names) const {
  static const std::deque<Entry> kNone;
  const auto place = places_.find(names);
  return place != places_.end() ? sessions_[place->second].second.entries : kNone;
}

std::vector<SessionValues::Names> SessionValues::AllNames() const {
  std::vector<Names> all;
  for (const auto& [names, session] : sessions_) all.push_back(names);
  return all;
}

void UserSettings::Set(std::u16string_view section, std::u16string_view key, Value value) {
  const auto [place, is_new] =
      places_.try_emplace({std::u16string(section), std::u16string(key)}, entries_.size());
  if (is_new) {
    entries_.push_back({place->first.first, place->first.second, std::move(value)});
  } else {
    Value& stored = entries_[place->second].value;
    if (stored == value) return;
    stored = std::move(value);
  }
  ++changes_;
}

const UserSettings::Value* UserSettings::Find(std::u16string_view section, std::u16string_view key) const {
  const auto place = places_.find({std::u16string(section), std::u16string(key)});
  return place != places_.end() ? &entries_[place->second].value : nullptr;
}

}  // namespace ioview
