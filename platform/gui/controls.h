// All controls of a dialog, and the two that only show something.
#pragma once

#include "platform/gui/button.h"
#include "platform/gui/combo_box.h"
#include "platform/gui/edit.h"

namespace platform {

// A label; its "&" names the letter that leads to the control behind it. Stands in for the system's static
// text.
class CStatic : public CWnd {
 public:
  WindowKind GetKind() const override { return WindowKind::Static; }
};

// A bar from 0 to its full length. Stands in for the system's progress control.
class CProgress : public CWnd {
 public:
  WindowKind GetKind() const override { return WindowKind::Progress; }
  void SetRange(int full);
  int GetRange() const { return m_full; }
  // Held within the range.
  void SetPos(int position);
  int GetPos() const { return m_position; }

 private:
  int m_full = 100;
  int m_position = 0;
};

}  // namespace platform
