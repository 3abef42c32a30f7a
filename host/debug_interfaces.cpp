#include "host/debug_interfaces.h"

#include "host/ids.h"

namespace pvw {

namespace {

template <typename Service>
void Ask(IQComponentHost* host, const platform::GUID& id, Service*& field) {
  void* service = field;
  host->GetService(&id, &service);
  field = static_cast<Service*>(service);
}

}  // namespace

void CDebugInterfaces::Attach(IQComponentHost* host) {
  if (host == nullptr) return;
  // The host sees these in another order than the fields stand in.
  Ask(host, IID_IQDebugSession, debugSession);
  Ask(host, IID_IQDebugExtra, debugExtra);
  Ask(host, IID_IQDebugger, debugger);
  Ask(host, IID_IQTargetMemory, targetMemory);
  Ask(host, IID_IQBlockMemory, blockMemory);
  Ask(host, IID_IQBreakpoints, breakpoints);
  Ask(host, IID_IQCpuRegisters, cpuRegisters);
  Ask(host, IID_IQDebugExtra2, debugExtra2);
}

void CDebugInterfaces::Detach() {
  debugSession = nullptr;
  debugExtra = nullptr;
  debugger = nullptr;
  breakpoints = nullptr;
  cpuRegisters = nullptr;
  debugExtra2 = nullptr;
  targetMemory = nullptr;
  blockMemory = nullptr;
}

bool CDebugInterfaces::IsTargetRunning() {
  return debugSession != nullptr && !platform::Failed(debugSession->IsTargetRunning());
}

}  // namespace pvw
