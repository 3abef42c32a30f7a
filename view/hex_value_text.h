// Texts of values as a user types them into a cell.
#pragma once

#include <string>
#include <string_view>

namespace pvw {

// Hexadecimal digits, bare or behind one of H' h' 0x 0X; a prefix alone is such a text, an empty one isn't.
bool IsHexText(std::string_view text);

// The form in which a cell shows a text of that kind: H' before the digits, which stay as they are. An h' in
// front stays too, and a prefix alone becomes H'0.
std::string NormalizeHexText(std::string text);

}  // namespace pvw
