// The component's menus and toolbars.
#pragma once

#include <span>

#include "platform/base/resources.h"

namespace pvw {

std::span<const platform::MenuResource> ComponentMenus();
std::span<const platform::ToolbarResource> ComponentToolbars();

}  // namespace pvw
