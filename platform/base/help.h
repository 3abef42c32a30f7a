// The old help program, for help files that end in ".hlp". Stands in for the system's WinHelp.
#pragma once

#include <cstdint>
#include <string>

#include "platform/base/types.h"

namespace platform {

inline constexpr std::uint32_t HELP_CONTEXTPOPUP = 8;

// Shows the topic `data` of the file at drive path `file`. The library that System().help_engine names
// answers by its export `WinHelp`, which takes these arguments with the path as a C string; false when there
// is none.
bool WinHelp(HWND window, const std::string& file, std::uint32_t command, std::uint32_t data);

}  // namespace platform
