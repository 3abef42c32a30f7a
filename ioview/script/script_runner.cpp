#include "ioview/script/script_runner.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>
#include <string>

#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "ioview/script/command_table.h"

namespace ioview {

namespace {

bool Prepares(const ScriptCommand& command, const Arguments& arguments) {
  if (command.prepares == ScriptCommand::Prepares::kWithSet) return arguments.Peek() == "set";
  return command.prepares == ScriptCommand::Prepares::kYes;
}

void RunLine(ScriptRun& run, const ScriptLine& line) {
  const std::string& name = line.words.front().text;
  const ScriptCommand* const command = FindCommand(name);
  if (command == nullptr) throw ScriptError(Quoted(name) + " is no command; ioview script --help lists them");
  Arguments arguments(std::span(line.words).subspan(1));
  if (!Prepares(*command, arguments)) run.Start();
  if (!command->checks && !command->keeps_answers) run.out.BeginCommand();
  try {
    command->run(run, arguments);
  } catch (const WrongArgument& error) {
    throw ScriptError(std::string(error.what()) + "; the form is " + name +
                      (command->form.empty() ? "" : " ") + std::string(command->form));
  }
  run.EndCommand(command->keeps_answers);
}

int Report(const ScriptOptions& options, std::size_t line, int status, const char* text) {
  std::fprintf(stderr, "ioview: %s:%zu: %s\n", OneLine(options.file).c_str(), line, OneLine(text).c_str());
  return status;
}

int RunLines(ScriptRun& run, ScriptReader& reader, const ScriptOptions& options) {
  try {
    while (const std::optional<ScriptLine> line = reader.Next()) RunLine(run, *line);
    run.EndCommand(false);
    if (options.file == "-" && std::ferror(stdin) != 0) throw ScriptError(kLostInput);
  } catch (const ScriptError& error) {
    return Report(options, reader.LineNumber(), error.status, error.what());
  } catch (const ProgramError& error) {
    return Report(options, reader.LineNumber(), ScriptError::kWrong, error.what());
  }
  return 0;
}

}  // namespace

int RunScript(const ScriptOptions& options) {
  std::ifstream file;
  if (options.file != "-") {
    RequireReadableFile(options.file);
    file.open(options.file, std::ios::binary);
  }
  ScriptReader reader(options.file == "-" ? std::cin : file);
  ScriptRun run(options);
  const int status = RunLines(run, reader, options);
  run.SaveStores();
  return status;
}

}  // namespace ioview
