// Fixed-size types and the 32-bit status of every host interface: 0 is success, negative is failure.
#pragma once

#include <cstdint>

namespace platform {

using Status = std::int32_t;

inline constexpr Status S_OK = 0;
inline constexpr Status E_FAIL = static_cast<Status>(0x80004005u);
inline constexpr Status E_NOINTERFACE = static_cast<Status>(0x80004002u);

// A window: 0 is none, and a handle finds nothing once its window is gone.
using HWND = std::uint64_t;

constexpr bool Failed(Status status) { return status < 0; }

}  // namespace platform
