// What a session keeps of a pane.

#include "view/io_instance_ctrl.h"
#include "view/selection_writer.h"

namespace pvw {

namespace {

constexpr std::string_view kSelectionKey = "IOSelection IOWnd0";

}  // namespace

platform::Status CPvwIOInstanceCtrl::SaveState(CSessionStore& store, std::string_view key) {
  if (m_paneIndex == 0) {
    const bool has_rows = m_pOtherPane != nullptr && !m_pOtherPane->m_bRebuildDue;
    store.WriteString(kSelectionKey, has_rows ? SelectionTextOfRows(m_pOtherPane->m_tree)
                                              : SelectionTextOfRecords(*m_pIOData));
  }
  return m_tree.SaveState(store, key);
}

platform::Status CPvwIOInstanceCtrl::LoadState(CSessionStore& store, std::string_view key) {
  if (!m_bStateValid) return platform::S_OK;
  const platform::HWND self = GetHandle();
  const platform::Status status = m_tree.LoadState(store, key);
  // Rows that open tell the user of a faulty file, and the host may close the view meanwhile.
  if (platform::IsWindow(self)) m_pFrame->UpdatePanes();
  return status;
}

}  // namespace pvw
