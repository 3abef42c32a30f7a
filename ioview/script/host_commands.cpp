// The host around the component: its services, its workspace, and the system that both run on.

#include <optional>
#include <string>

#include "ioview/host/service_table.h"
#include "ioview/number_text.h"
#include "ioview/program_error.h"
#include "ioview/script/command_table.h"
#include "ioview/script/help_listener.h"
#include "platform/base/system.h"

namespace ioview {

namespace {

// The root's operations are logged as those of a service, too.
std::string_view ServiceName(const std::string& name_or_id) {
  if (name_or_id == kRootName) return kRootName;
  const ServiceEntry* const service = FindService(name_or_id);
  if (service == nullptr) throw WrongArgument(Quoted(name_or_id) + " is no service of the host");
  return service->name;
}

void Calls(ScriptRun& run, Arguments& arguments) {
  const std::string_view service = arguments.HasMore() ? ServiceName(arguments.Text()) : std::string_view();
  arguments.End();
  for (const std::string& call : run.Host().calls.Take(service)) run.out.Line(call);
}

void Recorder(ScriptRun& run, Arguments& arguments) {
  const bool on = arguments.Choice<bool>({{"on", true}, {"off", false}});
  arguments.End();
  run.Host().recorder.Switch(on);
}

void Recorded(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  for (const std::string& command : run.Host().recorder.Take()) run.out.Line(command);
}

void Service(ScriptRun& run, Arguments& arguments) {
  const std::string& name = arguments.Text();
  const auto availability = arguments.Choice<Availability>({{"off", Availability::kOff},
                                                            {"on", Availability::kOn},
                                                            {"null", Availability::kNull},
                                                            {"fail", Availability::kFail}});
  arguments.End();
  if (!run.Host().SetAvailability(name, availability)) {
    throw WrongArgument(Quoted(name) + " is no service of the host");
  }
}

void SetWorkspace(ScriptRun& run, Arguments& arguments) {
  Workspace& open = run.Host().workspace;
  if (arguments.Left() == 1 && arguments.Peek() == "none") {
    open = Workspace();
    return;
  }
  Workspace workspace;
  workspace.name = arguments.Text();
  workspace.project = arguments.Text();
  workspace.configuration = arguments.Text();
  workspace.directory =
      arguments.HasMore() ? run.places.ForComponent(arguments.Text()) : run.WorkspaceDirectory();
  arguments.End();
  while (workspace.directory.size() > 3 && workspace.directory.ends_with('\\'))
    workspace.directory.pop_back();
  open = workspace;
}

void Placeholder(ScriptRun& run, Arguments& arguments) {
  const bool global = arguments.Choice<bool>({{"global", true}, {"workspace", false}});
  CustomPlaceholder placeholder;
  placeholder.name = arguments.Text();
  placeholder.value = arguments.Text();
  placeholder.description = arguments.Text();
  arguments.End();
  CustomPlaceholders& placeholders = run.Host().placeholders;
  if (global) {
    placeholders.SetGlobal(placeholder);
  } else {
    placeholders.SetOfWorkspace(placeholder);
  }
}

void CodePage(ScriptRun& run, Arguments& arguments) {
  const unsigned page = arguments.Choice<unsigned>({{"65001", 65001}, {"1252", 1252}, {"932", 932}});
  arguments.End();
  run.SetCodePage(page);
}

// PLATFORM.MAJOR.MINOR, decimal.
void SetVersion(const std::string& version) {
  const std::size_t first = version.find('.');
  const std::size_t second = first == std::string::npos ? first : version.find('.', first + 1);
  std::optional<std::uint32_t> platform_id, major, minor;
  if (second != std::string::npos) {
    platform_id = ParseNumber(version.substr(0, first));
    major = ParseNumber(version.substr(first + 1, second - first - 1));
    minor = ParseNumber(version.substr(second + 1));
  }
  if (!platform_id || !major || !minor) throw WrongArgument(Quoted(version) + " is no version like 2.6.1");
  platform::SystemRecord& system = platform::System();
  system.platform_id = *platform_id;
  system.version_major = *major;
  system.version_minor = *minor;
}

std::string WithBackslash(std::string directory) {
  if (!directory.ends_with('\\')) directory += '\\';
  return directory;
}

void SetSystem(ScriptRun& run, Arguments& arguments) {
  enum class Key { kVersion, kLanguage, kWindows, kTemp, kUser, kHelp };
  const Key key = arguments.Choice<Key>({{"version", Key::kVersion},
                                         {"language", Key::kLanguage},
                                         {"windows", Key::kWindows},
                                         {"temp", Key::kTemp},
                                         {"user", Key::kUser},
                                         {"help", Key::kHelp}});
  const std::string& value = arguments.Text();
  arguments.End();
  platform::SystemRecord& system = platform::System();
  switch (key) {
    case Key::kVersion:
      return SetVersion(value);
    case Key::kLanguage:
      system.language = value;
      return;
    case Key::kWindows:
      system.windows_directory = run.places.ForComponent(value);
      system.system_directory = WithBackslash(system.windows_directory) + "system32";
      return;
    case Key::kTemp:
      system.temp_directory = WithBackslash(run.places.ForComponent(value));
      return;
    case Key::kUser:
      system.user = value;
      return;
    case Key::kHelp:
      return ListenToHelpEngine(run.places.ForComponent(value),
                                [&run](const std::string& path, std::uint32_t number) {
                                  run.out.Line("help: " + path + ' ' + std::to_string(number));
                                });
  }
}

constexpr auto kPrepares = ScriptCommand::Prepares::kYes;

constexpr ScriptCommand kCommands[] = {
    {"calls", "[SERVICE]", Calls},
    {"recorder", "on|off", Recorder, kPrepares},
    {"recorded", "", Recorded},
    {"service", "SERVICE off|on|null|fail", Service, kPrepares},
    {"workspace", "NAME PROJECT CONFIGURATION [DIR], or none", SetWorkspace, kPrepares},
    {"placeholder", "global|workspace NAME VALUE DESCRIPTION", Placeholder, kPrepares},
    {"codepage", "65001|1252|932", CodePage, kPrepares},
    {"system", "version|language|windows|temp|user|help VALUE", SetSystem, kPrepares},
};

}  // namespace

std::span<const ScriptCommand> HostCommands() {
  return kCommands;
}

}  // namespace ioview
