#include "ioview/commands/script.h"

#include <memory>
#include <string>

#include "ioview/script/command_table.h"
#include "ioview/script/script_runner.h"

namespace ioview {

namespace {

constexpr char kAbout[] = "Drive the I/O view by a script, without a screen";

constexpr char kFooter[] =
    "A script is a text, one command a line. Blanks separate words, \"...\" keeps blanks\n"
    "together (\\\" \\\\ and \\n inside), a line that begins with # is a comment. Addresses,\n"
    "bytes and statuses are hexadecimal, other numbers decimal. File names are taken from the\n"
    "script's directory. PANE is `all` or `selected`; ROW is a path of names: PORT/PDATA/FAN.\n"
    "\n"
    "Prepare (until the first other command nothing runs):\n"
    "  device FILE.io [BASE]          the definition file that the view opens\n"
    "  memory FILE, poke ADDR BYTE... what the target's memory holds\n"
    "  endian big|little              its byte order\n"
    "  session set KEY VALUE          what an earlier session left behind\n"
    "Look:\n"
    "  rows PANE                      every row that shows; a changed one ends in *\n"
    "  dump PANE, paint PANE          as text to save, as drawing operations\n"
    "  screenshot PANE FILE.png       as a picture\n"
    "  peek ADDR COUNT, accesses      the target's bytes, and who read and wrote them\n"
    "Do:\n"
    "  open, load FILE, close PANE    the view and its definition file\n"
    "  expand PANE ROW, select PANE ROW, click PANE ROW [PART], key PANE KEY\n"
    "  edit PANE ROW TEXT enter       types into the Value cell and ends with Enter\n"
    "  command ID [PANE]              a menu command; `state ID` tells whether it is enabled\n"
    "  step COUNT KIND TIMES          the target stops after some steps\n"
    "Answer (before the command that opens a dialog; its steps stand between semicolons):\n"
    "  answer set ID TEXT; check ID 1; show; ok\n"
    "  answer file PATH, answer print FILE, answer menu INDEX, answer cancel\n"
    "  Steps: set|type|paste ID TEXT, caret ID FROM [TO], check ID 0|1, pick ID INDEX, press ID,\n"
    "  tick|click|expand|collapse ROW, header COLUMN, key [ID] KEY, show, ok, cancel\n"
    "Check:\n"
    "  expect TEXT                    what the command before printed\n"
    "\n"
    "Message boxes, dialogs, beeps and fired events print a line by themselves.\n"
    "\n"
    "Examples:\n"
    "  ioview script tour.script\n"
    "      Runs a file; its output can be kept and compared with that of the next run.\n"
    "  printf 'device lumen3.io\\nopen\\nexpand all PORT\\nrows all\\n' | ioview script -\n"
    "      Reads from standard input and shows the registers of one module.\n"
    "  ioview script save.script --workspace . --settings settings.json\n"
    "      Keeps session and user settings in files, for a later run.\n"
    "\n"
    "Exit status: 0; 1 when an `expect` failed or an answer was left unused; 2 when the script\n"
    "is wrong. One line on standard error, `ioview: FILE:LINE: TEXT`, then says why.\n"
    "\n"
    "All commands:";

// One a line, the form of its arguments behind it.
std::string CommandLines() {
  std::string lines;
  for (const auto group : AllCommands()) {
    for (const ScriptCommand& command : group) {
      lines += "\n  ";
      lines += command.name;
      if (!command.form.empty()) lines += ' ';
      lines += command.form;
    }
  }
  return lines;
}

}  // namespace

void AddScriptCommand(CLI::App& app, int& status) {
  const auto options = std::make_shared<ScriptOptions>();
  CLI::App* const script = app.add_subcommand("script", kAbout);
  script->footer(kFooter + CommandLines());
  script->add_option("FILE", options->file, "The script; - reads it from standard input")
      ->required()
      ->type_name("");
  script
      ->add_option("--workspace", options->workspace,
                   "Workspace whose session is used; none is used unless given")
      ->type_name("DIR");
  script->add_option("--settings", options->settings, "File with user settings; none are used unless given")
      ->type_name("SETTINGS");
  script->callback([options, &status] { status = RunScript(*options); });
}

}  // namespace ioview
