// Lists of command ids as components give them.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/base/variant.h"

namespace ioview {

// The ids of a list of type VT_ARRAY | VT_UINT; none for null, for another type, and for elements of another
// type.
std::vector<std::uint32_t> CommandsOf(const platform::VARIANT* list);

}  // namespace ioview
