// Who gets a key or a click: the bookkeeping between a press and its release.
#pragma once

namespace platform::input {

// No key and no button is down, as at the start of a display.
void Reset();

}  // namespace platform::input
