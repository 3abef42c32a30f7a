// The commands of a pane that act on the host's toolbar around it.

#include "view/io_instance_ctrl.h"

namespace pvw {

bool CPvwIOInstanceCtrl::IsToolbarShown() const {
  return uiRegistrar != nullptr && uiRegistrar->IsToolbarShown(GetParentHandle());
}

void CPvwIOInstanceCtrl::OnShowToolbar() {
  if (uiRegistrar != nullptr) uiRegistrar->ShowToolbar(GetParentHandle(), !IsToolbarShown());
}

void CPvwIOInstanceCtrl::OnUpdateShowToolbar(platform::CCmdUI& ui) {
  ui.SetCheck(IsToolbarShown());
}

void CPvwIOInstanceCtrl::OnCustomizeToolbar() {
  if (uiRegistrar != nullptr) uiRegistrar->CustomizeToolbar(GetParentHandle());
}

void CPvwIOInstanceCtrl::OnUpdateCustomizeToolbar(platform::CCmdUI& ui) {
  ui.Enable(IsToolbarShown());
}

}  // namespace pvw
