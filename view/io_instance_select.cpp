// Picking what the second pane shows, and the dialogs that run over a pane's records.

#include <utility>

#include "component/services/module_state.h"
#include "view/dlg_select_register.h"
#include "view/io_instance_ctrl.h"

namespace pvw {

int CPvwIOInstanceCtrl::RunDialog(platform::CDialog& dialog) {
  // The pane may go while the dialog runs, and its list with it.
  struct Entry {
    Entry(CPvwIOInstanceCtrl& its_pane, platform::CDialog& runs)
        : pane(its_pane), window(its_pane.GetHandle()), running(&runs) {
      pane.m_runningDialogs.push_back(running);
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    ~Entry() {
      if (PaneLives()) std::erase(pane.m_runningDialogs, running);
    }
    bool PaneLives() const { return platform::IsWindow(window); }

    CPvwIOInstanceCtrl& pane;
    const platform::HWND window;
    platform::CDialog* const running;
  };
  const CModuleState state;
  const Entry entry(*this, dialog);
  const int result = dialog.DoModal();
  return entry.PaneLives() ? result : static_cast<int>(platform::IDCANCEL);
}

void CPvwIOInstanceCtrl::EndDialogs() {
  for (platform::CDialog* dialog : std::exchange(m_runningDialogs, {})) dialog->DestroyWindow();
}

void CPvwIOInstanceCtrl::OnSelectRegister() {
  const platform::HWND self = GetHandle();
  if (!CheckIOFile() || !platform::IsWindow(self)) return;
  CDlgSelectRegister dialog(m_pIOData, m_pIOFile, debugger, this);
  if (RunDialog(dialog) != static_cast<int>(platform::IDOK)) return;
  CPvwIOInstanceCtrl* const selected = m_paneIndex == 1 ? this : m_pOtherPane;
  if (selected != nullptr) selected->RebuildTree();
}

void CPvwIOInstanceCtrl::OnUpdateSelectRegister(platform::CCmdUI& ui) {
  ui.Enable(!IsTargetRunning());
}

}  // namespace pvw
