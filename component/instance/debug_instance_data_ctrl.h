// A pane with the host's debug services and a font.
#pragma once

#include "component/instance/instance_data_ctrl.h"
#include "host/debug_interfaces.h"
#include "platform/gui/graphics.h"

namespace pvw {

class CPvwDebugInstanceDataCtrl : public CPvwInstanceDataCtrl, public CDebugInterfaces {
 public:
  CPvwDebugInstanceDataCtrl(IQComponentHost* component_host, CUiRegistrar* registrar,
                            std::uint32_t option_flags)
      : CPvwInstanceDataCtrl(component_host, registrar, option_flags), CDebugInterfaces(component_host) {}

  static const platform::MessageTable kMessages;

  virtual void OnTargetConnected() {}
  virtual void OnTargetDisconnected() {}

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

  platform::CFont font;

 private:
  platform::LRESULT OnCreate(const platform::MSG& msg);
  platform::LRESULT OnMeasureItem(const platform::MSG& msg);
};

}  // namespace pvw
