#include "platform/headless/user.h"

#include <string>

#include "platform/base/text.h"
#include "platform/gui/dialog.h"
#include "platform/gui/display.h"

namespace platform::user {

namespace {

void Mouse(HWND window, UINT message, POINT at) {
  gui::Input({window, message, 0, PointParam(at)});
}

UINT KeyOf(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 'a' + 'A';
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ' ? c : 0;
}

// The character that a key types, 0 for none.
char32_t CharOf(UINT key, UINT modifiers) {
  if (modifiers & (MK_CONTROL | MK_ALT)) return 0;
  if (key >= 'A' && key <= 'Z') return modifiers & MK_SHIFT ? key : key - 'A' + 'a';
  return (key >= '0' && key <= '9') || key == VK_SPACE ? key : 0;
}

void Key(UINT key, char32_t typed, UINT modifiers) {
  const bool taken = gui::Input({0, WM_KEYDOWN, key, 0, nullptr, modifiers});
  if (!taken && typed != 0) gui::Input({0, WM_CHAR, typed, 0, nullptr, modifiers});
  gui::Input({0, WM_KEYUP, key, 0, nullptr, modifiers});
}

// Removes "&", of which a doubled one stands for itself.
std::string Plain(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && ++i == text.size()) break;
    plain += text[i];
  }
  return plain;
}

}  // namespace

void Click(CWnd& window, POINT at) {
  const HWND handle = window.GetHandle();
  Mouse(handle, WM_LBUTTONDOWN, at);
  Mouse(handle, WM_LBUTTONUP, at);
}

void DoubleClick(CWnd& window, POINT at) {
  const HWND handle = window.GetHandle();
  Mouse(handle, WM_LBUTTONDOWN, at);
  Mouse(handle, WM_LBUTTONUP, at);
  Mouse(handle, WM_LBUTTONDBLCLK, at);
  Mouse(handle, WM_LBUTTONUP, at);
}

void RightClick(CWnd& window, POINT at) {
  const HWND handle = window.GetHandle();
  Mouse(handle, WM_RBUTTONDOWN, at);
  Mouse(handle, WM_RBUTTONUP, at);
  Mouse(handle, WM_CONTEXTMENU, at);
}

void PressKey(UINT key, UINT modifiers) {
  Key(key, CharOf(key, modifiers), modifiers);
}

void TypeText(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); at += CharBytes(text, at)) {
    const std::u16string wide = ToWide(text.substr(at, CharBytes(text, at)));
    char32_t c = wide.empty() ? 0 : wide[0];
    if (wide.size() == 2) c = 0x10000 + ((wide[0] & 0x3FFu) << 10 | (wide[1] & 0x3FFu));
    if (c == '\n') {
      PressKey(VK_RETURN);
    } else {
      Key(KeyOf(c), c, c >= 'A' && c <= 'Z' ? MK_SHIFT : 0);
    }
  }
}

void ClickControl(CWnd& control) {
  Click(control, {control.GetRect().Width() / 2, control.GetRect().Height() / 2});
}

void PressOk(CDialog& dialog) {
  for (CWnd* control : dialog.GetChildren()) {
    if (control->GetKind() != WindowKind::Button || !static_cast<CButton*>(control)->IsDefault()) continue;
    ClickControl(*control);
    return;
  }
  dialog.Send(WM_COMMAND, IDOK);
}

void PressCancel(CDialog& dialog) {
  for (CWnd* control : dialog.GetChildren()) {
    if (control->GetKind() != WindowKind::Button || Plain(control->GetText()) != "Cancel") continue;
    ClickControl(*control);
    return;
  }
  PressKey(VK_ESCAPE);
}

}  // namespace platform::user
