// The component's bitmaps: images of rows and toolbars, and of the group that the host's test framework
// shows. And its icons.
#pragma once

#include <span>

#include "platform/base/resources.h"

namespace pvw {

std::span<const platform::PictureResource> ComponentBitmaps();
std::span<const platform::PictureResource> ComponentIcons();

}  // namespace pvw
