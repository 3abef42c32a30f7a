// The edit that opens over a cell of a pane's grid.
#pragma once

#include "platform/gui/list_edit.h"

namespace pvw {

class CTreeListEdit : public platform::SECListEdit {
 public:
  // From now on losing the focus doesn't end the edit: its grid is on its way out.
  void MarkClosing() { m_bClosing = true; }
  bool IsClosing() const { return m_bClosing; }

 protected:
  bool EndsWithFocus() const override { return !m_bClosing; }

 private:
  bool m_bClosing = false;
};

}  // namespace pvw
