#include "ioview/commands/dump.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ioview/commands/device_options.h"
#include "ioview/component/headless_stage.h"
#include "ioview/component/instance.h"
#include "ioview/component/open_definition.h"
#include "ioview/program_error.h"
#include "ioview/standard_output.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr char kAbout[] = "Write the register tree of a definition file as text";

constexpr char kFooter[] =
    "The text goes to standard output: column titles, a rule, and a line for each row that\n"
    "is shown. Messages about FILE go to standard error.\n"
    "\n"
    "What it reads:\n"
    "  Only registers of opened modules are read from the simulated target. Memory that the\n"
    "  memory file doesn't set reads as 0. A memory file has lines `ADDR: BYTE BYTE ...`,\n"
    "  all hexadecimal; `#` starts a comment:\n"
    "    00FF0000: 12 34    # two bytes from there on\n"
    "\n"
    "Selections:\n"
    "  The selected page shows what --selection names, a text of names with `?` behind\n"
    "  each and what is below one in braces: '{PORT?{PDATA?PCTRL?}TIMER?}'. Case and\n"
    "  blanks don't count. Names that FILE doesn't have are kept and shown as they stand.\n"
    "\n"
    "Examples:\n"
    "  ioview dump lumen3.io\n"
    "      Every module with its registers, all values 0.\n"
    "  ioview dump lumen3.io --memory lumen.mem --open all\n"
    "      Registers and bit fields with the values of a memory image.\n"
    "  ioview dump lumen2.io --pane selected --selection '{PORT?{PDATA?}}'\n"
    "      One register of the selected page.\n"
    "  ioview dump lumen3.io --base 1FF0000 --endian little\n"
    "      The same device at another address, little-endian.\n"
    "\n"
    "Exit status: 0 when the text was written, whatever the messages; 2 when a file can't\n"
    "be opened or an option is wrong.";

enum class OpenRows { kNone, kModules, kAll };

// The words of the command line as they stand.
struct DumpArguments {
  DeviceOptions device;
  std::string open = "modules";
  std::string page = "all";
  std::string selection;
};

// A key of the component's session, with the identity that it stores under.
constexpr std::string_view kSelectionKey = "{F866DB60-6186-11D5-8BBE-0004E2013C71}IOSelection IOWnd0";

// What the component shows goes to standard error; only what it says about the file is of interest.
void PrintMessage(const std::string& line) {
  if (!line.starts_with("message")) return;
  std::fprintf(stderr, "%s\n", line.c_str());
  std::fflush(stderr);
}

// Opens rows in the order in which they are shown, and closes what the view has opened by itself below them.
void OpenTheRows(platform::SECTreeCtrl& grid, OpenRows which) {
  if (which != OpenRows::kAll) {
    for (std::size_t row = grid.GetRowCount(); row-- > 0;) {
      grid.Expand(grid.GetItemAtRow(row), platform::TVE_COLLAPSE);
    }
  }
  if (which == OpenRows::kNone) return;
  std::vector<platform::HTREEITEM> modules;
  for (std::size_t row = 0; which == OpenRows::kModules && row < grid.GetRowCount(); ++row) {
    modules.push_back(grid.GetItemAtRow(row));
  }
  for (const platform::HTREEITEM module : modules) grid.Expand(module, platform::TVE_EXPAND);
  for (std::size_t row = 0; which == OpenRows::kAll && row < grid.GetRowCount(); ++row) {
    grid.Expand(grid.GetItemAtRow(row), platform::TVE_EXPAND);
  }
}

void WriteLines(std::string_view text) {
  std::string lines;
  lines.reserve(text.size());
  for (const char c : text) {
    if (c != '\r') lines += c;
  }
  WriteOutput(lines);
}

void RunDump(const DumpArguments& arguments) {
  const PaneIndex page = Choose<PaneIndex>("--pane", arguments.page,
                                           {{"all", PaneIndex::kAll}, {"selected", PaneIndex::kSelected}});
  const OpenRows open =
      Choose<OpenRows>("--open", arguments.open,
                       {{"none", OpenRows::kNone}, {"modules", OpenRows::kModules}, {"all", OpenRows::kAll}});
  arguments.device.SetCodePage();
  UserSettings settings = arguments.device.LoadSettings();

  const HeadlessStage stage(PrintMessage);
  const ComponentLibrary library;
  Instance instance(library, settings);
  arguments.device.Prepare(instance.host);
  if (!arguments.selection.empty()) {
    instance.host.session_values.Set(NamesOf(instance.host.workspace), platform::ToWide(kSelectionKey),
                                     platform::ToWide(arguments.selection));
  }
  if (platform::Failed(instance.Start(true))) throw ProgramError("The component can't be connected");
  Instance::RunCommand(kOpenViewCommand, instance.Frame());
  platform::SECTreeCtrl* const grid = instance.Grid(page);
  if (grid == nullptr) throw ProgramError("The component has opened no view");
  OpenTheRows(*grid, open);
  WriteLines(grid->GetDumpText());
  FlushOutput();
}

}  // namespace

void AddDumpCommand(CLI::App& app) {
  const auto arguments = std::make_shared<DumpArguments>();
  CLI::App* dump = app.add_subcommand("dump", kAbout);
  dump->footer(kFooter);
  arguments->device.AddTo(*dump);
  const auto option = [dump](const char* name, auto& word, const char* value, const char* about) {
    dump->add_option(name, word, about)->type_name(value);
  };
  option("--open", arguments->open, "ROWS",
         "Rows to open: none, modules (the default), or all that have children");
  option("--pane", arguments->page, "PAGE", "Page to write: all (the default) or selected registers");
  option("--selection", arguments->selection, "TEXT", "The selected registers, in the file's code page");
  dump->callback([arguments] { RunDump(*arguments); });
}

}  // namespace ioview
