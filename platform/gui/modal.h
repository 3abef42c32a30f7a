// What is modal now, and what it keeps waiting.
#pragma once

#include "platform/base/types.h"

namespace platform::modal {

// True when the window lies behind the modal thing on top.
bool Blocks(HWND handle);
// How many modal things have opened so far.
unsigned Openings();
// The window of the modal thing on top that asked for the focus before that shows; 0 for none.
HWND Wish();
// The modal thing on top shows now and takes the focus; 0 for none of ours.
void TakeFocus(HWND focus);
// Keeps a wish for the focus that can't be met now: behind a modal thing until that is gone, in one that
// doesn't show yet until it does. False when it can be met.
bool Remember(HWND handle);

}  // namespace platform::modal
