// The session and the user settings of a script: in memory, or in files that the user named.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ioview/host/custom_placeholders.h"
#include "ioview/store/store_files.h"
#include "ioview/store/stored_values.h"

namespace ioview {

class ScriptStores {
 public:
  // Native paths; without one the store begins empty and goes with the run. Notes about files that can't be
  // used go to standard error.
  ScriptStores(const std::optional<std::string>& workspace_directory,
               const std::optional<std::string>& settings_file);

  UserSettings& Settings() { return settings_.settings; }
  const std::vector<CustomPlaceholder>& GlobalPlaceholders() const { return settings_.global_placeholders; }
  // What the first instance begins with.
  const SessionValues& Session() const { return session_; }

  // Writes what has changed since the last call. `session` is that of the first instance. Throws ProgramError
  // when a file can't be written.
  void Save(const SessionValues& session);

 private:
  std::string session_file_;  // empty: none
  std::string settings_file_;
  SessionValues session_;
  SettingsContents settings_;
  std::size_t saved_session_changes_ = 0;
  std::size_t saved_settings_changes_ = 0;
};

}  // namespace ioview
