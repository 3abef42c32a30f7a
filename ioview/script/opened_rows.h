// Counts the rows of a tree that somebody opens one after the other, from the top.
#pragma once

#include <cstddef>

#include "platform/gui/tree_ctrl.h"

namespace ioview {

// The rows of the first two levels. Asking costs what was opened since the last time.
class OpenedRows {
 public:
  std::size_t Count(const platform::SECTreeCtrl& grid);

 private:
  platform::HTREEITEM next_ = 0;  // the row that hasn't been seen open
  bool began_ = false;
  std::size_t count_ = 0;
};

}  // namespace ioview
