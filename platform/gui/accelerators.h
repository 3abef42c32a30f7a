// Keys that stand for commands. Stands in for the system's accelerator translation.
#pragma once

#include <optional>
#include <span>

#include "platform/base/resources.h"
#include "platform/gui/types.h"

namespace platform {

// The command of a key message; nothing when the table has none for it, or it isn't a WM_KEYDOWN.
std::optional<UINT> TranslateAccelerator(std::span<const AcceleratorKey> keys, const MSG& msg);

}  // namespace platform
