// A view's sink with the host's debug services.
#pragma once

#include "frame/format_view_ctrl.h"
#include "host/debug_interfaces.h"

namespace pvw {

class CUiDebugCommandSink : public CPvwFormatViewCtrl, public CDebugInterfaces {
 public:
  CUiDebugCommandSink(IQComponentHost* host, CUiRegistrar* registrar)
      : CPvwFormatViewCtrl(host, registrar), CDebugInterfaces(host) {}

  // Each tells every pane, in order.
  virtual void OnTargetConnected();
  virtual void OnTargetDisconnected();
};

}  // namespace pvw
