#include "frame/controls/tree_grid_ctrl.h"

#include <algorithm>
#include <memory>

#include "frame/controls/tree_grid_state.h"
#include "frame/controls/tree_print.h"
#include "platform/base/files.h"
#include "platform/base/paths.h"
#include "platform/base/system.h"
#include "platform/gui/common_dialogs.h"
#include "platform/gui/menu.h"

namespace pvw {

using platform::HTREEITEM;
using platform::LRESULT;
using platform::MSG;

namespace {

constexpr platform::COLORREF kRed = 0x0000FF;

std::string WithCrLf(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 64);
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\n', start);
    out += text.substr(start, end - start);
    if (end == std::string_view::npos) break;
    out += "\r\n";
    start = end + 1;
  }
  return out;
}

std::string ReadFile(const std::string& path) {
  const std::optional<std::string> native = platform::ToNativePath(path);
  std::optional<platform::FileContents> contents;
  if (native) contents = platform::ReadNativeFile(*native);
  return contents ? std::move(contents->bytes) : std::string();
}

}  // namespace

const platform::MessageTable CTreeGridCtrl::kMessages{
    &SECTreeCtrl::kMessages,
    {
        platform::OnMessage<&CTreeGridCtrl::OnCommandMessage>(platform::WM_COMMAND),
        platform::OnMessage<&CTreeGridCtrl::OnKillFocus>(platform::WM_KILLFOCUS),
    }};

CTreeGridCtrl::CTreeGridCtrl() {
  SetListEdit(std::make_unique<CTreeListEdit>());
}

// Changed rows -------------------------------------------------------------------------------------------

void CTreeGridCtrl::MarkChanged(HTREEITEM item) {
  if (!HasItem(item) || IsChanged(item)) return;
  m_changedItems.Set(item, m_changeGeneration);
  m_hasChanged = true;
  Invalidate();
}

void CTreeGridCtrl::ClearChanged() {
  if (!m_hasChanged) return;
  m_hasChanged = false;
  if (++m_changeGeneration == 0) {
    m_changedItems.Clear();
    m_changeGeneration = 1;
  }
  Invalidate();
}

platform::COLORREF CTreeGridCtrl::GetRowTextColour(HTREEITEM item, platform::COLORREF normal) const {
  return IsChanged(item) ? kRed : normal;
}

// Rows and edit ------------------------------------------------------------------------------------------

const std::string& CTreeGridCtrl::GetCellText(std::size_t index, int column) const {
  return GetItemText(GetItemAtRow(index), column);
}

bool CTreeGridCtrl::HasSelectedDescendant(HTREEITEM item) const {
  HTREEITEM row = GetSelectedItem();
  if (row == 0 || !HasItem(item)) return false;
  const int shown = GetRowOfItem(row);
  if (shown >= 0) {
    // Among siblings all but one are told by where they show, so a search through them climbs once.
    const HTREEITEM next = GetNextSiblingItem(item);
    if (shown <= GetRowOfItem(item) || (next != 0 && shown >= GetRowOfItem(next))) return false;
  }
  for (int levels = GetItemDepth(row) - GetItemDepth(item); levels > 0; --levels) {
    row = GetParentItem(row);
    if (row == item) return true;
  }
  return false;
}

const CTreeListEdit& CTreeGridCtrl::Edit() const {
  return static_cast<const CTreeListEdit&>(*GetListEdit());
}

bool CTreeGridCtrl::GetEditText(std::string& text) const {
  if (!Edit().Exists()) return false;
  text = Edit().GetText();
  return true;
}

void CTreeGridCtrl::MarkEditClosing() {
  static_cast<CTreeListEdit&>(*GetListEdit()).MarkClosing();
}

LRESULT CTreeGridCtrl::OnKillFocus(const MSG& msg) {
  return Edit().IsClosing() ? 0 : Default(msg, kMessages);
}

// Columns ------------------------------------------------------------------------------------------------

void CTreeGridCtrl::OnHeaderRightClick(platform::POINT point) {
  std::vector<platform::PopupMenuItem> items;
  for (int column = 1; column < GetColumnCount(); ++column) {
    platform::PopupMenuItem& item = items.emplace_back();
    item.text = GetColumnTitle(column);
    item.id = static_cast<platform::UINT>(column);
    item.checked = GetColumnWidth(column) != 0;
  }
  if (!items.empty()) platform::TrackPopupMenu(*this, items, point);
}

