// Sessions and settings on disk, as JSON. A file is replaced whole or not at all.
//
// session.json: {"sessions": [{"workspace": …, "project": …, "configuration": …, "values": {KEY: TEXT, …}}]}.
// settings.json: {"settings": [{"section": …, "key": …, "value": TEXT or NUMBER}, …],
// "placeholders": [{"name": …, "value": …, "description": …}, …], "window": HEXADECIMAL DIGITS}; sections and
// descriptions may be left out. Members beside these, at the top, are somebody else's and stay where the file
// is written; members inside of the others are dropped.
#pragma once

#include <string>
#include <vector>

#include "ioview/host/custom_placeholders.h"
#include "ioview/store/stored_values.h"

namespace ioview {

// A file that is there and can't be used (unreadable, cut off, another shape) is kept aside under a name of
// its own before anything is written in its place, and its store starts empty.
struct LoadNotes {
  std::vector<std::string> lines;  // what to tell the user, a sentence each, with the paths; often empty
};

// The file of a workspace directory: DIR/.ioview/session.json. Paths are native.
std::string SessionFileOf(const std::string& workspace_directory);
// ioview/settings.json under the user's configuration directory; empty for a user without any.
std::string DefaultSettingsFile();

// A file that isn't there is an empty store.
SessionValues LoadSessionFile(const std::string& path, LoadNotes& notes);
// False, and `why` says in a sentence what is wrong, when it can't be written: what was there before is there
// still.
bool SaveSessionFile(const std::string& path, const SessionValues& values, std::string& why);

// The settings file holds the host's custom placeholders besides, and the layout of the desktop's window.
struct SettingsContents {
  UserSettings settings;
  std::vector<CustomPlaceholder> global_placeholders;
  std::string window_layout;  // opaque bytes, empty for none
};
SettingsContents LoadSettingsFile(const std::string& path, LoadNotes& notes);
bool SaveSettingsFile(const std::string& path, const SettingsContents& contents, std::string& why);

}  // namespace ioview
