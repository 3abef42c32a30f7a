// What a tree grid and its owner tell each other. Stands in for the notification records of the system's tree
// and list controls.
#pragma once

#include <cstdint>
#include <string>

#include "platform/gui/message_table.h"

namespace platform {

// A row. Counts up and is never used again, so a stale one finds nothing. 0 is none, kTreeRoot the parent of
// the top-level rows.
using HTREEITEM = std::uint64_t;
inline constexpr HTREEITEM kTreeRoot = ~HTREEITEM{0};
// A small number that no other row of the tree has at the time; it is used again once the row is gone.
inline constexpr unsigned kRowNumberBits = 28;
constexpr std::uint32_t RowNumber(HTREEITEM item) {
  return static_cast<std::uint32_t>(item & ((HTREEITEM{1} << kRowNumberBits) - 1));
}

// Parts of a row that a point can hit.
inline constexpr UINT TVHT_NOWHERE = 0x0001;
inline constexpr UINT TVHT_ONITEMICON = 0x0002;
inline constexpr UINT TVHT_ONITEMLABEL = 0x0004;
inline constexpr UINT TVHT_ONITEMINDENT = 0x0008;
inline constexpr UINT TVHT_ONITEMBUTTON = 0x0010;
inline constexpr UINT TVHT_ONITEMCHECK = 0x0040;
inline constexpr UINT TVHT_ONCOLUMN = 0x4000;  // a column behind the first

struct HitTestInfo {
  HTREEITEM item = 0;
  int column = -1;
  UINT flags = TVHT_NOWHERE;
};

inline constexpr UINT TVE_COLLAPSE = 1;
inline constexpr UINT TVE_EXPAND = 2;

// TVN_ITEMEXPANDING (a nonzero result refuses), TVN_SELCHANGED, TVN_BEGINDRAG, TVN_KEYDOWN, TVN_CHECKCHANGED.
struct NMTREEVIEW {
  NMHDR hdr;
  UINT action = 0;  // TVE_
  HTREEITEM item = 0;
  POINT point;  // where the button that drags went down
  UINT key = 0;
};

inline constexpr UINT LVIF_TEXT = 1;

// The list item record of a cell's edit.
struct LVITEM {
  UINT mask = 0;     // LVIF_TEXT, or nothing when an edit ends without a text
  int iItem = 0;     // index of the row among the rows that aren't under a closed one
  int iSubItem = 0;  // column
  UINT state = 0;
  UINT stateMask = 0;
  std::string pszText;  // the text; a handler may change it
  int cchTextMax = 0;
  int iImage = 0;
  std::intptr_t lParam = 0;
  int iIndent = 0;
};

// LVN_BEGINLABELEDIT (nonzero refuses), LVN_ENDLABELEDIT (nonzero: the cell takes item.pszText) and the
// TVN_ pair for column 0. LVN_COLUMNCLICK: a click on the header of item.iSubItem.
struct NMLVDISPINFO {
  NMHDR hdr;
  LVITEM item;
};

}  // namespace platform
