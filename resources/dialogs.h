// The component's dialogs, each in a file of its own.
#pragma once

#include <span>

#include "platform/base/resources.h"

namespace pvw {

std::span<const platform::DialogResource> ComponentDialogs();

extern const platform::DialogTemplate kEditMemoryDialog;
extern const platform::DialogTemplate kSelectRegisterDialog;
extern const platform::DialogTemplate kProgressDialog;
extern const platform::DialogTemplate kFindDialog;
extern const platform::DialogTemplate kSetIOFileDialog;
extern const platform::DialogTemplate kEditTestDetailsDialog;

}  // namespace pvw
