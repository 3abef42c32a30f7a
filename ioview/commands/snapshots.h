// `ioview capture` and `ioview compare`: register values as a text, and what has changed since.
#pragma once

#include <CLI/CLI.hpp>

namespace ioview {

// `status` becomes the program's exit status: 1 when a comparison found a difference.
void AddCaptureCommand(CLI::App& app);
void AddCompareCommand(CLI::App& app, int& status);

}  // namespace ioview
