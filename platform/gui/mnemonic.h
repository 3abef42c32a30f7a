// The letter behind "&" in the text of a control or menu.
#pragma once

#include <string_view>

#include "platform/gui/types.h"

namespace platform {

// The key of the letter or digit that the text underlines, upper case; 0 for none. "&&" is an ampersand.
UINT FindMnemonic(std::string_view text);

}  // namespace platform
