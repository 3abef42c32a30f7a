#include "platform/gui/dialog_keys.h"

#include <cstddef>
#include <vector>

#include "platform/gui/dialog.h"
#include "platform/gui/mnemonic.h"

namespace platform::dialog_keys {

namespace {

bool IsStop(const CWnd& control) {
  return (control.GetStyle() & WS_TABSTOP) != 0 && control.IsVisible() && control.IsEnabled();
}

// The control that the focus is in; one behind the last when it is in none.
std::size_t FocusIndex(const CDialog& dialog) {
  const CWnd* inside = CWnd::FromHandle(GetFocus());
  while (inside != nullptr && inside->GetParent() != &dialog) inside = inside->GetParent();
  const std::vector<CWnd*>& controls = dialog.GetChildren();
  std::size_t index = 0;
  while (index < controls.size() && controls[index] != inside) ++index;
  return index;
}

// The next that Tab stops at, behind `from` and round to it again.
CWnd* NextStop(const CDialog& dialog, std::size_t from, bool back) {
  const std::vector<CWnd*>& controls = dialog.GetChildren();
  const std::size_t count = controls.size();
  for (std::size_t step = 1; step <= count; ++step) {
    CWnd* control = controls[(from + (back ? 2 * count - step : step)) % count];
    if (IsStop(*control)) return control;
  }
  return nullptr;
}

void GotoMnemonic(CDialog& dialog, UINT key) {
  const std::vector<CWnd*>& controls = dialog.GetChildren();
  const std::size_t from = FocusIndex(dialog);
  for (std::size_t step = 1; step <= controls.size(); ++step) {
    const std::size_t index = (from + step) % controls.size();
    CWnd* control = controls[index];
    const WindowKind kind = control->GetKind();
    const bool label = kind == WindowKind::Static;
    const bool button = kind == WindowKind::Button || kind == WindowKind::CheckBox;
    if ((!label && !button) || !control->IsVisible() || !control->IsEnabled() ||
        FindMnemonic(control->GetText()) != key) {
      continue;
    }
    CWnd* target = label ? NextStop(dialog, index, false) : control;
    if (target == nullptr) return;
    const HWND handle = target->GetHandle();
    dialog.GotoControl(*target);
    if (button && IsWindow(handle)) static_cast<CButton*>(target)->Clicked();
    return;
  }
}

}  // namespace

CWnd* FirstStop(const CDialog& dialog) {
  const std::size_t count = dialog.GetChildren().size();
  return count > 0 ? NextStop(dialog, count - 1, false) : nullptr;
}

bool Handle(CDialog& dialog, const MSG& msg) {
  if (msg.message != WM_KEYDOWN) return false;
  const auto key = static_cast<UINT>(msg.wParam);
  if (msg.modifiers & MK_ALT) {
    const bool letter = (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
    if (letter && !(msg.modifiers & MK_CONTROL)) GotoMnemonic(dialog, key);
    return letter;
  }
  if (msg.modifiers & MK_CONTROL) return false;
  switch (key) {
    case VK_TAB: {
      const bool back = (msg.modifiers & MK_SHIFT) != 0;
      std::size_t from = FocusIndex(dialog);
      if (from == dialog.GetChildren().size() && !back) --from;
      if (CWnd* next = NextStop(dialog, from, back)) dialog.GotoControl(*next);
      return true;
    }
    case VK_RETURN:
      if (CButton* button = dialog.GetEnterButton()) {
        button->Clicked();
      } else {
        dialog.Send(WM_COMMAND, IDOK);
      }
      return true;
    case VK_ESCAPE:
      dialog.Send(WM_COMMAND, IDCANCEL);
      return true;
    default:
      return false;
  }
}

}  // namespace platform::dialog_keys
