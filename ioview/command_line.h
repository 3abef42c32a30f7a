// The program's command line: its subcommands, its help, and where its errors end.
#pragma once

namespace ioview {

// Runs the program and gives its exit status: 0, or 2 behind one line `ioview: TEXT` on standard error. Lets
// no exception out.
int RunCommandLine(int argc, char** argv) noexcept;

}  // namespace ioview
