#include "platform/base/bstr.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "platform/base/code_page.h"
#include "platform/base/text.h"

namespace platform {

namespace {

// More than the length needs, so that the text is aligned like any allocation.
constexpr std::size_t kHeader = 16;
constexpr std::size_t kMostUnits =
    (std::numeric_limits<std::uint32_t>::max() - kHeader) / sizeof(char16_t) - 1;

// Room for `units` and the zero behind them, which is set.
BSTR Allocate(std::size_t units) {
  if (units > kMostUnits) return nullptr;
  const std::size_t bytes = units * sizeof(char16_t);
  auto* block = static_cast<char*>(std::malloc(kHeader + bytes + sizeof(char16_t)));
  if (block == nullptr) return nullptr;
  const auto length = static_cast<std::uint32_t>(bytes);
  std::memcpy(block + kHeader - sizeof length, &length, sizeof length);
  const BSTR text = reinterpret_cast<char16_t*>(block + kHeader);
  text[units] = 0;
  return text;
}

}  // namespace

BSTR SysAllocString(std::u16string_view text) {
  const BSTR copy = Allocate(text.size());
  if (copy != nullptr) std::copy(text.begin(), text.end(), copy);
  return copy;
}

void SysFreeString(BSTR text) {
  if (text != nullptr) std::free(reinterpret_cast<char*>(text) - kHeader);
}

std::size_t SysStringLen(const char16_t* text) {
  if (text == nullptr) return 0;
  std::uint32_t length;
  std::memcpy(&length, reinterpret_cast<const char*>(text) - sizeof length, sizeof length);
  return length / sizeof(char16_t);
}

BSTR NewBstr(std::string_view text) {
  if (!detail::IsAscii(text)) return SysAllocString(ToWide(text));
  const BSTR copy = Allocate(text.size());
  if (copy != nullptr) std::copy(text.begin(), text.end(), copy);
  return copy;
}

std::string BstrText(const char16_t* text) {
  return FromWide({text, SysStringLen(text)});
}

ScopedBstr::ScopedBstr(std::string_view text) : text_(NewBstr(text)) {}

std::string ScopedBstr::Text() const {
  return BstrText(text_);
}

}  // namespace platform
