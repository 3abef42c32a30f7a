#include "platform/gui/menu.h"

#include "platform/base/text.h"
#include "platform/gui/window.h"

namespace platform {

std::vector<PopupMenuItem> MenuItems(std::span<const MenuItemResource> items) {
  std::vector<PopupMenuItem> list;
  list.reserve(items.size());
  for (const MenuItemResource& item : items) {
    PopupMenuItem& added = list.emplace_back();
    if (item.text == nullptr) continue;
    added.text = FromUtf8(item.text);
    added.id = item.id;
    added.items = MenuItems(item.Items());
  }
  return list;
}

void UpdateMenu(std::vector<PopupMenuItem>& items, CWnd& window) {
  for (PopupMenuItem& item : items) {
    if (!item.items.empty()) {
      UpdateMenu(item.items, window);
    } else if (!item.text.empty()) {
      CCmdUI state(item.id);
      item.enabled = window.UpdateCommand(state) && state.IsEnabled();
      item.checked = state.IsChecked();
    }
  }
}

void TrackPopupMenu(CWnd& owner, const std::vector<PopupMenuItem>& items, POINT at) {
  Display* display = GetDisplay();
  if (display == nullptr) return;
  const HWND handle = owner.GetHandle();
  UINT picked = 0;
  {
    const gui::ModalScope scope(0);
    picked = display->RunPopupMenu(owner, items, at, [] {});
  }
  if (picked != 0) SendMessage(handle, WM_COMMAND, picked);
}

}  // namespace platform
