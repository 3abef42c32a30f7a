// The hands of a user at a display without a screen: mouse, keys, and the buttons of a dialog.
#pragma once

#include <string_view>

#include "platform/gui/messages.h"

namespace platform {

class CDialog;
class CWnd;

namespace user {

// Positions are client coordinates of the window.
void Click(CWnd& window, POINT at);
void DoubleClick(CWnd& window, POINT at);
void RightClick(CWnd& window, POINT at);
// A key, down and up, to whatever has the focus; `modifiers` are MK_SHIFT and so on.
void PressKey(UINT key, UINT modifiers = 0);
// Character by character, each with its key; a line feed is Enter.
void TypeText(std::string_view text);

// A click into the middle of a control.
void ClickControl(CWnd& control);
// The dialog's own way out: its default button; the button "Cancel", else Escape.
void PressOk(CDialog& dialog);
void PressCancel(CDialog& dialog);

}  // namespace user

}  // namespace platform
