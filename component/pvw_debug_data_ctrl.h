// A data control with the host's debug services, which tells its view about the target.
#pragma once

#include "component/pvw_data_ctrl.h"
#include "host/debug_interfaces.h"

namespace pvw {

class CPvwDebugDataCtrl : public CPvwDataCtrl, public CDebugInterfaces {
 public:
  platform::Status OnEvent(const QEventRecord* event) override;
  platform::Status Connect(IQComponentHost* component_host, std::int16_t flag) override;
  // The debug services are let go of in any case, unless the flag is 0.
  platform::Status Disconnect(std::int16_t flag) override;
};

}  // namespace pvw
