// The buttons of a toolbar resource: their commands with the pictures of the bitmap of the same id.
#pragma once

#include <QtGui/qicon.h>

#include <cstdint>
#include <vector>

#include "platform/base/module.h"

namespace ioview {

struct ToolbarButton {
  std::uint32_t command = 0;  // 0: a separator
  QIcon icon = {};
};

// Empty when the module has no such toolbar, or one of another version than 1. A button whose picture the
// bitmap lacks has none.
std::vector<ToolbarButton> LoadToolbarButtons(platform::HMODULE module, std::uint32_t toolbar);

}  // namespace ioview
