#include "view/drag_source.h"

#include "resources/ids.h"

namespace pvw {

CCtrlDropSource::CCtrlDropSource(bool copy)
    : m_cursorCopy(platform::LoadCursor(IDC_DROP_COPY)),
      m_cursorMove(platform::LoadCursor(IDC_DROP_MOVE)),
      m_cursorNoDrop(platform::LoadCursor(IDC_DROP_NONE)),
      m_bCopy(copy) {}

void CCtrlDropSource::Begin() {
  Show(m_cursorNoDrop);
}

void CCtrlDropSource::Feedback(platform::DragEffect effect) {
  if (effect == platform::DragEffect::None) {
    Show(m_cursorNoDrop);
  } else {
    Show(m_bCopy ? m_cursorCopy : m_cursorMove);
  }
}

platform::DragSource::Next CCtrlDropSource::QueryContinue(bool escape, bool left_down, bool right_down) {
  if (escape || right_down) return Next::Cancel;
  return left_down ? Next::Go : Next::Drop;
}

void CCtrlDropSource::Show(const platform::PictureResource* cursor) {
  platform::Display* display = platform::GetDisplay();
  if (display == nullptr || cursor == nullptr || cursor == m_shown) return;
  m_shown = cursor;
  display->SetDragCursor(*cursor);
}

}  // namespace pvw
