#include "platform/gui/tree_ctrl.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/gui/display.h"
#include "platform/gui/list_edit.h"
#include "platform/gui/tree_rows.h"

namespace platform {

namespace {

constexpr int kWidest = 32767;

}  // namespace

const MessageTable SECTreeCtrl::kMessages{&CWnd::kMessages,
                                          {
                                              // Window.
                                              OnMessage<&SECTreeCtrl::OnDestroy>(WM_DESTROY),
                                              OnMessage<&SECTreeCtrl::OnSize>(WM_SIZE),
                                              OnMessage<&SECTreeCtrl::OnFocusMoved>(WM_SETFOCUS),
                                              OnMessage<&SECTreeCtrl::OnFocusMoved>(WM_KILLFOCUS),
                                              OnMessage<&SECTreeCtrl::OnSetFont>(WM_SETFONT),
                                              OnMessage<&SECTreeCtrl::OnScroll>(WM_HSCROLL),
                                              OnMessage<&SECTreeCtrl::OnScroll>(WM_VSCROLL),
                                              OnMessage<&SECTreeCtrl::OnTimer>(WM_TIMER),
                                              // Mouse.
                                              OnMessage<&SECTreeCtrl::OnLButtonDown>(WM_LBUTTONDOWN),
                                              OnMessage<&SECTreeCtrl::OnLButtonDblClk>(WM_LBUTTONDBLCLK),
                                              OnMessage<&SECTreeCtrl::OnLButtonUp>(WM_LBUTTONUP),
                                              OnMessage<&SECTreeCtrl::OnMouseMove>(WM_MOUSEMOVE),
                                              OnMessage<&SECTreeCtrl::OnRButtonDown>(WM_RBUTTONDOWN),
                                              OnMessage<&SECTreeCtrl::OnRButtonUp>(WM_RBUTTONUP),
                                              OnMessage<&SECTreeCtrl::OnContextMenu>(WM_CONTEXTMENU),
                                              OnMessage<&SECTreeCtrl::OnMouseWheel>(WM_MOUSEWHEEL),
                                              // Keyboard.
                                              OnMessage<&SECTreeCtrl::OnKeyDown>(WM_KEYDOWN),
                                              OnMessage<&SECTreeCtrl::OnChar>(WM_CHAR),
                                          }};

SECTreeCtrl::SECTreeCtrl()
    : m_rows(std::make_unique<TreeRows>()), m_columns(1), m_edit(std::make_unique<SECListEdit>()) {}

SECTreeCtrl::~SECTreeCtrl() = default;

// Styles -------------------------------------------------------------------------------------------------

void SECTreeCtrl::SetGridStyle(UINT style) {
  m_grid_style = style;
  Invalidate();
}

void SECTreeCtrl::SetTreeStyle(UINT style) {
  m_tree_style = style;
  Invalidate();
}

// Columns ------------------------------------------------------------------------------------------------

void SECTreeCtrl::InsertColumn(int index, std::string_view title, TextAlign align, int width) {
  if (GetColumnCount() == kMostColumns) return;
  const int place = std::clamp(index, 0, GetColumnCount());
  m_columns.insert(m_columns.begin() + place, {std::string(title), align, std::clamp(width, 0, kWidest)});
  LayoutChanged();
}

int SECTreeCtrl::GetColumnWidth(int column) const {
  return column >= 0 && column < GetColumnCount() ? m_columns[static_cast<std::size_t>(column)].width : 0;
}

void SECTreeCtrl::SetColumnWidth(int column, int width) {
  if (column < 0 || column >= GetColumnCount()) return;
  m_columns[static_cast<std::size_t>(column)].width = std::clamp(width, 0, kWidest);
  LayoutChanged();
}

std::string SECTreeCtrl::GetColumnTitle(int column) const {
  return column >= 0 && column < GetColumnCount() ? m_columns[static_cast<std::size_t>(column)].title : "";
}

void SECTreeCtrl::SetColumnTitle(int column, std::string_view title) {
  if (column < 0 || column >= GetColumnCount()) return;
  m_columns[static_cast<std::size_t>(column)].title = title;
  Invalidate();
}

// Rows ---------------------------------------------------------------------------------------------------

// TreeRows::kNone for the root as for a row that is gone.
std::uint32_t SECTreeCtrl::RowOf(HTREEITEM item) const {
  return item == kTreeRoot ? TreeRows::kNone : m_rows->Find(item);
}

// Null for the root as for a row that is gone.
TreeRow* SECTreeCtrl::Data(HTREEITEM item) const {
  const TreeRows::Row row = RowOf(item);
  return row != TreeRows::kNone ? &(*m_rows)[row] : nullptr;
}

HTREEITEM SECTreeCtrl::ItemOf(std::uint32_t row) const {
  return row == TreeRows::kRoot ? 0 : m_rows->HandleOf(row);
}

HTREEITEM SECTreeCtrl::InsertItem(std::string_view text, int image, HTREEITEM parent) {
  const TreeRows::Row above = m_rows->Find(parent);
  if (above == TreeRows::kNone) return 0;
  const std::size_t shown = GetRowCount();
  const TreeRows::Row row = m_rows->Append(above);
  if (row == TreeRows::kNone) return 0;
  m_rows->SetText(row, 0, text);
  (*m_rows)[row].image = image;
  (*m_rows)[row].has_check = (m_tree_style & kCheckBoxes) != 0;
  if (GetRowCount() != shown) {
    LayoutChanged();
  } else {
    Invalidate();
  }
  return m_rows->HandleOf(row);
}

void SECTreeCtrl::DeleteItem(HTREEITEM item) {
  if (!HasItem(item)) return;
  const HWND self = GetHandle();
  if (m_edit_item == item || IsBelow(m_edit_item, item)) {
    EndEdit(false);
    if (IsGone(self) || !HasItem(item)) return;
  }
  m_rows->Erase(RowOf(item));
  if (!HasItem(m_selected)) m_selected = 0;
  LayoutChanged();
}

void SECTreeCtrl::DeleteAllItems() {
  const HWND self = GetHandle();
  EndEdit(false);
  if (IsGone(self)) return;
  m_rows->Clear();
  m_selected = 0;
  LayoutChanged();
}

bool SECTreeCtrl::HasItem(HTREEITEM item) const {
  return RowOf(item) != TreeRows::kNone;
}

HTREEITEM SECTreeCtrl::GetRootItem() const {
  return ItemOf((*m_rows)[TreeRows::kRoot].first_child);
}

HTREEITEM SECTreeCtrl::GetChildItem(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr ? ItemOf(row->first_child) : 0;
}

HTREEITEM SECTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr ? ItemOf(row->next) : 0;
}

