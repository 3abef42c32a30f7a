// Handles of windows: a slot and its generation, so that a handle finds nothing once its window is gone.
#pragma once

#include "platform/base/types.h"

namespace platform {

class CWnd;

namespace window_table {

HWND Add(CWnd& window);
void Remove(HWND handle);
CWnd* Find(HWND handle);  // null for 0 and for a handle whose window is gone
// Another object stands for the window from now on.
void Replace(HWND handle, CWnd& window);

}  // namespace window_table

}  // namespace platform
