#include "component/services/module_state.h"

namespace pvw {

namespace {

// Lies in the module that this file is linked into.
const char kHere = 0;

}  // namespace

CModuleState::CModuleState() {
  if (platform::CWinApp* app = platform::CWinApp::Of(&kHere)) m_scope.emplace(*app);
}

platform::HMODULE ComponentModule() {
  return platform::ModuleOf(&kHere);
}

}  // namespace pvw
