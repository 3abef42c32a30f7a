// Loadable modules. Stands in for the system's library loader. A module's file may have any ending.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct Module;  // opaque
using HMODULE = Module*;

// Loads by drive path, with all its symbols bound; null when there is no such file or it isn't loadable.
// Loading a module twice gives the same handle and counts.
[[nodiscard]] HMODULE LoadLibrary(std::string_view path);
void FreeLibrary(HMODULE module);
// An exported function by name; null when there is none.
void* GetProcAddress(HMODULE module, const char* name);
template <typename Function>
Function* GetProc(HMODULE module, const char* name) {
  return reinterpret_cast<Function*>(GetProcAddress(module, name));
}

// The drive path of the module that `address` (a function or object) lies in; nothing when it has none that
// can be written as such.
std::optional<std::string> GetModuleFileName(const void* address);

// The handle of the loaded module that `address` lies in, without counting; null when it lies in none.
HMODULE ModuleOf(const void* address);

// Identifies a loaded module from inside and from outside: the address that its image was loaded at; null
// for a module that is gone and for an address outside all modules.
const void* ModuleImage(HMODULE module);
const void* ImageOf(const void* address);

}  // namespace platform
