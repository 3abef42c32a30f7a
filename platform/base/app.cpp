#include "platform/base/app.h"

#include <utility>
#include <vector>

namespace platform {

namespace {

struct Apps {
  std::vector<CWinApp*> made;  // in order of construction
  CWinApp* chosen = nullptr;   // by a scope
};

// Modules' objects come before `main` and go after it.
Apps& TheApps() {
  static auto* const apps = new Apps;
  return *apps;
}

HWND g_main_window = 0;

}  // namespace

CWinApp::CWinApp() {
  TheApps().made.push_back(this);
}

CWinApp::~CWinApp() {
  std::erase(TheApps().made, this);
  if (TheApps().chosen == this) TheApps().chosen = nullptr;
}

CWinApp* CWinApp::Current() {
  const Apps& apps = TheApps();
  if (apps.chosen != nullptr) return apps.chosen;
  return apps.made.empty() ? nullptr : apps.made.back();
}

CWinApp* CWinApp::Of(const void* address) {
  const void* image = ImageOf(address);
  for (CWinApp* app : TheApps().made) {
    if (image != nullptr && ImageOf(app) == image) return app;
  }
  return nullptr;
}

std::optional<std::string> CWinApp::GetModuleFileName() const {
  return platform::GetModuleFileName(this);
}

ScopedModuleState::ScopedModuleState(CWinApp& app) : m_before(std::exchange(TheApps().chosen, &app)) {}

ScopedModuleState::~ScopedModuleState() {
  TheApps().chosen = m_before;
}

void SetMainWindow(HWND window) {
  g_main_window = window;
}

HWND GetMainWindow() {
  return g_main_window;
}

}  // namespace platform