HTREEITEM SECTreeCtrl::GetParentItem(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr ? ItemOf(row->parent) : 0;
}

bool SECTreeCtrl::ItemHasChildren(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr && row->first_child != TreeRows::kRoot;
}

bool SECTreeCtrl::IsExpanded(HTREEITEM item) const {
  return HasItem(item) && m_rows->Order().IsOpen(RowOf(item));
}

int SECTreeCtrl::GetItemDepth(HTREEITEM item) const {
  return HasItem(item) ? m_rows->Order().Depth(RowOf(item)) : 0;
}

std::size_t SECTreeCtrl::GetRowCount() const {
  return m_rows->Order().Size();
}

HTREEITEM SECTreeCtrl::GetItemAtRow(std::size_t row) const {
  return row < GetRowCount() ? m_rows->HandleOf(m_rows->Order().At(row)) : 0;
}

int SECTreeCtrl::GetRowOfItem(HTREEITEM item) const {
  if (!HasItem(item)) return -1;
  const std::size_t index = m_rows->Order().IndexOf(RowOf(item));
  return index == RowSequence::kHidden ? -1 : static_cast<int>(index);
}

// Of a row that shows: whether it lies under the other.
bool SECTreeCtrl::IsBelow(HTREEITEM item, HTREEITEM above) const {
  if (GetRowOfItem(item) < 0 || !HasItem(above)) return false;
  const RowSequence& order = m_rows->Order();
  const int depth = order.Depth(RowOf(above));
  return order.Depth(RowOf(item)) > depth && order.AncestorAt(RowOf(item), depth) == RowOf(above);
}

bool SECTreeCtrl::CanExpand(HTREEITEM item, bool open) const {
  return ItemHasChildren(item) && IsExpanded(item) != open;
}

bool SECTreeCtrl::Expand(HTREEITEM item, UINT action) {
  const bool open = action == TVE_EXPAND;
  if (!CanExpand(item, open)) return false;
  const HWND self = GetHandle();
  if (!open && IsBelow(m_edit_item, item)) {
    EndEdit();
    if (IsGone(self) || !CanExpand(item, open)) return false;
  }
  NMTREEVIEW record;
  record.hdr.code = TVN_ITEMEXPANDING;
  record.action = action;
  record.item = item;
  if (NotifyParent(record.hdr) != 0) return false;
  // The owner may have filled or emptied the row, deleted it, or opened it itself.
  if (IsGone(self) || !CanExpand(item, open)) return false;
  if (open) {
    m_rows->Order().Open(RowOf(item));
    LayoutChanged();
    return true;
  }
  const bool moves = IsBelow(m_selected, item);
  m_rows->Order().Close(RowOf(item));
  LayoutChanged();
  if (moves) Select(item, false);
  return true;
}

void SECTreeCtrl::SelectItem(HTREEITEM item) {
  if (item == 0 || HasItem(item)) Select(item, true);
}

