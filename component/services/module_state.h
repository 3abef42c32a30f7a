// The component as a module: its handle, and a scope in which its code is what runs.
#pragma once

#include <optional>

#include "platform/base/app.h"
#include "platform/base/module.h"

namespace pvw {

// The component's application object is the current one until the scope's end, on every path. Whatever makes
// or destroys a window or loads a resource stands in such a scope: the host may be in the middle of another
// component's call.
class CModuleState {
 public:
  CModuleState();
  CModuleState(const CModuleState&) = delete;
  CModuleState& operator=(const CModuleState&) = delete;
  ~CModuleState() = default;

 private:
  std::optional<platform::ScopedModuleState> m_scope;  // empty where the module has no application object
};

// By which the component names its own resources to the host.
platform::HMODULE ComponentModule();

}  // namespace pvw
