// Editing a value: in its cell, and in a dialog.
//
// An edit of a cell ends in one of three ways. Enter, and the focus leaving it, hand its text to
// OnEndCellEdit. A click on the grid commits first and closes the edit then. Escape closes it, cancelled. A
// message box takes the focus from the edit and so closes it; a commit that is about to show one has marked
// the edit as cancelled before, so that there is one message and one attempt.
//
// Whatever shows a message or calls the host may end with the pane's window destroyed, or the row deleted:
// both are asked for again before anything goes on.

#include <cstddef>
#include <string>
#include <tuple>
#include <utility>

#include "host/events.h"
#include "model/io_rec_bitfield.h"
#include "platform/base/bstr.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/gui/list_edit.h"
#include "resources/ids.h"
#include "support/error_manager.h"
#include "support/message_text.h"
#include "view/dlg_edit_memory.h"
#include "view/hex_value_text.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_ids.h"

namespace pvw {

namespace {

constexpr const char* kInvalidHexValue = "Invalid Hex Value";
// The access text of a register that is read only.
constexpr std::string_view kReadOnly = "R";

// Where a double click means the row.
constexpr platform::UINT kEditingParts = platform::TVHT_ONITEMICON | platform::TVHT_ONITEMLABEL |
                                         platform::TVHT_ONITEMINDENT | platform::TVHT_ONCOLUMN;
constexpr platform::UINT kOtherParts = platform::TVHT_NOWHERE | platform::TVHT_ONITEMBUTTON;

void FireMemoryChanged(IQComponentHost* host) {
  if (host == nullptr) return;
  const QEventRecord event{EVENT_MEMORY_CHANGED, 0};
  host->FireEvent(&event);
}

bool IsBitfield(const CIORec& record) {
  return dynamic_cast<const CIORecBitfield*>(&record) != nullptr;
}

bool IsGone(platform::HWND pane) {
  return !platform::IsWindow(pane);
}

}  // namespace

// Texts and values ---------------------------------------------------------------------------------------

std::optional<std::uint64_t> CPvwIOInstanceCtrl::ParseValueText(std::string_view text) const {
  IQComponentHost* const component_host = host;
  const platform::ScopedBstr wide(text);
  std::uint64_t value = 0;
  const platform::Status status =
      numberFormat != nullptr ? numberFormat->ParseValue(wide.Get(), &value) : platform::E_FAIL;
  if (!platform::Failed(status)) return value;
  ShowStatus(component_host, status);
  return std::nullopt;
}

CIORec* CPvwIOInstanceCtrl::WriteValue(HTREEITEM item, std::uint64_t value) {
  const platform::HWND self = GetHandle();
  CIORec* const record = FindRecord(item);
  if (record == nullptr || !record->SetValue(debugger, value) || IsGone(self)) return nullptr;
  return FindRecord(item) == record ? record : nullptr;
}

bool CPvwIOInstanceCtrl::TakeHexText(std::string& text) {
  if (!m_tree.GetEditText(text)) return false;
  if (IsHexText(text)) return true;
  m_bEditCancelled = true;
  platform::MessageBox(kInvalidHexValue, platform::MB_OK);
  return false;
}

CIORec* CPvwIOInstanceCtrl::WriteEditText(HTREEITEM item, std::string_view text, std::uint64_t& value) {
  const platform::HWND self = GetHandle();
  m_bEditCancelled = true;
  const std::optional<std::uint64_t> parsed = ParseValueText(text);
  if (!parsed || IsGone(self)) return nullptr;
  m_committedValue = parsed;
  value = *parsed;
  CIORec* const record = WriteValue(item, value);
  // An edit that is still open has seen no message.
  if (!IsGone(self)) m_bEditCancelled = false;
  return record;
}

// The edit of a cell -------------------------------------------------------------------------------------

platform::LRESULT CPvwIOInstanceCtrl::OnBeginCellEdit(platform::NMHDR& header) {
  m_editCell = reinterpret_cast<const platform::NMLVDISPINFO&>(header).item;
  const CIORec* const record = FindRecord(m_tree.GetSelectedItem());
  if (record == nullptr || record->IsMissing()) return 1;
  m_editItem = m_tree.GetItemAtRow(static_cast<std::size_t>(m_editCell.iItem));
  if (m_editCell.iSubItem != kValueColumn || !record->IsEditable() || !record->IsEnabled()) return 1;
  m_bEditing = true;
  m_bEditCancelled = false;
  m_committedValue.reset();
  return 0;
}

platform::LRESULT CPvwIOInstanceCtrl::OnEndCellEdit(platform::NMHDR& header) {
  platform::LVITEM& cell = reinterpret_cast<platform::NMLVDISPINFO&>(header).item;
  const bool was_editing = std::exchange(m_bEditing, false);
  if (cell.iSubItem == kValueColumn) return EndValueEdit(cell) ? 1 : 0;

  const platform::HWND self = GetHandle();
  const HTREEITEM item = m_tree.GetItemAtRow(static_cast<std::size_t>(cell.iItem));
  if (was_editing && (cell.mask & platform::LVIF_TEXT) != 0) WriteEditToValue(item);
  if (!IsGone(self)) cell.pszText = m_tree.GetItemText(item, cell.iSubItem);
  return 1;
}

// True when the cell is to take the text that is in `cell` then.
bool CPvwIOInstanceCtrl::EndValueEdit(platform::LVITEM& cell) {
  const bool cancelled = std::exchange(m_bEditCancelled, false);
  const std::optional<std::uint64_t> committed = std::exchange(m_committedValue, std::nullopt);
  if (cancelled || (cell.mask & platform::LVIF_TEXT) == 0) return false;

  const platform::HWND self = GetHandle();
  IQComponentHost* const component_host = host;
  const HTREEITEM item = m_tree.GetItemAtRow(static_cast<std::size_t>(cell.iItem));
  const std::optional<std::uint64_t> value = ParseValueText(cell.pszText);
  if (!value || IsGone(self)) return false;
  if (value == committed) {
    // A commit has tried this value already. A register that reads as something else than what was written
    // to it would look changed, and get a second write.
    if (CIORec* const record = FindRecord(item)) std::ignore = record->ReadValue(debugger);
    return false;
  }
  const CIORec* record = WriteValue(item, *value);
  if (record == nullptr || record->GetAccessText() == kReadOnly) return false;
  FireMemoryChanged(component_host);
  if (IsGone(self) || FindRecord(item) != record) return false;
  std::string shown = record->GetValueText();
  if (IsGone(self)) return false;
  cell.pszText = std::move(shown);
  return true;
}

void CPvwIOInstanceCtrl::WriteEditToValue(HTREEITEM item) {
  const platform::HWND self = GetHandle();
  IQComponentHost* const component_host = host;
  std::string text;
  if (!TakeHexText(text)) return;
  std::uint64_t value = 0;
  const CIORec* const record = WriteEditText(item, text, value);
  if (record == nullptr) return;
  FireMemoryChanged(component_host);
  if (IsGone(self) || FindRecord(item) != record) return;
  m_tree.SetItemText(
      item, kValueColumn,
      IsBitfield(*record) ? std::to_string(static_cast<std::int32_t>(value)) : record->GetValueText());
}

// Names are never edited, so this speaks of the cell whose edit is open.
platform::LRESULT CPvwIOInstanceCtrl::OnEndLabelEdit(platform::NMHDR& header) {
  platform::LVITEM& cell = reinterpret_cast<platform::NMLVDISPINFO&>(header).item;
  std::string name = m_tree.GetCellText(static_cast<std::size_t>(cell.iItem), kNameColumn);
  cell = m_editCell;
  cell.pszText = std::move(name);  // what the row's name is to be
  std::string text;
  if (!m_bEditing || !m_tree.GetEditText(text) || !IsHexText(text)) return 1;

  const platform::HWND self = GetHandle();
  IQComponentHost* const component_host = host;
  const HTREEITEM item = m_editItem;
  std::uint64_t value = 0;
  const CIORec* const record = WriteEditText(item, text, value);
  if (record == nullptr) return 0;
  FireMemoryChanged(component_host);
  if (IsGone(self) || FindRecord(item) != record) return 0;
  const std::string shown = record->GetValueText();
  if (IsGone(self)) return 0;
  m_tree.SetItemText(item, kValueColumn, shown);
  return 1;
}

void CPvwIOInstanceCtrl::CommitCellEdit(HTREEITEM item) {
  IQComponentHost* const component_host = host;
  std::string text;
  if (!TakeHexText(text)) return;
  std::uint64_t value = 0;
  const CIORec* const record = WriteEditText(item, text, value);
  if (record == nullptr) return;
  m_tree.SetItemText(item, kValueColumn, IsBitfield(*record) ? text : NormalizeHexText(text));
  FireMemoryChanged(component_host);
}

void CPvwIOInstanceCtrl::EndCellEdit() {
  if (!m_bEditing) return;
  const platform::HWND self = GetHandle();
  m_bEditing = false;
  if (!m_bEditCancelled) CommitCellEdit(m_editItem);
  if (IsGone(self)) return;
  platform::SetFocus(m_tree.GetHandle());
  if (IsGone(self)) return;
  // One that didn't have the focus is open still.
  m_tree.EndEdit();
  if (IsGone(self)) return;
  platform::SetFocus(self);
  if (!IsGone(self)) RefreshLabels();
}

void CPvwIOInstanceCtrl::RefreshLabels() {
  m_itemMap.ForEach([this](HTREEITEM item, CIORec* record) {
    record->UpdateEnabled();
    m_tree.SetItemText(item, kNameColumn, record->GetName());
  });
}

bool CPvwIOInstanceCtrl::PreTranslateMessage(const platform::MSG& msg) {
  if (msg.message == platform::WM_KEYDOWN && m_bEditing) {
    if (msg.wParam == platform::VK_ESCAPE) {
      m_bEditCancelled = true;
      EndCellEdit();
      return true;
    }
    if (msg.wParam == platform::VK_DELETE) {
      // The host may have a command on that key.
      platform::SECListEdit& edit = *m_tree.GetListEdit();
      platform::MSG to_edit = msg;
      to_edit.hwnd = edit.GetHandle();
      if (edit.Exists()) edit.WindowProc(to_edit);
      return true;
    }
  }
  return CPvwDebugInstanceDataCtrl::PreTranslateMessage(msg);
}

platform::LRESULT CPvwIOInstanceCtrl::OnClick(platform::NMHDR&) {
  EndCellEdit();
  return 0;
}

// The dialog ---------------------------------------------------------------------------------------------

platform::LRESULT CPvwIOInstanceCtrl::OnDblClick(platform::NMHDR&) {
  const platform::POINT point = platform::GetMessagePos(m_tree);
  EditSelectedRow(&point);
  return 1;
}

platform::LRESULT CPvwIOInstanceCtrl::OnReturn(platform::NMHDR&) {
  if (!m_bEditing) EditSelectedRow(nullptr);
  return 0;
}

void CPvwIOInstanceCtrl::EditSelectedRow(const platform::POINT* point) {
  HTREEITEM module = m_tree.GetRootItem();
  while (module != 0 && !m_tree.HasSelectedDescendant(module)) module = m_tree.GetNextSiblingItem(module);
  if (module == 0) return;
  CIORec* const record = FindRecord(m_tree.GetSelectedItem());
  if (record == nullptr) return;
  if (!record->IsEditable() || !record->IsEnabled()) {
    platform::MessageBox(FormatMessageText(platform::LoadString(IDS_NOT_EDITABLE), record->GetName()),
                         platform::MB_ICONEXCLAMATION,
                         FormatMessageText(platform::LoadString(IDS_NOT_EDITABLE_CAPTION),
                                           m_tree.GetItemText(module, kNameColumn)));
    return;
  }
  if (point != nullptr) {
    const platform::UINT parts = m_tree.HitTest(*point).flags;
    if ((parts & kEditingParts) == 0 || (parts & kOtherParts) != 0) return;
  }
  if (record->IsMissing()) return;
  // The view may be closed while the dialog is open. A value that it still writes is news all the same; the
  // host is there, since the record went with it otherwise.
  IQComponentHost* const component_host = host;
  const EditMemoryScope scope;
  if (record->EditValue(debugger, numberFormat, component_host)) FireMemoryChanged(component_host);
}

}  // namespace pvw
