// The component's cursors: how the pointer looks while a row is dragged.
#pragma once

#include <span>

#include "platform/base/resources.h"

namespace pvw {

std::span<const platform::PictureResource> ComponentCursors();

}  // namespace pvw
