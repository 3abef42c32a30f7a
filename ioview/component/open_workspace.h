// The workspace that a directory is to this host.
#pragma once

#include <string>

#include "ioview/host/workspace.h"

namespace ioview {

// The names are the same for every directory, so that a workspace may be moved, and what a script stored in
// it is found by the desktop. Throws ProgramError when the directory isn't there or can't be written as a
// drive path.
Workspace OpenWorkspace(const std::string& native_directory);

}  // namespace ioview
