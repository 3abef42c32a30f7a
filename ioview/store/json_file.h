// One JSON object in a file that people may edit by hand: read with care, replaced whole.
#pragma once

#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace ioview {

// Members in the order of the file. Unlike the map that it is made of it never looks whether a member is
// there already, so that a large object costs no more than its length: reading one, or assigning to
// `object[name]`, adds a member, and a name can stand in it twice.
template <class Key, class Value, class Less, class Allocator>
struct FileOrder : nlohmann::ordered_map<Key, Value, Less, Allocator> {
  using Base = nlohmann::ordered_map<Key, Value, Less, Allocator>;
  using Base::Base;
  Value& operator[](const Key& key) { return emplace(key, Value()).first->second; }
  template <typename Name>
  std::pair<typename Base::iterator, bool> emplace(Name&& name, Value&& value) {
    this->emplace_back(std::forward<Name>(name), std::move(value));
    return {std::prev(this->end()), true};
  }
};
using Json = nlohmann::basic_json<FileOrder>;

// Why a file can't be used, as the end of a sentence: "its member \"window\" is no text".
class FileFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline constexpr std::size_t kLargestStoreFile = std::size_t{64} << 20;
// No file of the host's own nests deeper than 5.
inline constexpr int kDeepestNesting = 64;

// The object in the file; an empty one when there is no such file. Throws FileFault when the file can't be
// read, is larger or deeper than above, isn't JSON, or holds no object.
Json ReadJsonFile(const std::string& native);

// Renames the file to a name that isn't taken, NAME.bad, NAME.bad2, ... and gives that; nothing when it can't
// be renamed. A directory, a pipe or a device stays where it is.
std::optional<std::string> KeepAside(const std::string& native);

// What a store makes of its file.
struct FileShape {
  bool (*is_ours)(std::string_view name);  // of a member of the object
  void (*check)(const Json& object);       // throws FileFault for an object that the store can't use
};

// Makes `object` the content of the file, and its folder if need be. Members of the file there that aren't
// the store's stay, behind the others; a file that can't be used is kept aside first. When false, `why` is a
// sentence and the file is what it was.
bool WriteJsonFile(const std::string& native, Json object, const FileShape& shape, std::string& why);

}  // namespace ioview
