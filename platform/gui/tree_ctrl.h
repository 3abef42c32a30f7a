// The tree grid: rows in a tree, one text per column, an expand box and a picture in the first. Stands in for
// the grid control that the panes are built on; with check boxes, or with neither lines nor expand boxes,
// also for the system's tree and list controls in dialogs.
//
// Rows, cells, columns, selection, opening, hit test, in-place edit, scroll positions, painting and keyboard
// all live here; a display hands over a device context and input. Row order is kept in a balanced sequence,
// so that every operation on a row costs the logarithm of the number of rows, and only rows in view are
// drawn or measured.
//
// A press on the rows tells the parent NM_CLICK, then takes the focus, then selects. A press on a cell behind
// the first column begins its edit once the time for a double click is over, and so does a second one on the
// selected row's label. A right press selects too, before the display makes WM_CONTEXTMENU of it.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/graphics.h"
#include "platform/gui/tree_types.h"
#include "platform/gui/window.h"

namespace platform {

class SECListEdit;
class TreeRows;
struct TreeRow;
namespace tree_layout {
struct RowShape;
}

class SECTreeCtrl : public CWnd {
 public:
  // Grid style bit: the selection, and what counts as a row's label, reach over the whole row.
  static constexpr UINT kFullRow = 0x2000000;
  // Tree style bits. With kCheckBoxes a row that is inserted has a box, and the user toggles it; a row that
  // is given one without that style shows it and leaves it to the owner.
  static constexpr UINT kHasButtons = 1, kHasLines = 2, kLinesAtRoot = 4, kHeaderMenu = 0x400000,
                        kCheckBoxes = 0x100;
  static constexpr int kMostColumns = 20;

  // With one column, without a title, and no header.
  SECTreeCtrl();
  ~SECTreeCtrl() override;
  static const MessageTable kMessages;

  WindowKind GetKind() const override { return WindowKind::Grid; }
  void SetGridStyle(UINT style);
  UINT GetGridStyle() const { return m_grid_style; }
  void SetTreeStyle(UINT style);
  UINT GetTreeStyle() const { return m_tree_style; }
  // Report mode: columns with a header. Off: one column as wide as the window.
  void SetHeaderShown(bool shown);
  bool IsHeaderShown() const { return m_header_shown; }

  // Columns. A row's texts keep their numbers when a column comes in between. Operations on a column that
  // isn't there do nothing and give 0 or an empty text. Widths are held from 0, which hides, to 32767.
  void InsertColumn(int index, std::string_view title, TextAlign align, int width);
  int GetColumnCount() const { return static_cast<int>(m_columns.size()); }
  int GetColumnWidth(int column) const;
  void SetColumnWidth(int column, int width);
  std::string GetColumnTitle(int column) const;
  void SetColumnTitle(int column, std::string_view title);

  // Rows. Operations on a row that isn't there do nothing and give 0 or an empty text.
  // Appends behind the last child of `parent`. 0 when the parent is gone.
  HTREEITEM InsertItem(std::string_view text, int image, HTREEITEM parent = kTreeRoot);
  // With all below it. An open edit in there ends first, without a text; a selection in there is none then,
  // and nobody is told. A row that has lost its last child is closed.
  void DeleteItem(HTREEITEM item);
  void DeleteAllItems();
  bool HasItem(HTREEITEM item) const;
  HTREEITEM GetRootItem() const;  // the first top-level row
  HTREEITEM GetChildItem(HTREEITEM item) const;
  HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
  HTREEITEM GetParentItem(HTREEITEM item) const;  // 0 for a top-level row
  bool ItemHasChildren(HTREEITEM item) const;
  bool IsExpanded(HTREEITEM item) const;
  int GetItemDepth(HTREEITEM item) const;  // 0 at the top
  // Rows that aren't under a closed row, counted from the top.
  std::size_t GetRowCount() const;
  HTREEITEM GetItemAtRow(std::size_t row) const;
  int GetRowOfItem(HTREEITEM item) const;  // -1 under a closed row
  // Sends TVN_ITEMEXPANDING, and opens or closes unless that is refused. Nothing happens, and nobody is
  // notified, on a row without children or in that state already; nor does one open that has no children by
  // the end of the notification. Closing ends an edit below the row before, and moves a selection from below
  // to the row after. True when the state changed.
  bool Expand(HTREEITEM item, UINT action);
  HTREEITEM GetSelectedItem() const { return m_selected; }
  // Scrolls to the row; 0 selects none. TVN_SELCHANGED when it wasn't selected.
  void SelectItem(HTREEITEM item);
  void EnsureVisible(HTREEITEM item);  // opens nothing; scrolls

