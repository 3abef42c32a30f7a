// What a host keeps for its components: the values of sessions and the settings of the user. Both keep the
// order in which keys were first stored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

#include "ioview/store/key_index.h"

namespace ioview {

// Values by workspace, project, configuration and key. All texts are as they came over the host's
// interfaces.
class SessionValues {
 public:
  struct Names {
    std::u16string workspace, project, configuration;
    // The check takes the comparison with 0 that is made here for a null pointer.
    auto operator<=>(const Names&) const = default;  // NOLINT(modernize-use-nullptr)
  };
  struct Entry {
    std::u16string_view key;  // good as long as these values or a copy of them
    std::u16string value;
  };

  void Set(const Names& names, std::u16string_view key, std::u16string_view value);
  // Null when the key is missing. Good until the next Set.
  const std::u16string* Find(const Names& names, std::u16string_view key) const;
  // Empty where nothing is stored.
  const std::deque<Entry>& Entries(const Names& names) const;
  // Every combination of names that has a value, in the order of their first values.
  std::vector<Names> AllNames() const;
  // Counts changes: a value that was new or differed from the one before.
  std::size_t Changes() const { return changes_; }

 private:
  struct Session {
    // A large view has a key for each of its rows, so their texts lie one behind the other. A copy shares
    // them.
    std::shared_ptr<std::pmr::memory_resource> key_memory =
        std::make_shared<std::pmr::monotonic_buffer_resource>();
    std::deque<Entry> entries;  // which no growth moves
    KeyIndex index;
    // Behind the entry that was asked for last: a component saves and loads its keys in one order.
    mutable std::size_t next = 0;
    // The number of entries for a key that there is none of.
    std::size_t PlaceOf(std::u16string_view key) const;
    void Append(std::u16string_view key, std::u16string_view value);
  };

  std::map<Names, std::size_t> places_;
  std::vector<std::pair<Names, Session>> sessions_;
  std::size_t changes_ = 0;
};

// Numbers and texts by key, or by section and key.
class UserSettings {
 public:
  using Value = std::variant<std::int32_t, std::u16string>;
  struct Entry {
    std::u16string section;  // empty for a key outside of sections
    std::u16string key;
    Value value;
  };

  void Set(std::u16string_view section, std::u16string_view key, Value value);
  // Null when the key is missing. Good until the next Set.
  const Value* Find(std::u16string_view section, std::u16string_view key) const;
  const std::vector<Entry>& Entries() const { return entries_; }
  std::size_t Changes() const { return changes_; }

 private:
  std::vector<Entry> entries_;
  std::map<std::pair<std::u16string, std::u16string>, std::size_t> places_;
  std::size_t changes_ = 0;
};

}  // namespace ioview
