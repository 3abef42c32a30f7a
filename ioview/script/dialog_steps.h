// What a user does in a dialog, step by step.
#pragma once

#include <functional>

#include "ioview/script/arguments.h"
#include "ioview/script/script_run.h"
#include "platform/gui/dialog.h"

namespace ioview {

using DialogAct = std::function<void(ScriptRun& run, platform::CDialog& dialog)>;

// The act of one step's words. Throws WrongArgument for words that are no step. The act throws ScriptError
// when the dialog lacks what it asks for; what the user can't do, as to a disabled control, does nothing.
DialogAct ParseDialogStep(Arguments& words);

}  // namespace ioview
