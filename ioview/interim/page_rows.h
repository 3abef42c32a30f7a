// The rows of one page of the view: which records it shows, in which order, and which are open.
//
// Rows are built as the pane builds them: a row for each module at once, in the page of all registers the
// rows below a module when it is first opened, bit fields included. What a row shows is asked of its record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/debug_services.h"
#include "ioview/interim/view_dump.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "model/io_rec.h"

namespace ioview::interim {

class PageRows {
 public:
  // A row, good as long as the page.
  using Row = std::uint32_t;
  static constexpr Row kRoot = 0;  // above the top level; also stands for no row

  // Everything must outlive the page, and the records of `data` must stay. `target` may be null.
  PageRows(Page page, pvw::CIODataFile& file, pvw::CIOData& data, pvw::IQDebugger* target);

  // Makes the rows of a view that opens, all closed. The page of selected registers reads the registers of
  // the modules it shows from the file; one that the file lacks leaves the page when it has none below it.
  void Fill();
  // Opens rows in the order in which they are shown.
  void Open(OpenRows which);

  const pvw::CIORec& Record(Row row) const { return *nodes_[row].record; }
  bool HasChildren(Row row) const { return nodes_[row].first_child != kRoot; }
  bool IsOpen(Row row) const { return nodes_[row].open; }

  // A row of the walk down the page, with its level: 0 at the top.
  struct Step {
    Row row = kRoot;
    std::size_t level = 0;
  };
  // The first row that is shown, and the one below a given one; a row of kRoot at the end.
  Step FirstShown() const { return {nodes_[kRoot].first_child, 0}; }
  Step NextShown(Step step) const;

 private:
  struct Node {
    pvw::CIORec* record = nullptr;  // null for the root and for a placeholder
    Row parent = kRoot;
    Row first_child = kRoot;
    Row last_child = kRoot;
    Row next = kRoot;
    bool open = false;
  };

  bool IsShown(const pvw::CIORec& record) const;
  Row Append(Row parent, pvw::CIORec* record);
  // Whether the children of the row are records, and not the placeholder that a module has before it is first
  // opened, so that it can be opened.
  bool HasRealChildren(Row row) const;

  // True when at least one row was added.
  bool AddChildRows(pvw::CIORec& record, Row row);
  void ApplySelectionToRow(Row row, pvw::CIORec& record);
  void OpenSelectedRows();
  void OpenRow(Row row);

  Page page_;
  pvw::CIODataFile& file_;
  pvw::CIOData& data_;
  pvw::IQDebugger* target_;
  std::vector<Node> nodes_;
};

}  // namespace ioview::interim
