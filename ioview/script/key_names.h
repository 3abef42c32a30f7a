// Keys by name: Enter, F3, Ctrl+F, Shift+Tab, A, 7.
#pragma once

#include <optional>
#include <string_view>

#include "platform/gui/types.h"

namespace ioview {

struct NamedKey {
  platform::UINT key = 0;        // VK_
  platform::UINT modifiers = 0;  // MK_
};

// In any case; the modifiers Ctrl, Shift and Alt in any order. Nothing for a name that isn't known.
std::optional<NamedKey> ParseKey(std::string_view name);

}  // namespace ioview
