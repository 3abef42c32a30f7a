// Dialogs that ask the host for something while they run, and so can't outlive the connection to it.
#pragma once

#include "host/component_host.h"
#include "platform/gui/dialog.h"

namespace pvw {

// Runs the dialog, modal, in the component's module state. Gives what DoModal gives.
int RunHostDialog(platform::CDialog& dialog, IQComponentHost* host);
// Ends, cancelled, those that run for the host. Whoever disconnects from it calls this.
void EndHostDialogs(const IQComponentHost* host);

}  // namespace pvw
