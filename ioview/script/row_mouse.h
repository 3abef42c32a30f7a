// Where the mouse goes to hit a part of a row, and what it does there.
#pragma once

#include <cstdint>

#include "platform/gui/tree_ctrl.h"

namespace ioview {

enum class RowPart : std::uint8_t { kLabel, kIcon, kIndent, kButton, kCheck, kValue, kNowhere };

inline constexpr int kValueColumn = 2;  // of a pane's grid

// Scrolls to the part and gives a point on it, in client coordinates of the grid. ScriptError for a part that
// the row hasn't got, as under a closed row.
platform::POINT PointOnPart(platform::SECTreeCtrl& grid, platform::HTREEITEM item, RowPart part);
// The same for a cell; of column 0 the label. False when it can't show, as in a hidden column.
bool PointOnCell(platform::SECTreeCtrl& grid, platform::HTREEITEM item, int column, platform::POINT& at);

// Press, a few pixels' way with the button down, release.
void DragFrom(platform::SECTreeCtrl& grid, platform::POINT at);

}  // namespace ioview
