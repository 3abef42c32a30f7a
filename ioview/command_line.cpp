#include "ioview/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "ioview/commands/dump.h"
#include "ioview/program_error.h"

namespace ioview {

namespace {

constexpr char kAbout[] = "Shows the I/O registers of a device as its definition file (.io) describes them.";
constexpr char kFooter[] =
    "Exit status: 0 when the command was carried out, 2 when a file can't be opened or\n"
    "an option is wrong; one line on standard error then says why.\n"
    "\n"
    "`ioview dump --help` explains the command and gives examples.";

// The library's own errors take as many lines as they like.
std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

int Run(int argc, char** argv) {
  CLI::App app(kAbout, "ioview");
  app.set_version_flag("--version", "ioview " IOVIEW_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.footer(kFooter);
  app.require_subcommand(0, 1);
  AddDumpCommand(app);

  // Last argument first. `--name=` alone is an empty value; the library would take the next argument for it.
  std::vector<std::string> arguments;
  for (int i = argc - 1; i > 0; --i) {
    std::string argument = argv[i];
    if (argument.size() > 3 && argument.starts_with("--") && argument.find('=') == argument.size() - 1) {
      arguments.emplace_back();
      argument.pop_back();
    }
    arguments.push_back(std::move(argument));
  }
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::Success& answer) {
    return app.exit(answer);
  } catch (const CLI::ParseError& error) {
    throw ProgramError(OneLine(FirstLine(error.what())));
  }
  if (app.get_subcommands().empty()) {
    throw ProgramError("A command is required, such as dump; see ioview --help");
  }
  return 0;
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
