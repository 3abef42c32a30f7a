// Session and user settings, by the component's own load and save, and entry by entry.

#include <string>
#include <variant>

#include "ioview/script/command_table.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

// The session that the component stores to now.
SessionValues::Names OpenNames(const HostServices& host) {
  const Workspace& workspace = host.workspace;
  return {platform::ToWide(workspace.name), platform::ToWide(workspace.project),
          platform::ToWide(workspace.configuration)};
}

void PrintEntry(ScriptRun& run, const std::string& key, const std::string& value) {
  run.out.Line(key + " = " + value);
}

void SetSessionValue(ScriptRun& run, Arguments& arguments) {
  const std::string& key = arguments.Text();
  const std::string& value = arguments.Text();
  arguments.End();
  run.Host().session_values.Set(OpenNames(run.Host()), platform::ToWide(key), platform::ToWide(value));
}

void ShowSession(ScriptRun& run) {
  for (const SessionValues::Entry& entry : run.Host().session_values.Entries(OpenNames(run.Host()))) {
    PrintEntry(run, platform::FromWide(entry.key), platform::FromWide(entry.value));
  }
}

void Session(ScriptRun& run, Arguments& arguments) {
  enum class Verb { kLoad, kSave, kDirty, kShow, kSet };
  const Verb verb = arguments.Choice<Verb>({{"load", Verb::kLoad},
                                            {"save", Verb::kSave},
                                            {"dirty", Verb::kDirty},
                                            {"show", Verb::kShow},
                                            {"set", Verb::kSet}});
  if (verb == Verb::kSet) return SetSessionValue(run, arguments);
  arguments.End();
  if (verb == Verb::kShow) return ShowSession(run);
  Instance& instance = run.Component();
  if (instance.Sessions() == nullptr) throw ScriptError("the component has no workspace client");
  if (verb == Verb::kDirty) {
    run.out.Line(instance.IsSessionDirty() ? "1" : "0");
  } else if (verb == Verb::kLoad) {
    instance.LoadSession();
  } else {
    instance.SaveSession();
    run.SaveStores();
  }
}

void SetSetting(ScriptRun& run, Arguments& arguments) {
  const std::u16string path = platform::ToWide(arguments.Text());
  const std::string& text = arguments.Text();
  arguments.End();
  const std::size_t slash = path.find(u'/');
  const std::u16string section = slash == std::u16string::npos ? std::u16string() : path.substr(0, slash);
  const std::u16string key = slash == std::u16string::npos ? path : path.substr(slash + 1);
  if (const std::optional<std::int32_t> number = ParseSignedNumber(text)) {
    run.Host().settings.Set(section, key, *number);
  } else {
    run.Host().settings.Set(section, key, platform::ToWide(text));
  }
}

void ShowSettings(ScriptRun& run) {
  for (const UserSettings::Entry& entry : run.Host().settings.Entries()) {
    const std::string section = entry.section.empty() ? "" : platform::FromWide(entry.section) + '/';
    const auto* const number = std::get_if<std::int32_t>(&entry.value);
    PrintEntry(run, section + platform::FromWide(entry.key),
               number != nullptr ? std::to_string(*number)
                                 : platform::FromWide(std::get<std::u16string>(entry.value)));
  }
}

void Settings(ScriptRun& run, Arguments& arguments) {
  const bool set = arguments.Choice<bool>({{"show", false}, {"set", true}});
  if (set) return SetSetting(run, arguments);
  arguments.End();
  ShowSettings(run);
}

constexpr ScriptCommand kCommands[] = {
    {"session", "load|save|dirty|show, or set KEY VALUE", Session, ScriptCommand::Prepares::kWithSet},
    {"settings", "show, or set KEY VALUE", Settings, ScriptCommand::Prepares::kWithSet},
};

}  // namespace

std::span<const ScriptCommand> StoreCommands() {
  return kCommands;
}

}  // namespace ioview
