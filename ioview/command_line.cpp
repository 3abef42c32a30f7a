#include "ioview/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <new>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "ioview/commands/desktop.h"
#include "ioview/commands/dump.h"
#include "ioview/commands/script.h"
#include "ioview/commands/snapshots.h"
#include "ioview/program_error.h"
#include "ioview/standard_output.h"

namespace ioview {

namespace {

constexpr char kAbout[] = "Shows the I/O registers of a device as its definition file (.io) describes them.";
constexpr char kFooter[] =
    "Exit status: 0 when the command was carried out, 1 when a check or comparison that was\n"
    "asked for came out negative, 2 when a file can't be opened or an option is wrong; one\n"
    "line on standard error then says why.\n"
    "\n"
    "`ioview dump --help` explains that command and gives examples; so do the others.";

// The library's own errors take as many lines as they like.
std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

// Last argument first. `--name=` alone is an empty value; the library would take the next argument for it.
// Behind `--` there are no options.
std::vector<std::string> ReversedArguments(int argc, char** argv) {
  std::vector<std::string> arguments;
  bool options = true;
  for (int i = 1; i < argc; ++i) {
    std::string argument = argv[i];
    if (argument == "--") options = false;
    const bool empty_value = options && argument.size() > 3 && argument.starts_with("--") &&
                             argument.find('=') == argument.size() - 1;
    if (empty_value) argument.pop_back();
    arguments.push_back(std::move(argument));
    if (empty_value) arguments.emplace_back();
  }
  std::ranges::reverse(arguments);
  return arguments;
}

// What is wrong with the command line. A word that means nothing is named before anything that is missing,
// because it may be what was meant. `file` is the desktop's, empty when there is none.
std::string Complaint(const CLI::App& app, const CLI::ParseError& error, const std::string& file) {
  std::string command = "ioview";
  if (app.remaining_size() == 0) {
    for (const CLI::App* sub : app.get_subcommands()) command += ' ' + sub->get_name();
  }
  std::string text = FirstLine(error.what());
  for (const std::string& word : app.remaining(true)) {
    if (word == "--") continue;
    const bool option = word.size() > 1 && word.starts_with('-');
    // A word in front of others that is no file was to be a command.
    std::error_code unknown;
    const bool is_command = !option && command == "ioview" && !std::filesystem::exists(file, unknown);
    text = option ? "Unknown option " : is_command ? "Unknown command " : "Unexpected argument ";
    text += Quoted(is_command && !file.empty() ? file : word);
    break;
  }
  return OneLine(text) + "; see " + command + " --help";
}

int Run(int argc, char** argv) {
  CLI::App app(kAbout, "ioview");
  app.set_version_flag("--version", "ioview " IOVIEW_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.footer(kFooter);
  app.require_subcommand(0, 1);
  int status = 0;
  AddDumpCommand(app);
  AddScriptCommand(app, status);
  AddCaptureCommand(app);
  AddCompareCommand(app, status);
  const std::shared_ptr<DesktopArguments> desktop = AddDesktop(app);

  try {
    app.parse(ReversedArguments(argc, argv));
  } catch (const CLI::Success& answer) {
    std::ostringstream text;
    status = app.exit(answer, text, text);
    WriteOutput(text.str());
    FlushOutput();
    return status;
  } catch (const CLI::ParseError& error) {
    throw ProgramError(Complaint(app, error, DesktopFile(*desktop)));
  }
  if (app.get_subcommands().empty()) {
    if (!DesktopFile(*desktop).empty()) return RunDesktop(*desktop, argv[0]);
    throw ProgramError("A command is required, such as dump; see ioview --help");
  }
  return status;
}

int Fail(const char* text) {
  std::fprintf(stderr, "ioview: %s\n", text);
  return 2;
}

}  // namespace

int RunCommandLine(int argc, char** argv) noexcept {
  try {
    return Run(argc, argv);
  } catch (const std::bad_alloc&) {
    return Fail("Out of memory");
  } catch (const std::exception& error) {
    return Fail(error.what());
  } catch (const char* text) {  // the binding of a debugger library gives up with a plain text
    return Fail(text);
  }
}

}  // namespace ioview
