// What the system answers about itself: one record that a program or a test may set. Stands in for the
// version, directory, user, profile and registry queries.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

struct SystemRecord {
  std::uint32_t platform_id = 2;
  std::uint32_t version_major = 6;
  std::uint32_t version_minor = 1;
  std::uint32_t service_pack = 0;
  std::string windows_directory = "c:\\windows";
  std::string system_directory = "c:\\windows\\system32";
  std::string temp_directory;  // ends in a backslash; empty: the machine's
  std::string user;            // empty: the machine's
  std::string language = "eng";
  std::string help_engine;  // path of the help library, empty for none
};

// The record itself, to read and to set.
SystemRecord& System();

// The temp directory with its trailing backslash, and the user's name, with the machine's own as fallback.
std::string GetTempPath();
std::string GetUserName();
// The system profile: section "intl", key "sLanguage" is the record's language while that isn't empty; any
// other gives `fallback`. Cut to `size` - 1 bytes.
std::string GetProfileString(const std::string& section, const std::string& key, const std::string& fallback,
                             std::size_t size);

}  // namespace platform
