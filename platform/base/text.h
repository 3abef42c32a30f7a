// 8-bit text in the process's ANSI code page, by whole characters. Stands in for the system's code page
// conversion and its multibyte string functions.
//
// Code pages: 65001 (UTF-8), 1252 (western, one byte a character), 932 (Japanese, lead and trail bytes).
// A byte without a meaning in the page counts as one character, and survives ToWide and FromWide unchanged:
// it travels as the lone surrogate U+DC00 plus the byte. What the page can't express becomes '?'.
// Positions and lengths are bytes unless a name says characters or columns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// The page of the whole process, 65001 at first. False, and no change, for a page that isn't one of the
// three.
bool SetAnsiCodePage(unsigned page);
unsigned AnsiCodePage();

std::u16string ToWide(std::string_view text);
std::string FromWide(std::u16string_view text);
// Between the page and UTF-8, the encoding of native file names. Unchanged when the page is UTF-8.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view text);

// Bytes of the character at `position`: 1 to 4, never past the end; 0 at the end.
std::size_t CharBytes(std::string_view text, std::size_t position);
// Start of the character before the one that starts at `position`; 0 when there is none. Page 932
// tells lead bytes from trail bytes by walking the run of lead bytes before it, at worst from the start.
std::size_t PreviousChar(std::string_view text, std::size_t position);
std::size_t CharCount(std::string_view text);

// Position of a one-byte character, found whole (a trail byte never matches); npos when absent.
std::size_t FindChar(std::string_view text, char c, std::size_t start = 0);
std::size_t FindLastChar(std::string_view text, char c);
// The first of any one-byte character of `set`.
std::size_t FindAnyChar(std::string_view text, std::string_view set);

// True when the character at `position` is a letter in the page.
bool IsAlphaAt(std::string_view text, std::size_t position);
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);
// Without regard to case, by whole characters. Equal exactly when the lower-case forms are equal.
bool EqualNoCase(std::string_view a, std::string_view b);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);

// Columns that the character at `position` takes in a text dump: 1 for a byte of a one-byte page and for a
// code point of UTF-8, 2 for a double-byte character of 932.
std::size_t CharColumns(std::string_view text, std::size_t position);
std::size_t ColumnCount(std::string_view text);

}  // namespace platform
