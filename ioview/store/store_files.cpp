#include "ioview/store/store_files.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

#include "ioview/program_error.h"
#include "ioview/store/json_file.h"
#include "ioview/store/store_text.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr char kSessions[] = "sessions";
constexpr char kSettings[] = "settings";
constexpr char kPlaceholders[] = "placeholders";
constexpr char kWindow[] = "window";

FileFault WrongMember(const std::string& name, const char* what) {
  return FileFault("a member \"" + name + "\" is " + what);
}

// Null when there is none; the last of several. An object read here has few members.
const Json* Member(const Json& object, const std::string& name) {
  const Json* last = nullptr;
  for (const auto& [key, value] : object.get_ref<const Json::object_t&>()) {
    if (key == name) last = &value;
  }
  return last;
}

// The elements of a list of objects; none where the member is missing.
const Json::array_t& ObjectsIn(const Json& object, const std::string& name) {
  static const Json::array_t kNone;
  const Json* list = Member(object, name);
  if (list == nullptr) return kNone;
  if (!list->is_array()) throw WrongMember(name, "no list");
  for (const Json& element : *list) {
    if (!element.is_object()) throw WrongMember(name, "no list of objects");
  }
  return list->get_ref<const Json::array_t&>();
}

std::u16string TextOf(const Json& value, const std::string& name) {
  if (!value.is_string()) throw WrongMember(name, "no text");
  return TextFromStore(value.get_ref<const std::string&>());
}

std::u16string TextIn(const Json& object, const std::string& name, bool required) {
  const Json* value = Member(object, name);
  if (value != nullptr) return TextOf(*value, name);
  if (required) throw WrongMember(name, "missing");
  return {};
}

SessionValues SessionsOf(const Json& file) {
  SessionValues values;
  for (const Json& session : ObjectsIn(file, kSessions)) {
    const SessionValues::Names names{TextIn(session, "workspace", true), TextIn(session, "project", true),
                                     TextIn(session, "configuration", true)};
    const Json* entries = Member(session, "values");
    if (entries == nullptr) continue;
    if (!entries->is_object()) throw WrongMember("values", "no object");
    for (const auto& [key, value] : entries->get_ref<const Json::object_t&>()) {
      values.Set(names, TextFromStore(key), TextOf(value, "values"));
    }
  }
  return values;
}

UserSettings::Value SettingOf(const Json& value) {
  if (value.is_string()) return TextOf(value, "value");
  using Limits = std::numeric_limits<std::int32_t>;
  // One beyond 64 bits is none of the integers; only negative ones aren't unsigned.
  if (!value.is_number_integer() ||
      (value.is_number_unsigned() && value.get<std::uint64_t>() > Limits::max()) ||
      value.get<std::int64_t>() < Limits::min()) {
    throw WrongMember("value", "neither text nor a number of 32 bits");
  }
  return value.get<std::int32_t>();
}

std::string BytesOf(const std::u16string& digits) {
  std::string bytes;
  const auto value = [](char16_t digit) -> unsigned {
    if (digit >= u'0' && digit <= u'9') return digit - u'0';
    if (digit >= u'a' && digit <= u'f') return digit - u'a' + 10u;
    throw WrongMember(kWindow, "no row of hexadecimal digits");
  };
  if (digits.size() % 2 != 0) throw WrongMember(kWindow, "no row of hexadecimal digits");
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    bytes += static_cast<char>(value(digits[i]) << 4 | value(digits[i + 1]));
  }
  return bytes;
}

std::string DigitsOf(std::string_view bytes) {
  std::string digits;
  for (const char byte : bytes) {
    digits += "0123456789abcdef"[static_cast<unsigned char>(byte) >> 4];
    digits += "0123456789abcdef"[static_cast<unsigned char>(byte) & 0xF];
  }
  return digits;
}

SettingsContents SettingsOf(const Json& file) {
  SettingsContents contents;
  for (const Json& entry : ObjectsIn(file, kSettings)) {
    const Json* value = Member(entry, "value");
    if (value == nullptr) throw WrongMember("value", "missing");
    contents.settings.Set(TextIn(entry, "section", false), TextIn(entry, "key", true), SettingOf(*value));
  }
  for (const Json& entry : ObjectsIn(file, kPlaceholders)) {
    contents.global_placeholders.push_back({platform::FromWide(TextIn(entry, "name", true)),
                                            platform::FromWide(TextIn(entry, "value", true)),
                                            platform::FromWide(TextIn(entry, "description", false))});
  }
  contents.window_layout = BytesOf(TextIn(file, kWindow, false));
  return contents;
}

