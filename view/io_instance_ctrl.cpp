#include "view/io_instance_ctrl.h"

#include "resources/ids.h"
#include "view/pane_ids.h"

namespace pvw {

using platform::OnCommand;
using platform::OnMessage;
using platform::OnNotify;
using platform::OnUpdate;
using Pane = CPvwIOInstanceCtrl;

const platform::MessageTable CPvwIOInstanceCtrl::kMessages{
    &CPvwDebugInstanceDataCtrl::kMessages,
    {
        // Lifetime.
        OnMessage<&Pane::OnCreate>(platform::WM_CREATE),
        OnMessage<&Pane::OnDestroy>(platform::WM_DESTROY),
        // Input.
        OnMessage<&Pane::OnSetFocus>(platform::WM_SETFOCUS),
        // What is shown.
        OnCommand<&Pane::OnRefresh>(ID_REFRESH),
        OnCommand<&Pane::OnLockRefresh>(ID_LOCK_REFRESH),
        OnUpdate<&Pane::OnUpdateLockRefresh>(ID_LOCK_REFRESH),
        OnCommand<&Pane::OnLoadIOFile>(ID_LOAD_IO_FILE),
        OnCommand<&Pane::OnSelectRegister>(ID_SELECT_REGISTER),
        OnUpdate<&Pane::OnUpdateSelectRegister>(ID_SELECT_REGISTER),
        // Out of the view.
        OnCommand<&Pane::OnPrint>(ID_PRINT),
        OnCommand<&Pane::OnSaveToFile>(ID_SAVE_TO_FILE),
        // Searching, by menu and by key.
        OnCommand<&Pane::OnFind>(ID_FIND),
        OnCommand<&Pane::OnFind>(ID_FIND_KEY),
        OnCommand<&Pane::OnFindNext>(ID_FIND_NEXT),
        OnUpdate<&Pane::OnUpdateFindNext>(ID_FIND_NEXT),
        OnCommand<&Pane::OnFindNext>(ID_FIND_NEXT_KEY),
        OnUpdate<&Pane::OnUpdateFindNext>(ID_FIND_NEXT_KEY),
        // The host's window around the pane.
        OnCommand<&Pane::OnShowToolbar>(ID_SHOW_TOOLBAR),
        OnUpdate<&Pane::OnUpdateShowToolbar>(ID_SHOW_TOOLBAR),
        OnCommand<&Pane::OnCustomizeToolbar>(ID_CUSTOMIZE_TOOLBAR),
        OnUpdate<&Pane::OnUpdateCustomizeToolbar>(ID_CUSTOMIZE_TOOLBAR),
        OnCommand<&CPvwInstanceDataCtrl::OnAllowDocking>(ID_ALLOW_DOCKING),
        OnUpdate<&CPvwInstanceDataCtrl::OnUpdateAllowDocking>(ID_ALLOW_DOCKING),
        OnCommand<&CPvwInstanceDataCtrl::OnHideWindow>(ID_HIDE_WINDOW),
        // Notifications of the grid.
        OnNotify<&Pane::OnItemExpanding>(kTreeId, platform::TVN_ITEMEXPANDING),
        OnNotify<&Pane::OnSelChanged>(kTreeId, platform::TVN_SELCHANGED),
        OnNotify<&Pane::OnBeginDrag>(kTreeId, platform::TVN_BEGINDRAG),
        OnNotify<&Pane::OnBeginNameEdit>(kTreeId, platform::TVN_BEGINLABELEDIT),
        OnNotify<&Pane::OnEndLabelEdit>(kTreeId, platform::TVN_ENDLABELEDIT),
        OnNotify<&Pane::OnBeginCellEdit>(kTreeId, platform::LVN_BEGINLABELEDIT),
        OnNotify<&Pane::OnEndCellEdit>(kTreeId, platform::LVN_ENDLABELEDIT),
        OnNotify<&Pane::OnClick>(kTreeId, platform::NM_CLICK),
        OnNotify<&Pane::OnDblClick>(kTreeId, platform::NM_DBLCLK),
        OnNotify<&Pane::OnReturn>(kTreeId, platform::NM_RETURN),
    }};

CPvwIOInstanceCtrl::CPvwIOInstanceCtrl(CIODataFile* file, CIOData* data, std::size_t paneIndex,
                                       IQComponentHost* componentHost, CUiRegistrar* registrar, std::uint32_t)
    : CPvwDebugInstanceDataCtrl(componentHost, registrar, 0),
      m_pIOFile(file),
      m_pIOData(data),
      m_paneIndex(paneIndex) {}

CPvwIOInstanceCtrl::~CPvwIOInstanceCtrl() {
  if (Exists()) DestroyPane();
  Watch<CPvwIOInstanceCtrl>::OnGone(this);
}

platform::HWND CPvwIOInstanceCtrl::GetParentHandle() const {
  const CWnd* parent = GetParent();
  return parent != nullptr ? parent->GetHandle() : 0;
}

platform::LRESULT CPvwIOInstanceCtrl::OnSelChanged(platform::NMHDR&) {
  return 1;
}

platform::LRESULT CPvwIOInstanceCtrl::OnBeginNameEdit(platform::NMHDR&) {
  return 1;
}

}  // namespace pvw
