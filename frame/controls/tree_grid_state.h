// What a session keeps of a grid's rows: whether each is open.
//
// Rows are numbered as the walk meets them, from 0: siblings in their order, and below an open row its
// children. The numbers name no rows; on a tree that has changed its shape the values fall on whichever rows
// the walk meets.
#pragma once

#include <string_view>

#include "component/services/session_store.h"
#include "platform/gui/tree_ctrl.h"

namespace pvw {

// The row after `item` in the order of the screen: its first child when `descend` is set and it has one, else
// the next sibling of it or of the nearest row above it that has one. 0 at the end, and for a row that is
// gone.
platform::HTREEITEM NextRow(const platform::SECTreeCtrl& tree, platform::HTREEITEM item, bool descend);

// Writes 1 or 0 under `key` + "Exp" + number.
void SaveOpenRows(const platform::SECTreeCtrl& tree, CSessionStore& store, std::string_view key);
// Opens and closes rows; one without a value closes. The walk goes on below a row whose opening was refused.
// False when the owner destroyed the window meanwhile; the tree isn't touched any more then.
bool LoadOpenRows(platform::SECTreeCtrl& tree, CSessionStore& store, std::string_view key);

}  // namespace pvw
