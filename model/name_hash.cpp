#include "model/name_hash.h"

#include <algorithm>
#include <cstring>
#include <random>

#include "platform/base/text.h"

namespace pvw {
namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x80 * kOnes;

std::uint64_t Seed() {
  static const std::uint64_t seed = [] {
    std::random_device device;
    return static_cast<std::uint64_t>(device()) << 32 | device();
  }();
  return seed;
}

// Eight bytes, the missing ones zero.
std::uint64_t Load(const char* bytes, std::size_t count) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, count);
  return word;
}

// The ASCII capitals among eight bytes below 0x80 in lower case.
std::uint64_t FoldAscii(std::uint64_t word) {
  const std::uint64_t fromA = word + (0x80 - 'A') * kOnes;
  const std::uint64_t aboveZ = word + (0x7F - 'Z') * kOnes;
  return word | ((fromA ^ aboveZ) & kHighBits) >> 2;
}

std::uint64_t Mix(std::uint64_t a, std::uint64_t b) {
  a = (a ^ b) * 0x9E3779B97F4A7C15;
  a = (a ^ a >> 32) * 0xD6E8FEB86659FD93;
  return a ^ a >> 32;
}

// `seen` collects the bits of all bytes. The result counts only if none of them has its high bit set or if
// the text is folded already.
template <bool kFold>
std::uint64_t HashWords(std::string_view text, std::uint64_t& seen) {
  std::uint64_t hash = Seed() ^ text.size();
  const auto take = [&](std::size_t at, std::size_t count) {
    const std::uint64_t word = Load(text.data() + at, count);
    seen |= word;
    hash = Mix(hash, kFold ? FoldAscii(word) : word);
  };
  std::size_t at = 0;
  for (; text.size() - at >= 8; at += 8) take(at, 8);
  if (at < text.size()) take(at, text.size() - at);
  return hash;
}

char FoldAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

}  // namespace

std::uint32_t NameHash(std::string_view name) {
  std::uint64_t seen = 0;
  std::uint64_t hash = HashWords<true>(name, seen);
  if ((seen & kHighBits) != 0) hash = HashWords<false>(platform::LowerCase(name), seen);
  return static_cast<std::uint32_t>(hash);
}

std::uint32_t ExactNameHash(std::string_view name) {
  std::uint64_t seen = 0;
  return static_cast<std::uint32_t>(HashWords<false>(name, seen));
}

bool NamesEqual(std::string_view a, std::string_view b) {
  if (a == b) return true;
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t at = 0; at < common; ++at) {
    if (((a[at] | b[at]) & 0x80) != 0) return platform::EqualNoCase(a, b);
    if (FoldAscii(a[at]) != FoldAscii(b[at])) return false;
  }
  return a.size() == b.size();
}

}  // namespace pvw
