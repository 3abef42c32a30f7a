// The component's dialogs, each in a file of its own.
#pragma once

#include <span>

#include "platform/base/resources.h"

namespace pvw {

std::span<const platform::DialogResource> ComponentDialogs();

extern const platform::DialogTemplate kEditMemoryDialog;

}  // namespace pvw
