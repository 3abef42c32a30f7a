#include "support/list_text.h"

#include <utility>

#include "platform/base/text.h"

namespace pvw {

namespace {

constexpr std::size_t npos = std::string_view::npos;

template <typename AddPiece>
void CutAt(std::string_view text, char sep, AddPiece add) {
  if (text.empty()) return;
  std::size_t start = 0;
  for (std::size_t end; (end = platform::FindChar(text, sep, start)) != npos; start = end + 1) {
    add(text.substr(start, end - start));
  }
  add(text.substr(start));
}

std::string Join(std::span<const std::string> list, char sep, const auto& append) {
  std::string joined;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i > 0) joined += sep;
    append(joined, list[i]);
  }
  return joined;
}

}  // namespace

std::size_t FindNthChar(std::string_view text, char c, int n) {
  if (n < 1) return npos;
  std::size_t found = platform::FindChar(text, c);
  while (found != npos && --n > 0) found = platform::FindChar(text, c, found + 1);
  return found;
}

std::size_t LastCharacterOf(std::string_view text) {
  return platform::PreviousChar(text, text.size());
}

std::string CopyUpTo(std::string_view text, std::size_t first, std::size_t last) {
  if (first > last || first >= text.size()) return {};
  if (last >= text.size()) return std::string(text.substr(first));
  return std::string(text.substr(first, last - first + platform::CharBytes(text, last)));
}

std::size_t SplitList(std::string_view text, StringList& list, char sep) {
  StringList pieces;
  CutAt(text, sep, [&](std::string_view piece) { pieces.emplace_back(piece); });
  list = std::move(pieces);
  return list.size();
}

StringList SplitArray(std::string_view text, char sep) {
  std::size_t count = 0;
  CutAt(text, sep, [&](std::string_view) { ++count; });
  StringList pieces;
  pieces.reserve(count);
  CutAt(text, sep, [&](std::string_view piece) { pieces.emplace_back(piece); });
  return pieces;
}

std::size_t SplitEscapedList(std::string_view text, StringList& list, char sep, char esc) {
  StringList pieces;
  if (!text.empty()) pieces.emplace_back();
  for (std::size_t i = 0, bytes; i < text.size(); i += bytes) {
    bytes = platform::CharBytes(text, i);
    const bool single = bytes == 1;
    const std::size_t next = i + 1;
    if (single && text[i] == esc && next < text.size() && platform::CharBytes(text, next) == 1 &&
        (text[next] == sep || text[next] == esc)) {
      pieces.back() += text[next];
      bytes = 2;
    } else if (single && text[i] == sep) {
      pieces.emplace_back();
    } else {
      pieces.back().append(text, i, bytes);
    }
  }
  list = std::move(pieces);
  return list.size();
}

std::string JoinList(std::span<const std::string> list, char sep) {
  return Join(list, sep, [](std::string& joined, const std::string& piece) { joined += piece; });
}

std::string JoinEscapedList(std::span<const std::string> list, char sep, char esc) {
  return Join(list, sep, [&](std::string& joined, const std::string& piece) {
    for (std::size_t i = 0, bytes; i < piece.size(); i += bytes) {
      bytes = platform::CharBytes(piece, i);
      if (bytes == 1 && (piece[i] == sep || piece[i] == esc)) joined += esc;
      joined.append(piece, i, bytes);
    }
  });
}

void StringListToVariant(std::span<const std::string> list, platform::VARIANT* out) {
  platform::SAFEARRAY* array = platform::SafeArrayCreateVector(platform::VT_VARIANT, list.size());
  for (std::size_t i = 0; i < list.size(); ++i) {
    platform::VARIANT* element = platform::SafeArrayVariantAt(array, i);
    element->vt = platform::VT_BSTR;
    element->bstrVal = platform::NewBstr(list[i]);
  }
  out->vt = platform::VT_ARRAY | platform::VT_BSTR;
  out->parray = array;
}

}  // namespace pvw
