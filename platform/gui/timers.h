// The timers of windows, which end with their windows.
#pragma once

#include "platform/base/types.h"

namespace platform::timers {

// The window is gone.
void DropAll(HWND handle);

}  // namespace platform::timers
