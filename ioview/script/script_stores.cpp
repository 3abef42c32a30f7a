#include "ioview/script/script_stores.h"

#include <cstdio>

#include "ioview/program_error.h"

namespace ioview {

ScriptStores::ScriptStores(const std::optional<std::string>& workspace_directory,
                           const std::optional<std::string>& settings_file)
    : session_file_(workspace_directory ? SessionFileOf(*workspace_directory) : ""),
      settings_file_(settings_file.value_or("")) {
  LoadNotes notes;
  if (!session_file_.empty()) session_ = LoadSessionFile(session_file_, notes);
  if (!settings_file_.empty()) settings_ = LoadSettingsFile(settings_file_, notes);
  for (const std::string& line : notes.lines) std::fprintf(stderr, "ioview: %s\n", OneLine(line).c_str());
  saved_session_changes_ = session_.Changes();
  saved_settings_changes_ = Settings().Changes();
}

void ScriptStores::Save(const SessionValues& session) {
  std::string why;
  if (!session_file_.empty() && session.Changes() != saved_session_changes_) {
    if (!SaveSessionFile(session_file_, session, why)) throw ProgramError(why);
    saved_session_changes_ = session.Changes();
  }
  if (!settings_file_.empty() && Settings().Changes() != saved_settings_changes_) {
    if (!SaveSettingsFile(settings_file_, settings_, why)) throw ProgramError(why);
    saved_settings_changes_ = Settings().Changes();
  }
}

}  // namespace ioview
