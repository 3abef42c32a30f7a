// Menus: from a resource to a list of items, and as a popup. Stands in for the system's menus.
#pragma once

#include <span>
#include <vector>

#include "platform/base/resources.h"
#include "platform/gui/display.h"

namespace platform {

// The items with their texts in the ANSI code page, all enabled and unchecked.
std::vector<PopupMenuItem> MenuItems(std::span<const MenuItemResource> items);
// Asks the window's update handlers about each command; one that the window doesn't handle is disabled.
void UpdateMenu(std::vector<PopupMenuItem>& items, CWnd& window);
// Shows the menu and, when an item was picked, sends its command to the owner. `at` is in the owner's client
// coordinates. The focus stays where it is.
void TrackPopupMenu(CWnd& owner, const std::vector<PopupMenuItem>& items, POINT at);

}  // namespace platform
