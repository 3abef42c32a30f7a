// Rows by the names that lead to them, from the top level down: PORT/PDATA/FAN. A "/" or "\" in a name has a
// "\" before it; before anything else a "\" stands for itself.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/tree_ctrl.h"

namespace ioview {

// At least one name, which may be empty.
std::vector<std::string> SplitRowPath(std::string_view path);

// The first row in the order of the tree, open or not, that the names lead to; 0 for none. Names match
// exactly.
platform::HTREEITEM FindRow(const platform::SECTreeCtrl& grid, const std::vector<std::string>& names);

// The path of a row; empty for one that isn't there.
std::string RowPath(const platform::SECTreeCtrl& grid, platform::HTREEITEM item);

}  // namespace ioview
