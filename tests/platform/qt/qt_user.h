// The hands of a user at a screen: events go in where a window system's would, and from there Qt's own way.
#pragma once

#include <string_view>

#include "platform/gui/messages.h"
#include "platform/qt/qt_display.h"

namespace platform {

class CWnd;

namespace user {

// Lets everything happen that waits to; lets real time pass.
void Settle();
void Wait(UINT milliseconds);

// In client coordinates.
void Press(CWnd& window, POINT at, bool right = false);
void Release(CWnd& window, POINT at, bool right = false);
void Click(CWnd& window, POINT at, bool right = false);
void Drag(CWnd& window, POINT from, POINT to);
void Wheel(CWnd& window, POINT at, int lines);

// To the widget that has Qt's focus; nowhere without one. Only Type types characters.
void KeyDown(UINT key, UINT modifiers = 0);
void KeyUp(UINT key, UINT modifiers = 0);
void Key(UINT key, UINT modifiers = 0);
void Type(std::string_view text);

}  // namespace user

}  // namespace platform