constexpr FileShape kSessionShape = {
    [](std::string_view name) { return name == kSessions; },
    [](const Json& file) { static_cast<void>(SessionsOf(file)); },
};
constexpr FileShape kSettingsShape = {
    [](std::string_view name) { return name == kSettings || name == kPlaceholders || name == kWindow; },
    [](const Json& file) { static_cast<void>(SettingsOf(file)); },
};

// What `read` makes of the file; the empty store, and a note, when it can't be used.
template <typename Store>
Store Load(const std::string& path, Store (*read)(const Json&), LoadNotes& notes) {
  std::string fault;
  try {
    return read(ReadJsonFile(path));
  } catch (const FileFault& error) {
    fault = error.what();
  }
  const std::optional<std::string> aside = KeepAside(path);
  notes.lines.push_back(OneLine(path) + " can't be used: " + fault + ". " +
                        (aside ? "It is kept as " + OneLine(*aside) + "."
                               : "It can't be kept aside, so nothing will be stored in its place."));
  return Store();
}

std::string HomeDirectory() {
  const char* home = std::getenv("HOME");
  if (home != nullptr && *home != '\0') return home;
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

}  // namespace

std::string SessionFileOf(const std::string& workspace_directory) {
  return workspace_directory + "/.ioview/session.json";
}

std::string DefaultSettingsFile() {
  constexpr char kFile[] = "/ioview/settings.json";
  // A relative directory doesn't count.
  const char* directory = std::getenv("XDG_CONFIG_HOME");
  if (directory != nullptr && *directory == '/') return std::string(directory) + kFile;
  const std::string home = HomeDirectory();
  return home.empty() ? "" : home + "/.config" + kFile;
}

SessionValues LoadSessionFile(const std::string& path, LoadNotes& notes) {
  return Load<SessionValues>(path, SessionsOf, notes);
}

bool SaveSessionFile(const std::string& path, const SessionValues& values, std::string& why) {
  Json sessions = Json::array();
  for (const SessionValues::Names& names : values.AllNames()) {
    Json session = Json::object();
    session["workspace"] = StoredText(names.workspace);
    session["project"] = StoredText(names.project);
    session["configuration"] = StoredText(names.configuration);
    Json entries = Json::object();
    for (const SessionValues::Entry& entry : values.Entries(names)) {
      entries[StoredText(entry.key)] = StoredText(entry.value);
    }
    session["values"] = std::move(entries);
    sessions.push_back(std::move(session));
  }
  Json file = Json::object();
  file[kSessions] = std::move(sessions);
  return WriteJsonFile(path, std::move(file), kSessionShape, why);
}

SettingsContents LoadSettingsFile(const std::string& path, LoadNotes& notes) {
  return Load<SettingsContents>(path, SettingsOf, notes);
}

bool SaveSettingsFile(const std::string& path, const SettingsContents& contents, std::string& why) {
  Json settings = Json::array();
  for (const UserSettings::Entry& entry : contents.settings.Entries()) {
    Json setting = Json::object();
    if (!entry.section.empty()) setting["section"] = StoredText(entry.section);
    setting["key"] = StoredText(entry.key);
    if (const auto* number = std::get_if<std::int32_t>(&entry.value)) {
      setting["value"] = *number;
    } else {
      setting["value"] = StoredText(std::get<std::u16string>(entry.value));
    }
    settings.push_back(std::move(setting));
  }
  Json placeholders = Json::array();
  for (const CustomPlaceholder& placeholder : contents.global_placeholders) {
    Json entry = Json::object();
    entry["name"] = StoredText(platform::ToWide(placeholder.name));
    entry["value"] = StoredText(platform::ToWide(placeholder.value));
    entry["description"] = StoredText(platform::ToWide(placeholder.description));
    placeholders.push_back(std::move(entry));
  }
  Json file = Json::object();
  file[kSettings] = std::move(settings);
  file[kPlaceholders] = std::move(placeholders);
  if (!contents.window_layout.empty()) file[kWindow] = DigitsOf(contents.window_layout);
  return WriteJsonFile(path, std::move(file), kSettingsShape, why);
}

}  // namespace ioview
