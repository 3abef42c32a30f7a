// The component's string table, apart from the lookup by id that platform/base/resources.h gives.
#pragma once

#include <span>

#include "platform/base/resources.h"

namespace pvw {

std::span<const platform::StringResource> ComponentStrings();

}  // namespace pvw
