// The call into the HTML help engine, a library that is loaded when help is first asked for.
#pragma once

#include <cstdint>
#include <string>

#include "platform/base/module.h"
#include "platform/base/types.h"

namespace pvw {

// What the engine is asked for.
inline constexpr std::uint32_t HH_TP_HELP_WM_HELP =
    17;  // `data`: an array of pairs of control and context, ended by 0

// The engine's entry point, and what it gives: 0 for nothing shown.
using HtmlHelpEntry = std::uintptr_t(platform::HWND window, const char* path, std::uint32_t command,
                                     std::uintptr_t data);

// The engine of the process. It stays loaded, and what couldn't be had once isn't tried again.
extern platform::HMODULE g_hHtmlHelpLibrary;
extern HtmlHelpEntry* g_pHtmlHelpEntry;
extern bool g_bHtmlHelpUnavailable;

// The engine's result; 0 without an engine. `path` is a drive path, with a place in the file behind it.
std::uintptr_t CallHtmlHelp(platform::HWND window, const std::string& path, std::uint32_t command,
                            std::uintptr_t data);
// The same in the application's help file; `topic`, null for none, follows its path directly. 0, and no call,
// when that leaves no path.
std::uintptr_t ShowHelpTopic(platform::HWND window, const char* topic, std::uint32_t command,
                             std::uintptr_t data);

}  // namespace pvw
