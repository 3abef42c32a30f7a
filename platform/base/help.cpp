#include "platform/base/help.h"

#include "platform/base/module.h"
#include "platform/base/system.h"

namespace platform {

bool WinHelp(HWND window, const std::string& file, std::uint32_t command, std::uint32_t data) {
  const HMODULE engine = LoadLibrary(System().help_engine);
  const auto show = GetProc<bool(HWND, const char*, std::uint32_t, std::uint32_t)>(engine, "WinHelp");
  const bool shown = show != nullptr && show(window, file.c_str(), command, data);
  FreeLibrary(engine);
  return shown;
}

}  // namespace platform
