#include "platform/base/system.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

#include "platform/base/paths.h"
#include "platform/base/text.h"

namespace platform {

namespace {

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::string NameOfAccount() {
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) return {};
  return found->pw_name;
}

}  // namespace

SystemRecord& System() {
  static SystemRecord record;
  return record;
}

std::string GetTempPath() {
  std::string directory = System().temp_directory;
  if (directory.empty()) {
    std::optional<std::string> found = FromNativePath(Environment("TMPDIR"));
    if (!found) found = FromNativePath("/tmp");
    // With a drive root that hides the machine's own, the fallback is the one that every user has.
    directory = found.value_or(System().windows_directory);
  }
  if (FindLastChar(directory, '\\') != directory.size() - 1) directory += '\\';
  return directory;
}

std::string GetUserName() {
  if (!System().user.empty()) return System().user;
  const std::string name = Environment("USER");
  return FromUtf8(name.empty() ? NameOfAccount() : name);
}

std::string GetProfileString(const std::string& section, const std::string& key, const std::string& fallback,
                             std::size_t size) {
  const bool known = EqualNoCase(section, "intl") && EqualNoCase(key, "sLanguage");
  const std::string& value = known && !System().language.empty() ? System().language : fallback;
  return size == 0 ? std::string() : value.substr(0, size - 1);
}

}  // namespace platform
