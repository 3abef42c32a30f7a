#include "platform/gui/accelerators.h"

#include "platform/gui/messages.h"

namespace platform {

static_assert(MK_SHIFT == kAccelShift && MK_CONTROL == kAccelControl && MK_ALT == kAccelAlt);

std::optional<UINT> TranslateAccelerator(std::span<const AcceleratorKey> keys, const MSG& msg) {
  if (msg.message != WM_KEYDOWN) return std::nullopt;
  for (const AcceleratorKey& key : keys) {
    if (key.key == msg.wParam && key.modifiers == msg.modifiers) return key.command;
  }
  return std::nullopt;
}

}  // namespace platform
