// `ioview script`: drives the view line by line, without a screen.
#pragma once

#include <CLI/CLI.hpp>

namespace ioview {

// Adds the subcommand. Its callback throws ProgramError, or leaves the run's exit status in `status`, which
// must live until then.
void AddScriptCommand(CLI::App& app, int& status);

}  // namespace ioview
