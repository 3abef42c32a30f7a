// Numbers of the window messages, notifications, styles and keys. Stands in for the window system's
// constants; those that a host sends or a resource holds have the system's own values.
#pragma once

#include "platform/gui/types.h"

namespace platform {

// Lifetime and state.
inline constexpr UINT WM_CREATE = 0x0001;     // result -1 refuses the window
inline constexpr UINT WM_DESTROY = 0x0002;    // the window still exists, its children too
inline constexpr UINT WM_SIZE = 0x0005;       // lParam: PointParam of the new client size
inline constexpr UINT WM_SETFOCUS = 0x0007;   // wParam: the window that had it, 0 for none
inline constexpr UINT WM_KILLFOCUS = 0x0008;  // wParam: the window that gets it, 0 for none
inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_CLOSE = 0x0010;        // the user wants it closed
inline constexpr UINT WM_ERASEBKGND = 0x0014;   // lParam: CDC*; result nonzero: done
inline constexpr UINT WM_PAINT = 0x000F;        // lParam: CDC*
inline constexpr UINT WM_MEASUREITEM = 0x002C;  // lParam: MEASUREITEM*
inline constexpr UINT WM_SETFONT = 0x0030;      // lParam: const CFont*; wParam nonzero: redraw
inline constexpr UINT WM_HELP = 0x0053;         // lParam: HELPINFO*
// Input. Keys and characters: wParam; mouse: lParam is PointParam.
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
// wParam: a code point that types text; Enter, Escape, Tab, Backspace and keys with Control or Alt have none.
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;   // wParam: lines, signed, up is positive
inline constexpr UINT WM_CONTEXTMENU = 0x007B;  // lParam: PointParam, of the window itself
// Commands and notifications.
inline constexpr UINT WM_COMMAND =
    0x0111;  // wParam: id; or id | code << 16 with the control's handle in lParam
inline constexpr UINT WM_SYSCOMMAND = 0x0112;  // wParam: SC_CONTEXTHELP
inline constexpr UINT WM_TIMER = 0x0113;       // wParam: timer id
inline constexpr UINT WM_HSCROLL = 0x0114;     // wParam: new position
inline constexpr UINT WM_VSCROLL = 0x0115;     // wParam: new position
inline constexpr UINT WM_NOTIFY = 0x004E;      // lParam: NMHDR*
inline constexpr UINT WM_USER = 0x0400;
inline constexpr WPARAM SC_CONTEXTHELP = 61824;

// Buttons, edits, combo boxes: codes of WM_COMMAND.
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT EN_CHANGE = 0x0300;  // the text has changed and shows
inline constexpr UINT EN_UPDATE = 0x0400;  // the text has changed and doesn't show yet
inline constexpr UINT CBN_SELCHANGE = 1;
inline constexpr UINT CBN_EDITCHANGE = 5;
inline constexpr UINT CBN_EDITUPDATE = 6;
// Codes of WM_NOTIFY.
inline constexpr UINT NM_CLICK = static_cast<UINT>(-2);
inline constexpr UINT NM_DBLCLK = static_cast<UINT>(-3);
inline constexpr UINT NM_RETURN = static_cast<UINT>(-4);
inline constexpr UINT NM_RCLICK = static_cast<UINT>(-5);
inline constexpr UINT LVN_BEGINLABELEDIT = static_cast<UINT>(-105);
inline constexpr UINT LVN_ENDLABELEDIT = static_cast<UINT>(-106);
inline constexpr UINT LVN_COLUMNCLICK = static_cast<UINT>(-108);
inline constexpr UINT TVN_SELCHANGED = static_cast<UINT>(-402);
inline constexpr UINT TVN_ITEMEXPANDING = static_cast<UINT>(-405);
inline constexpr UINT TVN_BEGINDRAG = static_cast<UINT>(-407);
inline constexpr UINT TVN_BEGINLABELEDIT = static_cast<UINT>(-410);
inline constexpr UINT TVN_ENDLABELEDIT = static_cast<UINT>(-411);
inline constexpr UINT TVN_KEYDOWN = static_cast<UINT>(-412);
// A check box of a row was changed by the user; sent by trees and lists with boxes.
inline constexpr UINT TVN_CHECKCHANGED = static_cast<UINT>(-450);

// Keys held during an input message, with the values of an accelerator's modifiers.
inline constexpr UINT MK_SHIFT = 4, MK_CONTROL = 8, MK_ALT = 16;

// Styles.
inline constexpr UINT WS_POPUP = 0x80000000;
inline constexpr UINT WS_CHILD = 0x40000000;
inline constexpr UINT WS_VISIBLE = 0x10000000;
inline constexpr UINT WS_DISABLED = 0x08000000;
inline constexpr UINT WS_TABSTOP = 0x00010000;
inline constexpr UINT WS_EX_CLIENTEDGE = 0x00000200;
inline constexpr UINT ES_READONLY = 0x0800;
inline constexpr UINT BS_DEFPUSHBUTTON = 1;
inline constexpr UINT CBS_DROPDOWNLIST = 3;  // a combo box without an edit

// Keys.
inline constexpr UINT VK_BACK = 0x08, VK_TAB = 0x09, VK_RETURN = 0x0D, VK_SHIFT = 0x10, VK_CONTROL = 0x11,
                      VK_MENU = 0x12, VK_ESCAPE = 0x1B, VK_SPACE = 0x20, VK_PRIOR = 0x21, VK_NEXT = 0x22,
                      VK_END = 0x23, VK_HOME = 0x24, VK_LEFT = 0x25, VK_UP = 0x26, VK_RIGHT = 0x27,
                      VK_DOWN = 0x28, VK_INSERT = 0x2D, VK_DELETE = 0x2E, VK_MULTIPLY = 0x6A, VK_ADD = 0x6B,
                      VK_SUBTRACT = 0x6D, VK_F1 = 0x70, VK_F2 = 0x71, VK_F3 = 0x72;

// Ids of the dialog's own buttons.
inline constexpr UINT IDOK = 1;
inline constexpr UINT IDCANCEL = 2;

// A request for help on one window. The result of WM_HELP is nonzero when it was served.
inline constexpr UINT HELPINFO_WINDOW = 1;
struct HELPINFO {
  UINT iContextType = HELPINFO_WINDOW;
  UINT iCtrlId = 0;
  HWND hItemHandle = 0;
};

struct MEASUREITEM {
  UINT itemHeight = 0;  // pixels
};

}  // namespace platform
