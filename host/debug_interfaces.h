// The host's debug services in one object, a base wherever debugger access is needed.
#pragma once

#include "host/component_host.h"
#include "host/debug_services.h"

namespace pvw {

class CDebugInterfaces {
 public:
  // Attaches when there is a host.
  explicit CDebugInterfaces(IQComponentHost* host = nullptr) { Attach(host); }
  CDebugInterfaces(const CDebugInterfaces&) = delete;
  CDebugInterfaces& operator=(const CDebugInterfaces&) = delete;
  virtual ~CDebugInterfaces() { Detach(); }

  // Asks the host for the eight services; one that it doesn't give keeps its field as it was. Nothing for
  // null.
  void Attach(IQComponentHost* host);
  void Detach();
  // True when the host says that the target runs; false without the service.
  bool IsTargetRunning();

 protected:
  // Not owned, good until the component disconnects.
  IQDebugSession* debugSession = nullptr;
  IQDebugExtra* debugExtra = nullptr;
  IQDebugger* debugger = nullptr;
  IQBreakpoints* breakpoints = nullptr;
  IQCpuRegisters* cpuRegisters = nullptr;
  IQDebugExtra2* debugExtra2 = nullptr;
  IQTargetMemory* targetMemory = nullptr;
  IQBlockMemory* blockMemory = nullptr;
};

}  // namespace pvw
