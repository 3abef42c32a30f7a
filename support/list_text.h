// Lists held in one text, and positions of characters in a text, by whole characters of the ANSI code page.
//
// Positions are bytes; `npos` means that there is none. A separator or escape character is one byte and
// counts only where it is a whole character.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/variant.h"

namespace pvw {

using StringList = std::vector<std::string>;

// Position of the `n`th `c`, counting from 1; npos when there are fewer, and for an `n` below 1.
std::size_t FindNthChar(std::string_view text, char c, int n);
// Where the last whole character starts; 0 for an empty text.
std::size_t LastCharacterOf(std::string_view text);
// The text from `first` up to and including the character that starts at `last`; empty when `first` lies
// behind `last` or at the end.
std::string CopyUpTo(std::string_view text, std::size_t first, std::size_t last);

// Cuts the text at each `sep`; `list` holds the pieces alone, empty ones and the one behind the last `sep`
// included. An empty text gives an empty list. The result is the number of pieces.
std::size_t SplitList(std::string_view text, StringList& list, char sep);
// The same pieces, in an array sized to fit.
StringList SplitArray(std::string_view text, char sep);
// As SplitList, but `esc` in front of `sep` or of `esc` stands for that second character alone. An `esc` in
// front of anything else, or at the end, stays as it is.
std::size_t SplitEscapedList(std::string_view text, StringList& list, char sep, char esc);

// The pieces with `sep` between them. An empty list and a list of one empty piece give the same, empty text.
std::string JoinList(std::span<const std::string> list, char sep);
// As JoinList, with an `esc` in front of each `sep` and `esc` of a piece, so that SplitEscapedList gives the
// list back.
std::string JoinEscapedList(std::span<const std::string> list, char sep, char esc);

// Makes `out` a VARIANT of type VT_ARRAY | VT_BSTR whose array has VT_VARIANT elements, each a VT_BSTR, which
// is the form that the host reads lists in. What `out` held before isn't freed.
void StringListToVariant(std::span<const std::string> list, platform::VARIANT* out);

}  // namespace pvw
