// Runs a script from its first line to its last.
#pragma once

#include "ioview/script/script_run.h"

namespace ioview {

// The exit status: 0; 1 for a failed check or an answer that was left unused; 2 for a script that is wrong.
// Behind 1 and 2 stands one line `ioview: FILE:LINE: TEXT` on standard error. Throws ProgramError when the
// script can't be read, or the component can't be had.
int RunScript(const ScriptOptions& options);

}  // namespace ioview