  // Cells.
  const std::string& GetItemText(HTREEITEM item, int column) const;
  void SetItemText(HTREEITEM item, int column, std::string_view text);
  int GetItemImage(HTREEITEM item) const;
  void SetItemImage(HTREEITEM item, int image);  // -1: none
  bool GetItemFlag(HTREEITEM item) const;        // one bit of the owner's own, without effect here
  void SetItemFlag(HTREEITEM item, bool flag);
  // Check boxes.
  void SetItemHasCheck(HTREEITEM item, bool has);
  bool GetItemHasCheck(HTREEITEM item) const;
  bool GetItemCheck(HTREEITEM item) const;     // false without a box
  void SetItemCheck(HTREEITEM item, bool on);  // gives the row a box; notifies nobody

  // Look.
  void SetImageList(const CImageList* images);  // not owned
  const CImageList* GetImageList() const { return m_images; }
  void SetColours(COLORREF text, COLORREF back);  // the window's own of the system until then
  void SetRowFont(const LOGFONT& font);
  void SetHeaderFont(const LOGFONT& font);
  const LOGFONT& GetRowFont() const { return m_row_font; }
  // The colour that a row's texts are drawn in when they would be `normal`.
  virtual COLORREF GetRowTextColour(HTREEITEM item, COLORREF normal) const;
  void SetLineHeight(int pixels);
  int GetLineHeight() const { return m_line_height; }

  // Geometry, in client coordinates.
  HitTestInfo HitTest(POINT point) const;
  // Of a cell in view or out of it; empty when the row is under a closed one or the column is hidden.
  RECT GetCellRect(HTREEITEM item, int column) const;
  // A point on that part of a row (TVHT_), for tests and scripts; scrolls nothing. (-1, -1) when it has no
  // such part. TVHT_ONCOLUMN: the first column that shows behind the first. TVHT_NOWHERE: beside or below the
  // rows.
  POINT GetPartPoint(HTREEITEM item, UINT part) const;
  int GetHeaderHeight() const { return m_header_shown ? m_header_height : 0; }
  // Scroll positions: horizontal in pixels, vertical in rows. Held within the range.
  int GetScrollPos(bool vertical) const { return vertical ? m_scroll_rows : m_scroll_x; }
  void SetScrollPos(bool vertical, int position);
  int GetScrollMax(bool vertical) const;
  int GetPageRows() const;  // 1 at least

  // In-place edit of one cell.
  // Sends LVN_BEGINLABELEDIT (TVN_BEGINLABELEDIT for column 0); false when that refused, or the cell doesn't
  // show. An edit that was open ends before.
  bool EditCell(HTREEITEM item, int column);
  // Sends LVN_ENDLABELEDIT with the edit's text, then closes the edit. Once only, however often it is asked
  // for. With `keep` false the record has no text, and its result means nothing.
  void EndEdit(bool keep = true);
  SECListEdit* GetListEdit() const { return m_edit.get(); }
  bool IsEditing() const;
  HTREEITEM GetEditItem() const { return m_edit_item; }
  int GetEditColumn() const { return m_edit_column; }

  // The whole tree as text, as GetDumpText's override gives it; empty here.
  virtual bool DumpToFile(const std::string& path);
  virtual std::string GetDumpText();

  void Paint(CDC& dc, const RECT& clip) override;

 protected:
  const MessageTable& GetMessageTable() const override { return kMessages; }
  // The edit to use from now on; none may be open.
  void SetListEdit(std::unique_ptr<SECListEdit> edit);
  // The context menu of the header is wanted, with kHeaderMenu; in client coordinates.
  virtual void OnHeaderRightClick(POINT point);

