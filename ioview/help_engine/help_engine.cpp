#include "ioview/help_engine/help_engine.h"

#include "platform/base/types.h"

namespace ioview {

namespace {

// The command whose data is an array of pairs of control and topic; for any other it is the topic itself.
constexpr std::uint32_t kHelpOnControl = 17;

HelpSetup g_setup;

void Tell(const char* path, std::uint32_t number) {
  if (g_setup.listener != nullptr) g_setup.listener(g_setup.context, path, number);
}

std::uint32_t TopicOf(std::uint32_t command, std::uintptr_t data) {
  if (command != kHelpOnControl) return static_cast<std::uint32_t>(data);
  const auto* const pairs = reinterpret_cast<const std::uint32_t*>(data);
  return pairs != nullptr && pairs[0] != 0 ? pairs[1] : 0;
}

}  // namespace

}  // namespace ioview

#define HELP_EXPORT extern "C" __attribute__((visibility("default")))

HELP_EXPORT void SetUpHelpEngine(const ioview::HelpSetup* setup) {
  ioview::g_setup = *setup;
}

// The entry point of an engine for compiled help.
HELP_EXPORT std::uintptr_t ordinal_14(platform::HWND window, const char* path, std::uint32_t command,
                                      std::uintptr_t data) {
  using Entry = std::uintptr_t(platform::HWND, const char*, std::uint32_t, std::uintptr_t);
  Entry* const entry = platform::GetProc<Entry>(ioview::g_setup.engine, "ordinal_14");
  if (entry == nullptr) return 0;
  ioview::Tell(path, ioview::TopicOf(command, data));
  return entry(window, path, command, data);
}

// That of the old help program.
HELP_EXPORT bool WinHelp(platform::HWND window, const char* path, std::uint32_t command, std::uint32_t data) {
  using Entry = bool(platform::HWND, const char*, std::uint32_t, std::uint32_t);
  Entry* const entry = platform::GetProc<Entry>(ioview::g_setup.engine, "WinHelp");
  if (entry == nullptr) return false;
  ioview::Tell(path, data);
  return entry(window, path, command, data);
}
