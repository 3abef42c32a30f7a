// The names by which a script knows the events of host and component.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/guid.h"

namespace ioview {

// The id in braces for an event without a name.
std::string EventName(const platform::GUID& id);
std::optional<platform::GUID> EventOfName(std::string_view name);

}  // namespace ioview
