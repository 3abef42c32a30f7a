// A component with an application object, and a help engine of both kinds, in one file.

#include "tests/frame/controls/modules/help_module.h"

#define PVW_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

pvw::test::HelpModule the_module;

constexpr std::uint32_t kHelpOnControl = 17;

void Note(const std::string& line) {
  the_module.calls.push_back(line);
  the_module.application_path = the_module.app.m_helpFilePath;
}

}  // namespace

PVW_EXPORT pvw::test::HelpModule* GetHelpModule() {
  return &the_module;
}

PVW_EXPORT std::uintptr_t ordinal_14(platform::HWND window, const char* path, std::uint32_t command,
                                     std::uintptr_t data) {
  std::string line = "html " + std::to_string(window) + " " + path + " " + std::to_string(command) + ":";
  if (command == kHelpOnControl) {
    const auto* number = reinterpret_cast<const std::uint32_t*>(data);
    do {
      line += " " + std::to_string(*number);
    } while (*number++ != 0);
  } else {
    line += " " + std::to_string(data);
  }
  Note(line);
  return the_module.result;
}

PVW_EXPORT bool WinHelp(platform::HWND window, const char* path, std::uint32_t command, std::uint32_t data) {
  Note("win " + std::to_string(window) + " " + path + " " + std::to_string(command) + " " +
       std::to_string(data));
  return true;
}
