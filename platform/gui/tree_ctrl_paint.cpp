// How the control draws itself.

#include <algorithm>
#include <cstddef>

#include "platform/gui/tree_ctrl.h"
#include "platform/gui/tree_layout.h"
#include "platform/gui/tree_rows.h"

namespace platform {

namespace {

constexpr int kCellTextLeft = 6;
constexpr int kCellTextRight = 5;

}  // namespace

struct SECTreeCtrl::RowPaint {
  HTREEITEM item = 0;
  std::uint32_t row = 0;
  std::size_t index = 0;
  RECT first_cell;
  bool selected = false;
  COLORREF back = 0;           // of the control
  COLORREF text = 0;           // of a cell that the selection doesn't reach
  COLORREF selected_back = 0;  // as `back` and `text` on a row that isn't selected
  COLORREF selected_text = 0;
};

COLORREF SECTreeCtrl::GetRowTextColour(HTREEITEM, COLORREF normal) const {
  return normal;
}

void SECTreeCtrl::Paint(CDC& dc, const RECT& clip) {
  RECT body = GetClientRect();
  body.top = std::min(GetHeaderHeight(), body.bottom);
  const RECT shown = body.Intersect(clip);
  const COLORREF back = m_back_colour.value_or(GetSysColour(SystemColour::Window));
  if (!shown.IsEmpty()) {
    const RowSequence& order = m_rows->Order();
    std::size_t index = static_cast<std::size_t>(m_scroll_rows) +
                        static_cast<std::size_t>((shown.top - body.top) / m_line_height);
    RowSequence::Row row = index < order.Size() ? order.At(index) : RowSequence::kRoot;
    int bottom = CellRect(index, 0).top;
    for (; row != RowSequence::kRoot && bottom < shown.bottom; row = order.Next(row)) {
      PaintRow(dc, shown, index++, row);
      bottom += m_line_height;
    }
    const RECT below = RECT{body.left, std::max(bottom, body.top), body.right, body.bottom}.Intersect(shown);
    if (!below.IsEmpty()) dc.Fill(below, back);
  }
  PaintHeader(dc, clip);
}

void SECTreeCtrl::PaintRow(CDC& dc, const RECT& clip, std::size_t index, std::uint32_t row) const {
  RowPaint paint;
  paint.item = m_rows->HandleOf(row);
  paint.row = row;
  paint.index = index;
  paint.first_cell = CellRect(index, 0);
  paint.selected = paint.item == m_selected;
  paint.back = paint.selected_back = m_back_colour.value_or(GetSysColour(SystemColour::Window));
  paint.text = paint.selected_text = m_text_colour.value_or(GetSysColour(SystemColour::WindowText));
  if (paint.selected && (GetFocus() == GetHandle() || IsEditing())) {
    paint.selected_back = GetSysColour(SystemColour::Highlight);
    paint.selected_text = GetSysColour(SystemColour::HighlightText);
  } else if (paint.selected) {
    paint.selected_back = GetSysColour(SystemColour::Face);
  }

  // From left to right: what is too wide for the first cell is drawn over by those behind it.
  RECT cell = paint.first_cell;
  for (int column = 0; column < GetColumnCount(); ++column) {
    cell.right = cell.left + WidthOf(column);
    if (!cell.Intersect(clip).IsEmpty()) {
      if (column == 0) {
        PaintFirstCell(dc, clip, paint);
      } else {
        PaintCell(dc, paint, column, cell);
      }
    }
    cell.left = cell.right;
  }
  const RECT beside = RECT{cell.left, cell.top, clip.right, cell.bottom}.Intersect(clip);
  if (!beside.IsEmpty()) dc.Fill(beside, paint.back);
}

void SECTreeCtrl::PaintFirstCell(CDC& dc, const RECT& clip, const RowPaint& paint) const {
  using namespace tree_layout;
  const RowSequence& order = m_rows->Order();
  const TreeRow& data = (*m_rows)[paint.row];
  const RECT& cell = paint.first_cell;
  const POINT origin = Origin();
  const RowShape shape = ShapeOf(paint.row, cell);
  const RowParts parts = PartsOf(shape, origin);
  dc.Fill(cell, paint.back);

  if ((m_tree_style & kHasLines) != 0) {
    const RowLines lines{(m_tree_style & kLinesAtRoot) != 0, paint.index == 0, order.IsOpen(paint.row)};
    const auto has_next = [&](int level) {
      return (*m_rows)[order.AncestorAt(paint.row, level)].next != TreeRows::kRoot;
    };
    for (const Dotted& line : LinesOf(shape, parts, lines, origin, clip, has_next)) {
      dc.Dots(line.from, line.to);
    }
  }
  if ((m_tree_style & kHasButtons) != 0 && m_rows->HasChildren(paint.row) && parts.button.left < cell.right) {
    dc.ExpandBox(parts.button, order.IsOpen(paint.row));
  }
  if (!parts.check.IsEmpty() && parts.check.left < cell.right) dc.CheckBox(parts.check, data.checked);
  if (!parts.image.IsEmpty() && parts.image.left < cell.right) {
    dc.Image({parts.image.left, parts.image.top}, *m_images,
             data.image < m_images->GetCount() ? data.image : 0);
  }

  const bool full_row = (m_grid_style & kFullRow) != 0;
  const bool editing = IsEditing() && m_edit_item == paint.item && m_edit_column == 0;
  const RECT label = parts.label.Intersect(cell);
  if (label.IsEmpty() || (editing && !full_row)) return;
  dc.Fill(label, paint.selected_back);
  const RECT text{label.left + kTextGap, label.top + 1, label.right - kTextGap, label.bottom + 1};
  const std::string shown = tree_layout::ShownText(m_rows->Text(paint.row, 0));
  if (!shown.empty() && !text.IsEmpty()) {
    dc.Text(text, shown, GetRowTextColour(paint.item, paint.selected_text), m_row_font);
  }
  if (paint.selected && GetFocus() == GetHandle() && !editing && (!full_row || GetColumnCount() == 1)) {
    dc.FocusRect(label);
  }
}

void SECTreeCtrl::PaintCell(CDC& dc, const RowPaint& paint, int column, const RECT& cell) const {
  const bool full_row = (m_grid_style & kFullRow) != 0;
  dc.Fill(cell, full_row ? paint.selected_back : paint.back);
  if (IsEditing() && m_edit_item == paint.item && m_edit_column == column) return;
  const std::string shown = tree_layout::ShownText(m_rows->Text(paint.row, column));
  const RECT text{cell.left + kCellTextLeft, cell.top, cell.right - kCellTextRight, cell.bottom};
  if (shown.empty() || text.IsEmpty()) return;
  dc.Text(text, shown, GetRowTextColour(paint.item, full_row ? paint.selected_text : paint.text), m_row_font,
          m_columns[static_cast<std::size_t>(column)].align);
}

void SECTreeCtrl::PaintHeader(CDC& dc, const RECT& clip) const {
  const RECT header{0, 0, GetClientRect().right, GetHeaderHeight()};
  if (header.Intersect(clip).IsEmpty()) return;
  RECT title = header;
  title.left = -m_scroll_x;
  for (int column = 0; column < GetColumnCount(); ++column) {
    title.right = title.left + WidthOf(column);
    if (!title.Intersect(clip).IsEmpty()) dc.Header(title, GetColumnTitle(column), m_header_font);
    title.left = title.right;
  }
  title.right = header.right;
  if (!title.Intersect(clip).IsEmpty()) dc.Header(title, {}, m_header_font);
}

}  // namespace platform
