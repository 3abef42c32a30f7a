// The keys that move about in a dialog, the same on every display.
#pragma once

#include "platform/gui/types.h"

namespace platform {

class CDialog;
class CWnd;

namespace dialog_keys {

// The first control that Tab stops at; null for none.
CWnd* FirstStop(const CDialog& dialog);
// True when the message is a key of the dialog's own, which is carried out then.
bool Handle(CDialog& dialog, const MSG& msg);

}  // namespace dialog_keys

}  // namespace platform
