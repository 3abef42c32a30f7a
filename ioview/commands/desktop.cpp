#include "ioview/commands/desktop.h"

#include <QtWidgets/qapplication.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "ioview/commands/device_options.h"
#include "ioview/desktop/desktop.h"
#include "ioview/memory_file.h"
#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "ioview/store/store_files.h"

namespace ioview {

struct DesktopArguments {
  DeviceOptions device;
  bool demo = false;
};

namespace {

constexpr char kNoDisplay[] =
    "There is no display to show a window on; ioview dump and ioview script do without";

bool HasDisplay() {
  for (const char* const variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* const value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

// While Qt looks for the display: it says more than a line when none answers, and ends the program by a
// signal.
class DisplayWatch {
 public:
  DisplayWatch() : before_(std::signal(SIGABRT, &DisplayWatch::OnAbort)) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  }
  DisplayWatch(const DisplayWatch&) = delete;
  DisplayWatch& operator=(const DisplayWatch&) = delete;
  ~DisplayWatch() {
    qInstallMessageHandler(nullptr);
    std::signal(SIGABRT, before_);
  }

 private:
  static void OnAbort(int) {
    for (const std::string_view part :
         {std::string_view("ioview: "), std::string_view(kNoDisplay), std::string_view("\n")}) {
      if (::write(STDERR_FILENO, part.data(), part.size()) < 0) break;
    }
    ::_exit(2);
  }

  void (*before_)(int);
};

std::string FolderOf(const std::string& file) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::absolute(file, error);
  if (error) throw ProgramError(OneLine(file) + ": " + error.message());
  return path.parent_path().string();
}

void PrepareTarget(const DeviceOptions& options, HostServices& host) {
  const ByteOrder order = Choose<ByteOrder>("--endian", options.endian,
                                            {{"big", ByteOrder::kBig}, {"little", ByteOrder::kLittle}});
  host.device.SetBaseAddress(options.BaseAddress());
  host.target.SetArea({0, 0xFFFFFFFF, order});
  if (options.memory) LoadMemoryFile(host.target, *options.memory);
}

}  // namespace

std::shared_ptr<DesktopArguments> AddDesktop(CLI::App& app) {
  auto arguments = std::make_shared<DesktopArguments>();
  DeviceOptions& device = arguments->device;
  std::vector<CLI::Option*> options;
  options.push_back(
      app.add_option("FILE", device.file, "The I/O definition file to show in a window")->type_name(""));
  const auto option = [&](const char* name, auto& word, const char* value, const char* about) {
    options.push_back(app.add_option(name, word, about)->type_name(value));
  };
  option("--base", device.base, "HEX", "Base address of the device; 0 (the default) takes the file's own");
  option("--memory", device.memory, "MEMORY", "Memory file: what the target's memory holds");
  option("--endian", device.endian, "ORDER", "Byte order of the target: big (the default) or little");
  option("--codepage", device.code_page, "N", "Code page of FILE: 65001 (UTF-8, the default), 1252 or 932");
  option("--workspace", device.workspace, "DIR",
         "Workspace whose session is kept; the folder of FILE unless given");
  option("--settings", device.settings, "SETTINGS",
         "File of the user's settings; ioview/settings.json in the user's configuration unless given");
  options.push_back(
      app.add_flag("--demo", arguments->demo, "Let registers change by themselves at each step"));
  for (CLI::App* const command : app.get_subcommands({})) {
    for (CLI::Option* const one : options) command->excludes(one);
  }
  return arguments;
}

const std::string& DesktopFile(const DesktopArguments& arguments) {
  return arguments.device.file;
}

int RunDesktop(const DesktopArguments& arguments, char* program) {
  const DeviceOptions& options = arguments.device;
  options.SetCodePage();
  RequireReadableFile(options.file);
  if (!HasDisplay()) {
    throw ProgramError(kNoDisplay);
  }
  // The words of the command line are the program's own.
  int count = 1;
  char* words[] = {program, nullptr};
  std::optional<DisplayWatch> watch(std::in_place);
  const QApplication application(count, words);
  watch.reset();
  QApplication::setApplicationName(QStringLiteral("ioview"));

  const ComponentLibrary library;
  Desktop desktop(library, {options.file, options.workspace.value_or(FolderOf(options.file)),
                            options.settings.value_or(DefaultSettingsFile())});
  PrepareTarget(options, desktop.GetInstance().host);
  if (!desktop.Open(arguments.demo)) throw ProgramError("The component can't be connected");
  return QApplication::exec();
}

}  // namespace ioview
