// Statuses that this host answers with; ErrorTexts has a text for each.
#pragma once

#include "platform/base/types.h"

namespace ioview {

inline constexpr auto kTargetAccessFailed = static_cast<platform::Status>(0x80040001u);
inline constexpr auto kUnknownError = static_cast<platform::Status>(0x80040905u);
inline constexpr auto kInvalidNumber = static_cast<platform::Status>(0x80040906u);
inline constexpr auto kTooManyBytes = static_cast<platform::Status>(0x80043091u);

}  // namespace ioview