LRESULT CTreeGridCtrl::OnCommandMessage(const MSG& msg) {
  const int column = static_cast<int>(msg.wParam & 0xFFFF);
  // What the edit tells comes with its handle, and an id that says nothing.
  if (msg.lParam == 0 && column > 0 && column < GetColumnCount()) {
    ToggleColumn(column);
    return 1;
  }
  return Edit().IsClosing() ? 1 : Default(msg, kMessages);
}

void CTreeGridCtrl::ToggleColumn(int column) {
  const int width = GetColumnWidth(column);
  if (width == 0) {
    SetColumnWidth(column, static_cast<int>(std::min<std::uint32_t>(HiddenWidth(column), 0x7FFFFFFF)));
  } else {
    SetHiddenWidth(column, static_cast<std::uint32_t>(width));
    // An edit keeps its cell on the screen.
    if (!Edit().Exists()) SetColumnWidth(column, 0);
  }
  Invalidate();
}

std::uint32_t CTreeGridCtrl::HiddenWidth(int column) const {
  const auto index = static_cast<std::size_t>(column);
  return index < m_hiddenWidths.size() ? m_hiddenWidths[index] : 0;
}

void CTreeGridCtrl::SetHiddenWidth(int column, std::uint32_t width) {
  const auto index = static_cast<std::size_t>(column);
  if (index >= m_hiddenWidths.size()) m_hiddenWidths.resize(index + 1);
  m_hiddenWidths[index] = width;
}

// Text ---------------------------------------------------------------------------------------------------

DumpHeader CTreeGridCtrl::LayOutTitles() const {
  std::vector<DumpColumn> columns;
  columns.reserve(static_cast<std::size_t>(GetColumnCount()));
  for (int column = 0; column < GetColumnCount(); ++column) {
    columns.push_back({GetColumnTitle(column), GetColumnWidth(column)});
  }
  return LayOutHeader(columns);
}

std::string CTreeGridCtrl::DumpText(const DumpHeader& header) const {
  std::string text;
  if (IsHeaderShown() && !header.titles.empty()) text = header.titles + '\n' + header.rule + '\n';
  const std::span<const std::size_t> widths =
      IsHeaderShown() ? std::span<const std::size_t>(header.widths) : std::span(m_dumpWidths);
  DumpRow row;
  row.cells.resize(static_cast<std::size_t>(GetColumnCount()));
  for (HTREEITEM item = GetRootItem(); item != 0; item = NextRow(*this, item, row.open)) {
    row.level = static_cast<std::size_t>(GetItemDepth(item));
    row.has_children = ItemHasChildren(item);
    row.open = row.has_children && IsExpanded(item);
    for (int column = 0; column < GetColumnCount(); ++column) {
      row.cells[static_cast<std::size_t>(column)] = GetItemText(item, column);
    }
    AppendRow(text, row, widths);
  }
  return text;
}

std::string CTreeGridCtrl::GetDumpText() {
  return DumpText(LayOutTitles());
}

bool CTreeGridCtrl::DumpToFile(const std::string& path) {
  DumpHeader header = LayOutTitles();
  if (!platform::WriteWholeFile(path, WithCrLf(DumpText(header)))) return false;
  if (!IsHeaderShown()) return true;
  std::ranges::copy(header.widths, m_dumpWidths.begin());
  if (!header.titles.empty()) {
    m_headerLine = std::move(header.titles);
    m_ruleLine = std::move(header.rule);
  }
  return true;
}

void CTreeGridCtrl::Print() {
  const platform::HWND self = GetHandle();
  const std::unique_ptr<platform::Printer> printer = platform::RunPrintDialog();
  if (printer == nullptr || (self != 0 && !platform::IsWindow(self))) return;
  const std::string path = platform::GetTempPath() + "Treetmp.txt";
  // Without a dump the document is one empty page: an old file of that name isn't what the user asked for.
  const bool dumped = DumpToFile(path);
  if (printer->StartDocument(path)) {
    PrintPages(*printer, dumped ? ReadFile(path) : std::string(), m_headerLine, m_ruleLine);
    printer->EndDocument();
  }
  platform::DeleteFile(path);
}

}  // namespace pvw
