#include "frame/controls/html_help.h"

#include <cstddef>

#include "platform/base/app.h"
#include "platform/base/system.h"
#include "support/path_text.h"

namespace pvw {

platform::HMODULE g_hHtmlHelpLibrary = nullptr;
HtmlHelpEntry* g_pHtmlHelpEntry = nullptr;
bool g_bHtmlHelpUnavailable = false;

namespace {

constexpr std::size_t kRegistryBuffer = 260;

// The export with the ordinal 14.
constexpr const char* kEntryPoint = "ordinal_14";

// The library that the system names, else the one of the usual name among the system's own.
platform::HMODULE LoadEngine() {
  const platform::SystemRecord& system = platform::System();
  platform::HMODULE engine = nullptr;
  if (!system.help_engine.empty() && system.help_engine.size() < kRegistryBuffer) {
    engine = platform::LoadLibrary(system.help_engine);
  }
  return engine != nullptr ? engine : platform::LoadLibrary(JoinPath(system.system_directory, "hhctrl.ocx"));
}

}  // namespace

std::uintptr_t CallHtmlHelp(platform::HWND window, const std::string& path, std::uint32_t command,
                            std::uintptr_t data) {
  if (g_bHtmlHelpUnavailable) return 0;
  if (g_hHtmlHelpLibrary == nullptr) g_hHtmlHelpLibrary = LoadEngine();
  if (g_pHtmlHelpEntry == nullptr) {
    g_pHtmlHelpEntry = platform::GetProc<HtmlHelpEntry>(g_hHtmlHelpLibrary, kEntryPoint);
  }
  g_bHtmlHelpUnavailable = g_pHtmlHelpEntry == nullptr;
  return g_pHtmlHelpEntry != nullptr ? g_pHtmlHelpEntry(window, path.c_str(), command, data) : 0;
}

std::uintptr_t ShowHelpTopic(platform::HWND window, const char* topic, std::uint32_t command,
                             std::uintptr_t data) {
  const platform::CWinApp* app = platform::CWinApp::Current();
  std::string path = app != nullptr ? app->m_helpFilePath : std::string();
  if (topic != nullptr) path += topic;
  return path.empty() ? 0 : CallHtmlHelp(window, path, command, data);
}

}  // namespace pvw
