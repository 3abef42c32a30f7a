// Who has the keyboard. The focus belongs to the layer; widgets follow it.
#pragma once

#include <vector>

#include "platform/base/types.h"

namespace platform {

class CWnd;

namespace focus {

// The window and its parents, nearest first.
std::vector<HWND> ChainOf(HWND handle);
// Who gets the focus back after something that takes it now: the window that has it, or would have it if the
// user weren't away, with its parents.
std::vector<HWND> CurrentChain();
// Gives the focus to the first that is alive, shown and enabled; takes it away when none is.
void Restore(const std::vector<HWND>& chain);
// The window is about to go, or was hidden or disabled: the focus, if it is inside, passes to the nearest
// parent that can have it.
void PassToParents(const CWnd& window);
// Nobody has it and the user is here, as at the start of a display.
void Reset();

}  // namespace focus

}  // namespace platform
