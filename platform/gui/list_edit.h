// The edit that opens over a cell of a tree grid. Stands in for the grid control's own.
//
// Enter keeps the text, Escape doesn't, and losing the focus keeps it; each tells the grid, which then closes
// the edit.
#pragma once

#include "platform/gui/edit.h"

namespace platform {

class SECTreeCtrl;

class SECListEdit : public CEdit {
 public:
  static const MessageTable kMessages;

 protected:
  const MessageTable& GetMessageTable() const override { return kMessages; }
  // Whether losing the focus ends the edit.
  virtual bool EndsWithFocus() const { return true; }

 private:
  SECTreeCtrl* Owner() const;
  LRESULT OnKillFocus(const MSG& msg);
  LRESULT OnKeyDown(const MSG& msg);
};

}  // namespace platform
