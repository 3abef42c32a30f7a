// The source of a drag out of a pane: says how the pointer looks, and when the drag is over.
#pragma once

#include "platform/base/resources.h"
#include "platform/gui/display.h"

namespace pvw {

class CCtrlDropSource final : public platform::DragSource {
 public:
  // Whether what is dragged is copied; it is moved otherwise.
  explicit CCtrlDropSource(bool copy);

  void Begin() override;
  void Feedback(platform::DragEffect effect) override;
  // Escape and the right button cancel, before all else; letting go of the left one drops.
  Next QueryContinue(bool escape, bool left_down, bool right_down) override;

 private:
  void Show(const platform::PictureResource* cursor);

  // Null where the resources lack it; the pointer stays as it is then.
  const platform::PictureResource* const m_cursorCopy;
  const platform::PictureResource* const m_cursorMove;
  const platform::PictureResource* const m_cursorNoDrop;
  const platform::PictureResource* m_shown = nullptr;
  const bool m_bCopy;
};

}  // namespace pvw
