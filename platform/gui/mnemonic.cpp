#include "platform/gui/mnemonic.h"

#include "platform/base/text.h"

namespace platform {

UINT FindMnemonic(std::string_view text) {
  for (std::size_t at = FindChar(text, '&'); at != std::string_view::npos; at = FindChar(text, '&', at + 2)) {
    if (at + 1 >= text.size()) return 0;
    const char c = text[at + 1];
    if (c >= 'a' && c <= 'z') return static_cast<UINT>(c - 'a' + 'A');
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) return static_cast<UINT>(c);
    if (c != '&') return 0;
  }
  return 0;
}

}  // namespace platform
