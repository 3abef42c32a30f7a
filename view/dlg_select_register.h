// Select IO Register: the whole device as a tree, with a check box on every record. What is checked is what
// the second pane shows.
#pragma once

#include "frame/controls/dlg_with_help.h"
#include "frame/controls/row_table.h"
#include "host/debug_services.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "platform/gui/graphics.h"
#include "platform/gui/tree_ctrl.h"

namespace pvw {

// Reads every module of the file as it opens, which stays done when it is cancelled; a module that can't be
// read has no box and leaves the selection. Checks reach the records at OK alone.
class CDlgSelectRegister : public CDlgWithHelp {
 public:
  // Nothing is owned. Whoever destroys a record while the dialog runs destroys its window before. No value is
  // read, so the target doesn't matter.
  CDlgSelectRegister(CIOData* data, CIODataFile* file, IQDebugger* target, platform::CWnd* parent);

  static const platform::MessageTable kMessages;

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  void DoDataExchange(platform::CDataExchange& dx) override;
  void OnInitDialog() override;
  void OnOK() override;

 private:
  using HTREEITEM = platform::HTREEITEM;

  platform::LRESULT OnItemExpanding(platform::NMHDR& header);
  platform::LRESULT OnTreeClick(platform::NMHDR& header);
  platform::LRESULT OnTreeKeyDown(platform::NMHDR& header);
  void OnCheckAll();
  void OnUncheckAll();

  CIORec* FindRecord(HTREEITEM item) const;
  HTREEITEM AddRow(CIORec& record, HTREEITEM parent);
  void AddChildRows(CIORec& record, HTREEITEM row);
  void FillModule(HTREEITEM row, CIORec& record);
  void Toggle(HTREEITEM row);

  platform::SECTreeCtrl m_tree;
  CIODataFile* const m_pIOFile;
  CIOData* const m_pIOData;
  platform::CImageList m_images;
  CRowTable<CIORec*> m_itemMap;
};

}  // namespace pvw
