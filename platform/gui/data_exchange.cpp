#include "platform/gui/data_exchange.h"

#include "platform/gui/dialog.h"

namespace platform {

void DDX_Control(CDataExchange& dx, UINT id, CWnd& member) {
  if (dx.pass == CDataExchange::Pass::Bind) dx.bound[id] = &member;
}

void DDX_Text(CDataExchange& dx, UINT id, std::string& text) {
  CWnd* control = dx.dialog.GetDlgItem(id);
  if (control == nullptr || dx.pass == CDataExchange::Pass::Bind) return;
  if (dx.pass == CDataExchange::Pass::Save) {
    text = control->GetText();
  } else if (control->GetText() != text) {
    control->SetText(std::string(text));
  }
}

void DDX_Check(CDataExchange& dx, UINT id, bool& checked) {
  CWnd* control = dx.dialog.GetDlgItem(id);
  if (control == nullptr || control->GetKind() != WindowKind::CheckBox) return;
  auto& box = static_cast<CCheckBox&>(*control);
  if (dx.pass == CDataExchange::Pass::Show) box.SetCheck(checked);
  if (dx.pass == CDataExchange::Pass::Save) checked = box.GetCheck();
}

}  // namespace platform
