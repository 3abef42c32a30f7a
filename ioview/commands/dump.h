// `ioview dump`: writes what a pane of the I/O view shows as text.
#pragma once

#include <CLI/CLI.hpp>

namespace ioview {

// Adds the subcommand with its options; running it is the callback of the subcommand, which throws
// ProgramError.
void AddDumpCommand(CLI::App& app);

}  // namespace ioview
