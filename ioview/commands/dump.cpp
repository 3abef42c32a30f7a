#include "ioview/commands/dump.h"

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "ioview/host/host_services.h"
#include "ioview/interim/view_dump.h"
#include "ioview/memory_file.h"
#include "ioview/message_printer.h"
#include "ioview/native_file.h"
#include "ioview/number_text.h"
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

// The words of the command line as they stand.
struct DumpArguments {
  std::string file;
  std::string base = "0";
  std::optional<std::string> memory;
  std::string endian = "big";
  std::string open = "modules";
  std::string page = "all";
  std::string selection;
  std::string code_page = "65001";
};

// What the word of an option stands for; throws ProgramError for one that isn't listed.
template <typename Value>
Value Choose(std::string_view option, std::string_view word,
             std::initializer_list<std::pair<std::string_view, Value>> choices) {
  std::string names;
  for (const auto& [name, value] : choices) {
    if (name == word) return value;
    names += (names.empty() ? "" : ", ") + std::string(name);
  }
  throw ProgramError(std::string(option) + ": " + Quoted(word) + " is not one of " + names);
}

std::uint32_t BaseAddress(std::string_view word) {
  const std::optional<std::uint32_t> base = ParseHexWord(word, 8);
  if (!base) {
    throw ProgramError("--base: " + Quoted(word) + " is not a hexadecimal number of up to eight digits");
  }
  return *base;
}

void RunDump(const DumpArguments& arguments) {
  interim::DumpRequest request;
  request.selection = arguments.selection;
  request.page = Choose<interim::Page>(
      "--pane", arguments.page, {{"all", interim::Page::kAll}, {"selected", interim::Page::kSelected}});
  request.open = Choose<interim::OpenRows>("--open", arguments.open,
                                           {{"none", interim::OpenRows::kNone},
                                            {"modules", interim::OpenRows::kModules},
                                            {"all", interim::OpenRows::kAll}});
  const ByteOrder order = Choose<ByteOrder>("--endian", arguments.endian,
                                            {{"big", ByteOrder::kBig}, {"little", ByteOrder::kLittle}});
  const unsigned code_page = Choose<unsigned>("--codepage", arguments.code_page,
                                              {{"65001", 65001u}, {"1252", 1252u}, {"932", 932u}});

  HostServices host;
  host.device.SetBaseAddress(BaseAddress(arguments.base));
  host.target.SetArea({0, 0xFFFFFFFF, order});
  if (arguments.memory) LoadMemoryFile(host.target, *arguments.memory);

  platform::SetAnsiCodePage(code_page);
  RequireReadableFile(arguments.file);
  request.path = DrivePathOf(arguments.file);

  const MessagePrinter messages(stderr);
  interim::WriteViewDump(host.root, request, WriteOutput);
  FlushOutput();
}

}  // namespace

void AddDumpCommand(CLI::App& app) {
  const auto arguments = std::make_shared<DumpArguments>();
  CLI::App* dump = app.add_subcommand("dump", kAbout);
  dump->footer(kFooter);
  dump->add_option("FILE", arguments->file, "The I/O definition file, of any name")
      ->required()
      ->type_name("");
  const auto option = [dump](const char* name, auto& word, const char* value, const char* about) {
    dump->add_option(name, word, about)->type_name(value);
  };
  option("--base", arguments->base, "HEX",
         "Base address of the device; 0 (the default) takes the file's own");
  option("--memory", arguments->memory, "MEMORY", "Memory file: what the target's memory holds");
  option("--endian", arguments->endian, "ORDER", "Byte order of the target: big (the default) or little");
  option("--open", arguments->open, "ROWS",
         "Rows to open: none, modules (the default), or all that have children");
  option("--pane", arguments->page, "PAGE", "Page to write: all (the default) or selected registers");
  option("--selection", arguments->selection, "TEXT", "The selected registers, in the file's code page");
  option("--codepage", arguments->code_page, "N",
         "Code page of FILE and output: 65001 (UTF-8, the default), 1252 or 932");
  dump->callback([arguments] { RunDump(*arguments); });
}

}  // namespace ioview
