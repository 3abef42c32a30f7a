// "Loading...": shows how far the opening of a pane's rows has come, and lets the user stop it.
//
// A thread beside the user interface's opens one row after the other, each in one call onto the user
// interface's thread, so that the user's input comes between two rows.
#pragma once

#include <cstdint>

#include "platform/gui/controls.h"
#include "platform/gui/dialog.h"
#include "platform/gui/display.h"
#include "platform/gui/tree_ctrl.h"

namespace pvw {

class CPvwIOInstanceCtrl;

// The row that is opened behind `opened`, 0 for the first; 0 at the end. Every top-level row, and of the rows
// below it those that have children; no deeper one.
platform::HTREEITEM NextRowToOpen(const platform::SECTreeCtrl& tree, platform::HTREEITEM opened);

// Ends when the rows are open, when the count has run out, or when it is cancelled; the rest stays closed
// then. Rows go down with the count without children too, so with such a row the last ones stay closed.
// Its destructor waits for the thread, which opens nothing any more by then.
class CDlgProgress : public platform::CDialog {
 public:
  // `count` rows are to be opened, at least one. The process has one count: a dialog that starts or ends
  // while another runs changes that one's too.
  CDlgProgress(std::int32_t count, CPvwIOInstanceCtrl& pane);
  ~CDlgProgress() override;

  static const platform::MessageTable kMessages;

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  void DoDataExchange(platform::CDataExchange& dx) override;
  void OnInitDialog() override;
  void OnCancel() override;

 private:
  platform::LRESULT OnTimer(const platform::MSG& msg);
  platform::LRESULT OnDestroy(const platform::MSG& msg);

  // On the worker's thread, which touches nothing else.
  void OpenRows();
  // On the user interface's. False when there is nothing to open any more.
  bool OpenNextRow();
  void Stop();

  platform::CProgress m_progress;
  const platform::HWND m_treeWindow;  // of the pane, which may go first
  const std::int32_t m_total;
  platform::HTREEITEM m_lastOpened = 0;
  bool m_bOpening = false;  // from the start of the thread until the dialog is told to end
  platform::gui::Worker m_worker;
};

}  // namespace pvw
