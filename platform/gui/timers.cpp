#include "platform/gui/timers.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/gui/display.h"
#include "platform/gui/window.h"

namespace platform {

namespace {

std::vector<std::pair<HWND, UINT>> g_timers;

}  // namespace

namespace timers {

void DropAll(HWND handle) {
  for (std::size_t i = g_timers.size(); i-- > 0;) {
    if (g_timers[i].first == handle) KillTimer(handle, g_timers[i].second);
  }
}

}  // namespace timers

void SetTimer(HWND handle, UINT id, UINT milliseconds) {
  Display* display = GetDisplay();
  if (display == nullptr || !IsWindow(handle)) return;
  KillTimer(handle, id);
  g_timers.emplace_back(handle, id);
  display->StartTimer(handle, id, milliseconds);
}

void KillTimer(HWND handle, UINT id) {
  const auto timer = std::find(g_timers.begin(), g_timers.end(), std::pair(handle, id));
  if (timer == g_timers.end()) return;
  g_timers.erase(timer);
  if (Display* display = GetDisplay()) display->StopTimer(handle, id);
}

}  // namespace platform
