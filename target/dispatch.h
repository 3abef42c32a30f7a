// The dispatch functions that fill the table of debugger entries, and the library functions behind them.
#pragma once

#include <cstddef>
#include <span>

#include "target/debugger_binding.h"

namespace pvw {

inline constexpr std::size_t kLibraryFunctionCount = 16;

struct LibraryFunction {
  const char* name;  // as the library exports it
  // Puts the function, or null, into its place in the binding.
  void (*store)(CDebugBinding& binding, void* function);
};

// In the order in which a binding fetches them.
std::span<const LibraryFunction, kLibraryFunctionCount> LibraryFunctions();

// The table as a bound host fills it: a dispatch function in every entry but the 18 that stay null. A
// dispatch function answers 0 when the current host isn't bound.
DebugEntries DispatchFunctions();

}  // namespace pvw
