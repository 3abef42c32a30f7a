// What a pane looks like: as text, as drawing operations, as a picture.

#include <filesystem>
#include <string>
#include <system_error>

#include "ioview/program_error.h"
#include "ioview/script/command_table.h"
#include "ioview/script/pane_focus.h"
#include "platform/headless/recording_dc.h"

namespace ioview {

namespace {

void Dump(ScriptRun& run, Arguments& arguments) {
  const ScriptPane pane = run.Pane(ScriptRun::PaneOf(arguments));
  arguments.End();
  run.out.Text(pane.grid.GetDumpText());
}

void Paint(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  arguments.End();
  const ScriptPane pane = ShownPane(run, index);
  const platform::RECT area = pane.grid.GetClientRect();
  platform::RecordingDC dc(area);
  pane.grid.Paint(dc, area);
  for (const std::string& line : dc.GetLines()) run.out.Line(line);
}

void Screenshot(ScriptRun& run, Arguments& arguments) {
  const PaneIndex index = ScriptRun::PaneOf(arguments);
  const std::string file = run.places.Native(arguments.Text());
  arguments.End();
  const ScriptPane pane = ShownPane(run, index);
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(file).parent_path(), error);
  if (!run.pictures.Save(pane.window, file)) throw ScriptError(OneLine(file) + ": Can't be written");
}

constexpr ScriptCommand kCommands[] = {
    {"dump", "PANE", Dump},
    {"paint", "PANE", Paint},
    {"screenshot", "PANE FILE.png", Screenshot},
};

}  // namespace

std::span<const ScriptCommand> PictureCommands() {
  return kCommands;
}

}  // namespace ioview
