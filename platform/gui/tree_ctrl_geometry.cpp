// Where rows, cells and their parts stand, what a point hits, and how far the control is scrolled.

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/gui/display.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/gui/tree_layout.h"
#include "platform/gui/tree_rows.h"

namespace platform {

namespace {

constexpr int kHeaderRoom = 6;  // above and below a title together
constexpr int kPlainIndent = 20;
constexpr int kImageGap = 4;
constexpr int kButtonReach = 3;  // a press this near an expand box still hits it

constexpr POINT kNoPoint{-1, -1};

// Keeps coordinates of rows far outside the window within what arithmetic on them allows.
int Coordinate(std::int64_t value) {
  constexpr std::int64_t kFar = std::int64_t{1} << 29;
  return static_cast<int>(std::clamp(value, -kFar, kFar));
}

}  // namespace

// Columns ------------------------------------------------------------------------------------------------

int SECTreeCtrl::WidthOf(int column) const {
  if (m_header_shown) return GetColumnWidth(column);
  return column == 0 ? GetClientRect().Width() : 0;
}

int SECTreeCtrl::ColumnLeft(int column) const {
  int left = -m_scroll_x;
  for (int before = 0; before < column; ++before) left += WidthOf(before);
  return left;
}

// -1 beside the columns.
int SECTreeCtrl::ColumnAt(int x) const {
  int right = -m_scroll_x;
  for (int column = 0; column < GetColumnCount(); ++column) {
    const int left = right;
    right += WidthOf(column);
    if (x >= left && x < right) return column;
  }
  return -1;
}

int SECTreeCtrl::ContentWidth() const {
  return ColumnLeft(GetColumnCount()) + m_scroll_x;
}

// Header -------------------------------------------------------------------------------------------------

void SECTreeCtrl::SetHeaderShown(bool shown) {
  m_header_shown = shown;
  SetHeaderFont(m_header_font);
}

void SECTreeCtrl::SetHeaderFont(const LOGFONT& font) {
  m_header_font = font;
  Display* display = GetDisplay();
  m_header_height = (display != nullptr ? display->TextExtent(font, "A").cy : m_line_height) + kHeaderRoom;
  LayoutChanged();
}

// Scrolling ----------------------------------------------------------------------------------------------

int SECTreeCtrl::GetPageRows() const {
  return std::max((GetClientRect().Height() - GetHeaderHeight()) / m_line_height, 1);
}

int SECTreeCtrl::GetScrollMax(bool vertical) const {
  const std::int64_t room = vertical ? static_cast<std::int64_t>(GetRowCount()) - GetPageRows()
                                     : std::int64_t{ContentWidth()} - GetClientRect().Width();
  return static_cast<int>(std::max<std::int64_t>(room, 0));
}

void SECTreeCtrl::SetScrollPos(bool vertical, int position) {
  int& scroll = vertical ? m_scroll_rows : m_scroll_x;
  const int held = std::clamp(position, 0, GetScrollMax(vertical));
  if (scroll == held) return;
  scroll = held;
  UpdatePeer(Part::Scroll);
  Invalidate();
  PlaceEdit();
}

LRESULT SECTreeCtrl::OnScroll(const MSG& msg) {
  SetScrollPos(msg.message == WM_VSCROLL, static_cast<int>(msg.wParam));
  return 0;
}

LRESULT SECTreeCtrl::OnMouseWheel(const MSG& msg) {
  const std::int64_t lines = static_cast<std::intptr_t>(msg.wParam);
  const std::int64_t to = std::int64_t{m_scroll_rows} - lines;
  SetScrollPos(true, static_cast<int>(std::clamp<std::int64_t>(to, 0, std::numeric_limits<int>::max())));
  return 0;
}

// Rows came or went, or what they stand in has changed.
void SECTreeCtrl::LayoutChanged() {
  m_scroll_x = std::min(m_scroll_x, GetScrollMax(false));
  m_scroll_rows = std::min(m_scroll_rows, GetScrollMax(true));
  UpdatePeer(Part::Scroll);
  Invalidate();
  PlaceEdit();
}

// Cells --------------------------------------------------------------------------------------------------

POINT SECTreeCtrl::Origin() const {
  return {-m_scroll_x, Coordinate(GetHeaderHeight() - std::int64_t{m_scroll_rows} * m_line_height)};
}

RECT SECTreeCtrl::CellRect(std::size_t index, int column) const {
  const int left = ColumnLeft(column);
  const std::int64_t row = static_cast<std::int64_t>(index) - m_scroll_rows;
  const int top = Coordinate(GetHeaderHeight() + row * m_line_height);
  return {left, top, left + WidthOf(column), top + m_line_height};
}

RECT SECTreeCtrl::GetCellRect(HTREEITEM item, int column) const {
  const int row = GetRowOfItem(item);
  if (row < 0 || column < 0 || column >= GetColumnCount() || WidthOf(column) == 0) return {};
  return CellRect(static_cast<std::size_t>(row), column);
}

tree_layout::RowShape SECTreeCtrl::ShapeOf(std::uint32_t row, const RECT& cell) const {
  const TreeRow& data = (*m_rows)[row];
  tree_layout::RowShape shape;
  shape.cell = cell;
  shape.depth = m_rows->Order().Depth(row);
  shape.indent = m_images != nullptr ? (m_images->GetWidth() + kImageGap + 1) & ~1 : kPlainIndent;
  shape.leads = (m_tree_style & (kHasButtons | kHasLines | kLinesAtRoot)) != 0;
  shape.has_check = data.has_check;
  if (m_images != nullptr && data.image >= 0) shape.image = {m_images->GetWidth(), m_images->GetHeight()};
  shape.one_column = GetColumnCount() == 1;
  shape.text_width = -1;
  if ((m_grid_style & kFullRow) == 0) {
    Display* display = GetDisplay();
    const std::string text = tree_layout::ShownText(m_rows->Text(row, 0));
    shape.text_width = display != nullptr ? display->TextExtent(m_row_font, text).cx : 0;
  }
  return shape;
}

// Hits ---------------------------------------------------------------------------------------------------

HitTestInfo SECTreeCtrl::HitTest(POINT point) const {
  HitTestInfo hit;
  if (!GetClientRect().Contains(point) || point.y < GetHeaderHeight()) return hit;
  const std::size_t index = static_cast<std::size_t>(m_scroll_rows) +
                            static_cast<std::size_t>((point.y - GetHeaderHeight()) / m_line_height);
  const int column = ColumnAt(point.x);
  if (index >= GetRowCount() || column < 0) return hit;
  const TreeRows::Row row = m_rows->Order().At(index);
  hit.item = m_rows->HandleOf(row);
  hit.column = column;
  if (column > 0) {
    hit.flags = TVHT_ONCOLUMN;
    return hit;
  }
  const tree_layout::RowParts parts = tree_layout::PartsOf(ShapeOf(row, CellRect(index, 0)), Origin());
  const bool has_button = (m_tree_style & kHasButtons) != 0 && m_rows->HasChildren(row);
  if (parts.check.Contains(point)) {
    hit.flags = TVHT_ONITEMCHECK;
  } else if (parts.image.Contains(point)) {
    hit.flags = TVHT_ONITEMICON;
  } else if (parts.label.Contains(point)) {
    hit.flags = TVHT_ONITEMLABEL;
  } else if (point.x >= parts.label.right) {
    hit = HitTestInfo();
  } else if (has_button && point.x >= parts.button.left - kButtonReach &&
             point.x < std::min(parts.button.right + kButtonReach, parts.first)) {
    hit.flags = TVHT_ONITEMBUTTON;
  } else {
    hit.flags = TVHT_ONITEMINDENT;
  }
  return hit;
}

POINT SECTreeCtrl::GetPartPoint(HTREEITEM item, UINT part) const {
  const int index = GetRowOfItem(item);
  if (index < 0) return kNoPoint;
  const RECT client = GetClientRect();
  const RECT cell = CellRect(static_cast<std::size_t>(index), 0);
  const int middle = cell.top + cell.Height() / 2;
  if (part == TVHT_NOWHERE) {
    const int columns_end = ContentWidth() - m_scroll_x;
    if (columns_end < client.right) return {client.right - 1, middle};
    const RECT last = CellRect(GetRowCount() - 1, 0);
    return last.bottom < client.bottom ? POINT{client.left, client.bottom - 1} : kNoPoint;
  }
  if (part == TVHT_ONCOLUMN) {
    for (int column = 1; column < GetColumnCount(); ++column) {
      if (WidthOf(column) > 0) return {ColumnLeft(column) + WidthOf(column) / 2, middle};
    }
    return kNoPoint;
  }
  const tree_layout::RowShape shape = ShapeOf(RowOf(item), cell);
  const tree_layout::RowParts parts = tree_layout::PartsOf(shape, Origin());
  POINT point = kNoPoint;
  switch (part) {
    case TVHT_ONITEMBUTTON:
      if (shape.leads) point = {parts.node.x, middle};
      break;
    case TVHT_ONITEMINDENT:
      point = {parts.first - 1, middle};
      break;
    case TVHT_ONITEMCHECK:
      if (!parts.check.IsEmpty()) point = {parts.check.left + parts.check.Width() / 2, middle};
      break;
    case TVHT_ONITEMICON:
      if (!parts.image.IsEmpty()) point = {parts.image.left + parts.image.Width() / 2, middle};
      break;
    case TVHT_ONITEMLABEL:
      point = {parts.label.left + tree_layout::kTextGap, middle};
      break;
    default:
      break;
  }
  return point.x >= cell.left && point.x < cell.right ? point : kNoPoint;
}

}  // namespace platform
