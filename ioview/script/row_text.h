// Rows of a tree grid as lines of text.
//
//   [-] 1 PORT
//     [ ] 2 PDATA | 00FF0000 | H'10 | RW *
//
// Two blanks a level; "[-]" open, "[+]" closed with children, "[ ]" without; "[x]" or "[o]" for a checked or
// an unchecked box, where the row has one; the number of the picture; the cells up to the last one that isn't
// empty; "*" on a row that is drawn red.
#pragma once

#include <functional>
#include <string>

#include "platform/gui/tree_ctrl.h"

namespace ioview {

// Every row that isn't under a closed one, in order, without line ends.
void ForEachRowText(const platform::SECTreeCtrl& grid, const std::function<void(const std::string&)>& line);

}  // namespace ioview
