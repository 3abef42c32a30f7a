#include "view/dlg_select_register.h"

#include <cstddef>

#include "frame/controls/tree_grid_state.h"
#include "platform/gui/common_dialogs.h"
#include "resources/ids.h"
#include "view/check_rules.h"
#include "view/record_rows.h"

namespace pvw {

using platform::LRESULT;
using platform::NMHDR;
using platform::OnCommand;
using platform::OnNotify;
using platform::SECTreeCtrl;
using Dialog = CDlgSelectRegister;

namespace {

constexpr platform::UINT kTree = 13006;
constexpr platform::UINT kOk = 13007;
constexpr platform::UINT kCancel = 13008;
constexpr platform::UINT kCheckAll = 13016;
constexpr platform::UINT kUncheckAll = 13017;

}  // namespace

const platform::MessageTable CDlgSelectRegister::kMessages{
    &CDlgWithHelp::kMessages,
    {
        // Buttons.
        OnCommand<&Dialog::OnOK>(kOk),
        OnCommand<&Dialog::OnCancel>(kCancel),
        OnCommand<&Dialog::OnCheckAll>(kCheckAll),
        OnCommand<&Dialog::OnUncheckAll>(kUncheckAll),
        // Notifications of the tree.
        OnNotify<&Dialog::OnItemExpanding>(kTree, platform::TVN_ITEMEXPANDING),
        OnNotify<&Dialog::OnTreeClick>(kTree, platform::NM_CLICK),
        OnNotify<&Dialog::OnTreeKeyDown>(kTree, platform::TVN_KEYDOWN),
    }};

CDlgSelectRegister::CDlgSelectRegister(CIOData* data, CIODataFile* file, IQDebugger*, platform::CWnd* parent)
    : CDlgWithHelp(IDD_SELECT_REGISTER, parent), m_pIOFile(file), m_pIOData(data) {}

void CDlgSelectRegister::DoDataExchange(platform::CDataExchange& dx) {
  CDlgWithHelp::DoDataExchange(dx);
  platform::DDX_Control(dx, kTree, m_tree);
}

// Rows ---------------------------------------------------------------------------------------------------

void CDlgSelectRegister::OnInitDialog() {
  CDlgWithHelp::OnInitDialog();
  LoadRowImages(m_images);
  m_tree.SetImageList(&m_images);
  // Without the style of check boxes: they show, and the dialog alone turns them.
  m_tree.SetTreeStyle(SECTreeCtrl::kHasButtons | SECTreeCtrl::kHasLines | SECTreeCtrl::kLinesAtRoot);
  m_tree.SetGridStyle(SECTreeCtrl::kFullRow);
  for (std::size_t i = 0; CIORec* const module = m_pIOData->GetModule(i); ++i) {
    AddRow(*module, platform::kTreeRoot);
  }
  const platform::WaitCursor wait;
  for (HTREEITEM row = m_tree.GetRootItem(); row != 0; row = m_tree.GetNextSiblingItem(row)) {
    FillModule(row, **m_itemMap.Find(row));
    if (!Exists()) return;
  }
}

CIORec* CDlgSelectRegister::FindRecord(HTREEITEM item) const {
  CIORec* const* const record = m_itemMap.Find(item);
  return record != nullptr ? *record : nullptr;
}

platform::HTREEITEM CDlgSelectRegister::AddRow(CIORec& record, HTREEITEM parent) {
  const HTREEITEM row = m_tree.InsertItem(record.GetName(), FirstImage(record), parent);
  m_tree.SetItemCheck(row, record.IsSelected());
  m_itemMap.Set(row, &record);
  return row;
}

void CDlgSelectRegister::AddChildRows(CIORec& record, HTREEITEM row) {
  RecordRows{m_tree, *m_pIOFile, *m_pIOData}.AddBelow(record, row, [this](CIORec& child, HTREEITEM parent) {
    const HTREEITEM added = AddRow(child, parent);
    child.UpdateEnabled();
    return added;
  });
}

void CDlgSelectRegister::FillModule(HTREEITEM row, CIORec& record) {
  if (record.AreChildrenKnown()) {
    AddChildRows(record, row);
    return;
  }
  const bool loaded = record.LoadChildren(m_pIOFile, nullptr);
  if (!Exists()) return;
  RecordRows{m_tree, *m_pIOFile, *m_pIOData}.ApplySelection(row, record);
  if (loaded) {
    AddChildRows(record, row);
    if (!Exists()) return;
  } else {
    m_tree.SetItemHasCheck(row, false);
    record.SetSelected(false);
  }
  if (!loaded || HasNoChildren(record)) m_tree.SetItemImage(row, LeafImage(record));
}

LRESULT CDlgSelectRegister::OnItemExpanding(NMHDR& header) {
  const auto& notification = reinterpret_cast<const platform::NMTREEVIEW&>(header);
  const HTREEITEM row = notification.item;
  CIORec* const record = FindRecord(row);
  if (notification.action != platform::TVE_EXPAND || record == nullptr || record->AreChildrenKnown())
    return 0;
  m_tree.DeleteItem(m_tree.GetChildItem(row));
  const bool loaded = record->LoadChildren(m_pIOFile, nullptr);
  if (!Exists()) return 0;
  if (loaded) {
    RecordRows{m_tree, *m_pIOFile, *m_pIOData}.ApplySelection(row, *record);
    AddChildRows(*record, row);
    if (!Exists()) return 0;
  }
  if (!loaded || HasNoChildren(*record)) m_tree.SetItemImage(row, LeafImage(*record));
  return 0;
}

// Checks -------------------------------------------------------------------------------------------------

LRESULT CDlgSelectRegister::OnTreeClick(NMHDR&) {
  const platform::HitTestInfo hit = m_tree.HitTest(platform::GetMessagePos(m_tree));
  if (hit.flags & platform::TVHT_ONITEMCHECK) Toggle(hit.item);
  return 0;
}

LRESULT CDlgSelectRegister::OnTreeKeyDown(NMHDR& header) {
  const auto& notification = reinterpret_cast<const platform::NMTREEVIEW&>(header);
  if (notification.key == platform::VK_SPACE) Toggle(m_tree.GetSelectedItem());
  return 0;
}

void CDlgSelectRegister::Toggle(HTREEITEM row) {
  if (m_tree.GetItemHasCheck(row)) ToggleCheckOf(m_tree, row);
}

void CDlgSelectRegister::OnCheckAll() {
  SetAllChecks(m_tree, true);
}

void CDlgSelectRegister::OnUncheckAll() {
  SetAllChecks(m_tree, false);
}

void CDlgSelectRegister::OnOK() {
  for (HTREEITEM row = m_tree.GetRootItem(); row != 0; row = NextRow(m_tree, row, true)) {
    if (CIORec* const record = FindRecord(row)) record->SetSelected(m_tree.GetItemCheck(row));
  }
  CDlgWithHelp::OnOK();
}

}  // namespace pvw
