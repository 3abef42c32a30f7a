// The user's selection as the session keeps it; model/selection_text.h reads it back.
#pragma once

#include <string>

#include "frame/controls/tree_grid_ctrl.h"
#include "model/io_data.h"

namespace pvw {

// Of the rows of the pane that shows the selection. Empty without rows.
std::string SelectionTextOfRows(const CTreeGridCtrl& tree);
// Of the records, for when no pane shows them. What a module that was never opened has selected below it
// comes from the selection that was loaded.
std::string SelectionTextOfRecords(const CIOData& data);

}  // namespace pvw
