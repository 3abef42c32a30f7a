#include "ioview/script/script_places.h"

#include <optional>

#include "ioview/native_file.h"
#include "platform/base/paths.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

bool HasDrive(std::string_view name) {
  if (name.size() < 2 || name[1] != ':') return false;
  return (name[0] >= 'a' && name[0] <= 'z') || (name[0] >= 'A' && name[0] <= 'Z');
}

}  // namespace

std::string ScriptPlaces::Native(std::string_view name) const {
  if (HasDrive(name)) {
    if (const std::optional<std::string> native = platform::ToNativePath(name)) return *native;
  }
  return (directory_ / platform::ToUtf8(name)).lexically_normal().string();
}

std::string ScriptPlaces::ForComponent(std::string_view name) const {
  if (name.starts_with("$(") || HasDrive(name)) return std::string(name);
  return DrivePathOf(Native(name));
}

}  // namespace ioview
