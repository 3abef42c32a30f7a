#include <algorithm>

#include "platform/base/code_page.h"
#include "platform/base/text.h"

namespace platform {

using namespace detail;

namespace {

// Whether a search byte by byte for `c` finds whole characters only.
bool IsNeverPartOfAnother(char c, unsigned page) {
  const auto byte = static_cast<std::uint8_t>(c);
  if (page == kUtf8) return byte < 0x80;
  return page == kWestern || byte < 0x40;
}

// The first one-byte character from `start` on that `wanted` takes.
template <typename Wanted>
std::size_t FindWalking(std::string_view text, std::size_t start, Wanted wanted) {
  for (std::size_t at = start; at < text.size();) {
    const std::size_t bytes = CharBytes(text, at);
    if (bytes == 1 && wanted(text[at])) return at;
    at += bytes;
  }
  return std::string_view::npos;
}

}  // namespace

std::size_t CharBytes(std::string_view text, std::size_t position) {
  if (position >= text.size()) return 0;
  if (ByteAt(text, position) < 0x80) return 1;
  switch (AnsiCodePage()) {
    case kUtf8:
      return DecodeUtf8(text, position).bytes;
    case kJapanese:
      return JapaneseBytes(text, position);
    default:
      return 1;
  }
}

std::size_t PreviousChar(std::string_view text, std::size_t position) {
  position = std::min(position, text.size());
  if (position <= 1) return 0;
  switch (AnsiCodePage()) {
    case kUtf8: {
      for (std::size_t back = 2; back <= std::min<std::size_t>(4, position); ++back) {
        if ((ByteAt(text, position - back + 1) & 0xC0) != 0x80) break;
        if (DecodeUtf8(text, position - back).bytes == back) return position - back;
      }
      return position - 1;
    }
    case kJapanese: {
      // A byte that can't lead ends a character wherever it stands, so the walk starts behind the last one.
      std::size_t at = position - 1;
      while (at > 0 && IsLeadByte(ByteAt(text, at - 1))) --at;
      std::size_t previous = at;
      while (at < position) {
        previous = at;
        at += JapaneseBytes(text, at);
      }
      return previous;
    }
    default:
      return position - 1;
  }
}

std::size_t CharCount(std::string_view text) {
  if (AnsiCodePage() == kWestern || IsAscii(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += CharBytes(text, at)) ++count;
  return count;
}

std::size_t FindChar(std::string_view text, char c, std::size_t start) {
  if (IsNeverPartOfAnother(c, AnsiCodePage())) return text.find(c, start);
  return FindWalking(text, start, [c](char at) { return at == c; });
}

std::size_t FindLastChar(std::string_view text, char c) {
  if (IsNeverPartOfAnother(c, AnsiCodePage())) return text.rfind(c);
  std::size_t last = std::string_view::npos;
  for (std::size_t at = 0; (at = FindChar(text, c, at)) != std::string_view::npos; ++at) last = at;
  return last;
}

std::size_t FindAnyChar(std::string_view text, std::string_view set) {
  const unsigned page = AnsiCodePage();
  if (std::all_of(set.begin(), set.end(), [page](char c) { return IsNeverPartOfAnother(c, page); })) {
    return text.find_first_of(set);
  }
  return FindWalking(text, 0, [set](char at) { return set.find(at) != std::string_view::npos; });
}

std::size_t CharColumns(std::string_view text, std::size_t position) {
  const std::size_t bytes = CharBytes(text, position);
  return AnsiCodePage() == kUtf8 ? std::min<std::size_t>(bytes, 1) : bytes;
}

std::size_t ColumnCount(std::string_view text) {
  // In the other pages every byte takes one column.
  return AnsiCodePage() == kUtf8 ? CharCount(text) : text.size();
}

}  // namespace platform