void SECTreeCtrl::Select(HTREEITEM item, bool scroll) {
  if (scroll) EnsureVisible(item);
  if (m_selected == item) return;
  m_selected = item;
  Invalidate();
  NMTREEVIEW record;
  record.hdr.code = TVN_SELCHANGED;
  record.item = item;
  NotifyParent(record.hdr);
}

void SECTreeCtrl::EnsureVisible(HTREEITEM item) {
  const int row = GetRowOfItem(item);
  if (row < 0) return;
  const int page = GetPageRows();
  if (row < m_scroll_rows) {
    SetScrollPos(true, row);
  } else if (row - m_scroll_rows >= page) {
    SetScrollPos(true, row - page + 1);
  }
}

LRESULT SECTreeCtrl::NotifyCode(UINT code) {
  NMHDR header;
  header.code = code;
  return NotifyParent(header);
}

// Cells --------------------------------------------------------------------------------------------------

const std::string& SECTreeCtrl::GetItemText(HTREEITEM item, int column) const {
  static const std::string none;
  const TreeRows::Row row = RowOf(item);
  return row != TreeRows::kNone ? m_rows->Text(row, column) : none;
}

void SECTreeCtrl::SetItemText(HTREEITEM item, int column, std::string_view text) {
  if (!HasItem(item) || column < 0 || column >= kMostColumns) return;
  m_rows->SetText(RowOf(item), column, text);
  Invalidate();
}

int SECTreeCtrl::GetItemImage(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr ? row->image : 0;
}

void SECTreeCtrl::SetItemImage(HTREEITEM item, int image) {
  TreeRow* const row = Data(item);
  if (row == nullptr) return;
  row->image = image;
  Invalidate();
}

bool SECTreeCtrl::GetItemFlag(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr && row->flag;
}

void SECTreeCtrl::SetItemFlag(HTREEITEM item, bool flag) {
  if (TreeRow* const row = Data(item)) row->flag = flag;
}

void SECTreeCtrl::SetItemHasCheck(HTREEITEM item, bool has) {
  TreeRow* const row = Data(item);
  if (row == nullptr) return;
  row->has_check = has;
  row->checked = row->checked && has;
  Invalidate();
}

bool SECTreeCtrl::GetItemHasCheck(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr && row->has_check;
}

bool SECTreeCtrl::GetItemCheck(HTREEITEM item) const {
  const TreeRow* const row = Data(item);
  return row != nullptr && row->checked;
}

void SECTreeCtrl::SetItemCheck(HTREEITEM item, bool on) {
  TreeRow* const row = Data(item);
  if (row == nullptr) return;
  row->has_check = true;
  row->checked = on;
  Invalidate();
}

void SECTreeCtrl::ToggleCheck(HTREEITEM item) {
  if ((m_tree_style & kCheckBoxes) == 0 || !GetItemHasCheck(item)) return;
  SetItemCheck(item, !GetItemCheck(item));
  NMTREEVIEW record;
  record.hdr.code = TVN_CHECKCHANGED;
  record.item = item;
  NotifyParent(record.hdr);
}

// Look ---------------------------------------------------------------------------------------------------

void SECTreeCtrl::SetImageList(const CImageList* images) {
  m_images = images;
  Invalidate();
}

void SECTreeCtrl::SetColours(COLORREF text, COLORREF back) {
  m_text_colour = text;
  m_back_colour = back;
  Invalidate();
}

void SECTreeCtrl::SetRowFont(const LOGFONT& font) {
  m_row_font = font;
  Invalidate();
}

LRESULT SECTreeCtrl::OnSetFont(const MSG& msg) {
  const auto* font = reinterpret_cast<const CFont*>(msg.lParam);
  SetRowFont(font != nullptr ? font->Get() : LOGFONT());
  return 0;
}

void SECTreeCtrl::SetLineHeight(int pixels) {
  m_line_height = std::max(pixels, 1);
  LayoutChanged();
}

// Other messages -----------------------------------------------------------------------------------------

LRESULT SECTreeCtrl::OnDestroy(const MSG& msg) {
  // The edit goes with its parent, and its loss of the focus ends nothing any more.
  CloseEdit();
  ForgetPresses();
  return Default(msg, kMessages);
}

LRESULT SECTreeCtrl::OnSize(const MSG& msg) {
  LayoutChanged();
  return Default(msg, kMessages);
}

LRESULT SECTreeCtrl::OnFocusMoved(const MSG& msg) {
  if (msg.message == WM_KILLFOCUS) {
    ForgetPresses();
    m_typed.clear();
  }
  Invalidate();
  return Default(msg, kMessages);
}

bool SECTreeCtrl::DumpToFile(const std::string&) {
  return false;
}

std::string SECTreeCtrl::GetDumpText() {
  return {};
}

}  // namespace platform
