#include <optional>
#include <span>
#include <vector>

#include "platform/base/text.h"
#include "support/placeholder_expander.h"

namespace pvw {

namespace {

// A text as one number a character, in upper case. A character and its upper-case form can differ in bytes,
// so positions are those of characters.
std::vector<std::uint32_t> UpperCaseCharacters(std::string_view text) {
  std::vector<std::uint32_t> characters;
  for (std::size_t i = 0, bytes; i < text.size(); i += bytes) {
    bytes = platform::CharBytes(text, i);
    std::uint32_t packed = 0;
    for (const char c : platform::UpperCase(text.substr(i, bytes))) {
      packed = packed << 8 | static_cast<unsigned char>(c);
    }
    characters.push_back(packed);
  }
  return characters;
}

// Where `needle` first stands in `haystack`, found in one pass over both; nothing when it doesn't. `needle`
// isn't empty.
std::optional<std::size_t> FindIn(std::span<const std::uint32_t> haystack,
                                  std::span<const std::uint32_t> needle) {
  // For each length of a match, the longest shorter match that its end begins anew.
  std::vector<std::size_t> shorter(needle.size() + 1, 0);
  std::size_t matched = 0;
  const auto take = [&](std::uint32_t character) {
    while (matched > 0 && needle[matched] != character) matched = shorter[matched];
    if (needle[matched] == character) ++matched;
  };
  for (std::size_t i = 1; i < needle.size(); ++i) {
    take(needle[i]);
    shorter[i + 1] = matched;
  }
  matched = 0;
  for (std::size_t i = 0; i < haystack.size(); ++i) {
    take(haystack[i]);
    if (matched == needle.size()) return i + 1 - matched;
  }
  return std::nullopt;
}

std::size_t BytesOf(std::string_view text, std::size_t characters) {
  std::size_t bytes = 0;
  while (characters-- > 0) bytes += platform::CharBytes(text, bytes);
  return bytes;
}

}  // namespace

std::string ToPlaceholderForm(IQComponentHost* host, std::string_view path) {
  const CPlaceholderExpander expander(host);
  const std::vector<std::uint32_t> haystack = UpperCaseCharacters(path);
  for (const PlaceholderIndex index : {kPlaceholderConfigDir, kPlaceholderProjDir, kPlaceholderWorkspDir}) {
    const std::vector<std::uint32_t> needle = UpperCaseCharacters(expander.ValueOf(index));
    if (needle.empty()) continue;  // it would be found everywhere
    const std::optional<std::size_t> hit = FindIn(haystack, needle);
    if (!hit) continue;
    const std::size_t start = BytesOf(path, *hit);
    const std::size_t length = BytesOf(path.substr(start), needle.size());
    std::string form(path.substr(0, start));
    form += GetPlaceholderText(index, true);
    form += path.substr(start + length);
    return form;
  }
  return std::string(path);
}

}  // namespace pvw
