// How a check spreads through a tree whose rows stand for parts of each other.
#pragma once

#include "platform/gui/tree_ctrl.h"

namespace pvw {

// Turns the check of a row, which has a box, and selects the row. All rows below it follow. A row that is
// checked has its ancestors checked; one that is unchecked unchecks its parent when no sibling is checked any
// more, and so on upwards.
void ToggleCheckOf(platform::SECTreeCtrl& tree, platform::HTREEITEM row);
// Of every row that has a box.
void SetAllChecks(platform::SECTreeCtrl& tree, bool on);

}  // namespace pvw
