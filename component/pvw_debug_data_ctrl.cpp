#include "component/pvw_debug_data_ctrl.h"

namespace pvw {

using platform::Status;

Status CPvwDebugDataCtrl::OnEvent(const QEventRecord* event) {
  if (view != nullptr) {
    if (event->id == EVENT_TARGET_CONNECTED) {
      view->OnTargetConnected();
    } else if (event->id == EVENT_TARGET_DISCONNECTED) {
      view->OnTargetDisconnected();
    }
  }
  return CPvwDataCtrl::OnEvent(event);
}

Status CPvwDebugDataCtrl::Connect(IQComponentHost* component_host, std::int16_t flag) {
  if (flag != 0) Attach(component_host);
  return CPvwDataCtrl::Connect(component_host, flag);
}

Status CPvwDebugDataCtrl::Disconnect(std::int16_t flag) {
  const Status status = CPvwDataCtrl::Disconnect(flag);
  if (flag != 0) Detach();
  return status;
}

}  // namespace pvw