 private:
  struct Column {
    std::string title;
    TextAlign align = TextAlign::Left;
    int width = 0;
  };
  // The left button went down on a row, and may still begin an edit or a drag.
  struct Press {
    HTREEITEM item = 0;
    POINT at;
    int edits_column = -1;
  };
  struct ColumnDrag {
    int column = 0;
    int from_x = 0;
    int width = 0;
  };
  static constexpr UINT kBeginEditTimer = 0x7001, kForgetLettersTimer = 0x7002;
  // What all cells of a row that is being drawn share.
  struct RowPaint;

  // Rows and columns.
  std::uint32_t RowOf(HTREEITEM item) const;
  TreeRow* Data(HTREEITEM item) const;
  HTREEITEM ItemOf(std::uint32_t row) const;
  bool IsBelow(HTREEITEM item, HTREEITEM above) const;
  int WidthOf(int column) const;
  int ColumnLeft(int column) const;
  int ColumnAt(int x) const;
  bool CanExpand(HTREEITEM item, bool open) const;
  void Select(HTREEITEM item, bool scroll);
  void ToggleCheck(HTREEITEM item);
  LRESULT NotifyCode(UINT code);
  // Whether a handler destroyed the window that had this handle; the object may be gone with it.
  static bool IsGone(HWND self) { return self != 0 && !IsWindow(self); }

  // Geometry.
  void LayoutChanged();
  int ContentWidth() const;
  POINT Origin() const;
  RECT CellRect(std::size_t index, int column) const;
  tree_layout::RowShape ShapeOf(std::uint32_t row, const RECT& cell) const;

  // Editing.
  void PlaceEdit();
  void StopWaitingForEdit();
  void CloseEdit();

  // Mouse.
  LRESULT OnLButtonDown(const MSG& msg);
  LRESULT OnLButtonDblClk(const MSG& msg);
  LRESULT OnLButtonUp(const MSG& msg);
  LRESULT OnMouseMove(const MSG& msg);
  LRESULT OnRButtonDown(const MSG& msg);
  LRESULT OnRButtonUp(const MSG& msg);
  LRESULT OnContextMenu(const MSG& msg);
  LRESULT OnMouseWheel(const MSG& msg);
  void ForgetPresses();
  bool IsOnHeader(POINT point) const;
  void PressHeader(POINT point);
  void ReleaseHeader(POINT point);

  // Keyboard.
  LRESULT OnKeyDown(const MSG& msg);
  LRESULT OnChar(const MSG& msg);
  bool MoveSelection(UINT key);
  bool OpenByKey(UINT key);
  void ExpandAllBelow(HTREEITEM item);
  void SelectByLetters();

  // Other messages.
  LRESULT OnDestroy(const MSG& msg);
  LRESULT OnSize(const MSG& msg);
  LRESULT OnFocusMoved(const MSG& msg);
  LRESULT OnSetFont(const MSG& msg);
  LRESULT OnScroll(const MSG& msg);
  LRESULT OnTimer(const MSG& msg);

  // Painting.
  void PaintRow(CDC& dc, const RECT& clip, std::size_t index, std::uint32_t row) const;
  void PaintFirstCell(CDC& dc, const RECT& clip, const RowPaint& paint) const;
  void PaintCell(CDC& dc, const RowPaint& paint, int column, const RECT& cell) const;
  void PaintHeader(CDC& dc, const RECT& clip) const;

  std::unique_ptr<TreeRows> m_rows;
  std::vector<Column> m_columns;
  std::unique_ptr<SECListEdit> m_edit;
  UINT m_grid_style = 0;
  UINT m_tree_style = 0;
  bool m_header_shown = false;
  int m_header_height = 0;
  HTREEITEM m_selected = 0;

  HTREEITEM m_edit_item = 0;
  int m_edit_column = -1;
  bool m_beginning = false;        // the begin notification is out
  bool m_ending = false;           // the end notification is out
  HTREEITEM m_next_edit_item = 0;  // begins when the time for a double click is over
  int m_next_edit_column = -1;

  std::optional<Press> m_press;
  std::optional<ColumnDrag> m_column_drag;
  int m_header_press = -1;  // the column whose header the left button went down on
  std::string m_typed;      // the first letters so far

  const CImageList* m_images = nullptr;
  std::optional<COLORREF> m_text_colour;
  std::optional<COLORREF> m_back_colour;
  LOGFONT m_row_font;
  LOGFONT m_header_font;
  int m_line_height = 17;
  int m_scroll_x = 0;
  int m_scroll_rows = 0;
};

}  // namespace platform
