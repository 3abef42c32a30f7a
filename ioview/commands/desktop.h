// `ioview FILE.io`, without a command: the desktop.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

namespace ioview {

struct DesktopArguments;

// FILE and the options of the desktop, which go with no command; to be called when the commands are there.
// The result is for the functions below, once the command line is read.
std::shared_ptr<DesktopArguments> AddDesktop(CLI::App& app);
// FILE; empty when it wasn't given.
const std::string& DesktopFile(const DesktopArguments& arguments);
// Runs the desktop until its window closes; gives the exit status. `program` is the program's own name.
// Throws ProgramError for a file or an option that can't be used, and where there is no display.
int RunDesktop(const DesktopArguments& arguments, char* program);

}  // namespace ioview
