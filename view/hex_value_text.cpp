#include "view/hex_value_text.h"

#include "support/hex_text.h"

namespace pvw {

bool IsHexText(std::string_view text) {
  return IsHexNumber(text);
}

std::string NormalizeHexText(std::string text) {
  const bool has_letter = text.starts_with('H') || text.starts_with('h');
  if (!has_letter) {
    if (text.starts_with("0x") || text.starts_with("0X")) text.erase(0, 1);
    if (text.starts_with('x') || text.starts_with('X')) text.erase(0, 1);
    text.insert(0, text.starts_with('\'') ? "H" : "H'");
  }
  return text == "H'" || text == "h'" ? "H'0" : text;
}

}  // namespace pvw
