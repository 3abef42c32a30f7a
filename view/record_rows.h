// How rows come from records: what the panes and the dialog that picks registers share.
#pragma once

#include <functional>

#include "model/io_data.h"
#include "model/io_data_file.h"
#include "platform/gui/graphics.h"
#include "platform/gui/tree_ctrl.h"

namespace pvw {

// The pictures of rows, by the numbers of pane_ids.h. Empty when the resources lack them.
void LoadRowImages(platform::CImageList& images);
// The picture of a row as it is inserted, and of one that turns out to have nothing below it.
int FirstImage(const CIORec& record);
int LeafImage(const CIORec& record);
bool HasNoChildren(const CIORec& record);

// Given in place of a row when there are no rows any more. No row is this.
inline constexpr platform::HTREEITEM kRowsGone = platform::kTreeRoot;

// A tree and what fills it; nothing is owned.
struct RecordRows {
  platform::SECTreeCtrl& tree;
  CIODataFile& file;
  CIOData& data;

  // Inserts a row for the record at the end of `parent`; 0 for one that doesn't show, kRowsGone when the
  // host, asked for a text of the row, has brought the rows to their end.
  using AddRow = std::function<platform::HTREEITEM(CIORec& record, platform::HTREEITEM parent)>;
  // Makes all rows below `parent` down to the bit fields, and reads from the file what hasn't been read.
  // The lists of all these records are final then. A fault of the file is told to the user in the midst of
  // it; when the tree's window or the row goes meanwhile, nothing is touched any more: whoever destroys a
  // record has deleted its rows before. True when a row was added.
  bool AddBelow(CIORec& record, platform::HTREEITEM parent, const AddRow& add_row) const;
  // Right after the children of the row's record were made: selects those that the saved selection names.
  void ApplySelection(platform::HTREEITEM item, CIORec& record) const;
};

}  // namespace pvw
