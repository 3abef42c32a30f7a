// What leaves a pane: its rows to a file or a printer, one row's address by the mouse.

#include <string>

#include "component/services/module_state.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/gui/common_dialogs.h"
#include "resources/ids.h"
#include "support/path_text.h"
#include "view/drag_source.h"
#include "view/io_instance_ctrl.h"

namespace pvw {

void CPvwIOInstanceCtrl::OnPrint() {
  const CModuleState state;
  m_tree.Print();
}

void CPvwIOInstanceCtrl::OnSaveToFile() {
  const CModuleState state;
  platform::FileDialogRequest request;
  request.save = true;
  request.default_extension = "txt";
  request.filter = "Text File (*.txt)|*.txt|All Files (*.*)|*.*||";
  request.directory = m_pFrame->GetSaveFileDir();
  request.name = m_pFrame->GetSaveFileName();
  request.overwrite_prompt = true;
  request.path_must_exist = true;
  const platform::HWND self = GetHandle();
  const auto path = platform::RunFileDialog(request);
  if (!path || !platform::IsWindow(self)) return;
  if (!m_tree.DumpToFile(*path)) {
    platform::MessageBox(platform::LoadString(IDS_SAVE_FAILED), platform::MB_OK);
    return;
  }
  const std::string name = GetFileNameOf(*path);
  const std::size_t behind = name.size() + 1;  // with the last backslash
  m_pFrame->SetSaveFileDir(path->substr(0, path->size() > behind ? path->size() - behind : 0));
  m_pFrame->SetSaveFileName(name);
}

platform::LRESULT CPvwIOInstanceCtrl::OnBeginDrag(platform::NMHDR& header) {
  const auto& notification = reinterpret_cast<const platform::NMTREEVIEW&>(header);
  const CIORec* const record = FindRecord(notification.item);
  if (record == nullptr) return 0;
  const CModuleState state;
  const Watch<CPvwIOInstanceCtrl> rows(this);
  // The text as a receiver expects it, with its end.
  const std::string text = record->GetAddressText(0) + '\0';
  if (!rows.Stands()) return 0;
  CCtrlDropSource source(true);
  platform::RunDrag(m_tree, text, source);
  return 0;
}

}  // namespace pvw
