#include "platform/gui/controls.h"

#include <algorithm>

#include "platform/gui/display.h"

namespace platform {

void CProgress::SetRange(int full) {
  m_full = std::max(full, 0);
  SetPos(m_position);
}

void CProgress::SetPos(int position) {
  m_position = std::clamp(position, 0, m_full);
  UpdatePeer(Part::Position);
}

}  // namespace platform
