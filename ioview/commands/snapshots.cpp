#include "ioview/commands/snapshots.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "host/test_client.h"
#include "ioview/commands/device_options.h"
#include "ioview/component/headless_stage.h"
#include "ioview/component/instance.h"
#include "ioview/program_error.h"
#include "ioview/standard_output.h"
#include "ioview/test/snapshot_file.h"
#include "ioview/test/snapshot_text.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr char kAboutCapture[] = "Read registers and write their values as a snapshot";
constexpr char kCaptureFooter[] =
    "The snapshot is one line on standard output; `ioview compare` holds it against a target\n"
    "or against another one. A register is named as the view shows it, whatever module it\n"
    "belongs to; bit fields can't be captured. Registers that can't be read keep the value 0.\n"
    "Addresses are those of FILE's own base.\n"
    "\n"
    "Examples:\n"
    "  ioview capture lumen3.io --memory lumen.mem --registers PDATA,PDIR > before.txt\n"
    "      Two registers of a memory image.\n"
    "\n"
    "Exit status: 0 when the snapshot was written; 2 when a file can't be opened, a register\n"
    "isn't known or an option is wrong.";

constexpr char kAboutCompare[] = "Hold a snapshot against the target, or against another one";
constexpr char kCompareFooter[] =
    "Each difference is a line on standard output; nothing is written when there is none.\n"
    "\n"
    "Examples:\n"
    "  ioview compare lumen3.io before.txt --memory lumen.mem\n"
    "      What the target holds now, against a snapshot.\n"
    "  ioview compare lumen3.io before.txt after.txt --ignore-address\n"
    "      Two snapshots, whose registers may have moved.\n"
    "\n"
    "Exit status: 0 when nothing differs, 1 when something does, 2 when a file can't be opened\n"
    "or an option is wrong.";

// The test client of a component that is connected and has its target.
class TestBench {
 public:
  explicit TestBench(const DeviceOptions& device)
      : settings_(device.LoadSettings()), instance_(library_, settings_) {
    device.Prepare(instance_.host);
    if (platform::Failed(instance_.Start(true))) throw ProgramError("The component can't be connected");
    if (instance_.Test() == nullptr) throw ProgramError("The component has no test client");
  }

  pvw::IQTestClient& Client() { return *instance_.Test(); }

 private:
  static void PrintMessage(const std::string& line) { std::fprintf(stderr, "%s\n", line.c_str()); }

  HeadlessStage stage_{PrintMessage};
  ComponentLibrary library_;
  UserSettings settings_;
  Instance instance_;
};

struct CaptureArguments {
  DeviceOptions device;
  std::vector<std::string> registers;
};

struct CompareArguments {
  DeviceOptions device;
  std::string snapshot;
  std::optional<std::string> second;
  bool ignore_address = false;
};

// Each once, in order.
std::vector<std::string> Distinct(const std::vector<std::string>& names) {
  std::vector<std::string> distinct;
  std::unordered_set<std::string> taken;
  for (const std::string& name : names) {
    if (taken.insert(name).second) distinct.push_back(name);
  }
  return distinct;
}

void RunCapture(const CaptureArguments& arguments) {
  arguments.device.SetCodePage();
  const std::vector<std::string> names = Distinct(arguments.registers);
  for (const std::string& name : names) {
    if (name.empty()) throw ProgramError("--registers: A register without a name can't be captured");
    if (name.find(' ') != std::string::npos) {
      throw ProgramError("--registers: " + Quoted(name) + " can't be captured: a name has no blanks");
    }
  }
  TestBench bench(arguments.device);
  const platform::ScopedBstr request(SnapshotRequest(names));
  platform::ScopedBstr data;
  bench.Client().SetTestData(request.Get());
  bench.Client().GetTestData(data.Receive());
  const std::string snapshot = data.Text();
  const std::vector<std::string> captured = SnapshotNames(snapshot);
  const std::unordered_set<std::string> known(captured.begin(), captured.end());
  for (const std::string& name : names) {
    if (!known.contains(name)) {
      throw ProgramError("--registers: There is no register " + Quoted(name) + " in " +
                         OneLine(arguments.device.file));
    }
  }
  WriteOutput(snapshot + '\n');
  FlushOutput();
}

// 1 when something differs.
int RunCompare(const CompareArguments& arguments) {
  arguments.device.SetCodePage();
  std::string first = ReadSnapshotFile(arguments.snapshot);
  if (arguments.ignore_address) first = IgnoringAddresses(first);
  const std::string second = arguments.second ? ReadSnapshotFile(*arguments.second) : std::string();
  TestBench bench(arguments.device);
  const platform::ScopedBstr text(first);
  platform::ScopedBstr summary, detail, words;
  std::uint32_t status = 0;
  if (arguments.second) {
    const platform::ScopedBstr other(second);
    bench.Client().CompareTexts(text.Get(), other.Get(), summary.Receive(), detail.Receive(), &status);
  } else {
    bench.Client().CompareWithTarget(text.Get(), summary.Receive(), detail.Receive(), &status);
  }
  if (status == 0) return 0;
  bench.Client().FormatResult(detail.Get(), 0, words.Receive());
  for (const std::string& line : SplitItems(words.Text())) WriteOutput(line + '\n');
  FlushOutput();
  return 1;
}

}  // namespace

void AddCaptureCommand(CLI::App& app) {
  const auto arguments = std::make_shared<CaptureArguments>();
  CLI::App* capture = app.add_subcommand("capture", kAboutCapture);
  capture->footer(kCaptureFooter);
  arguments->device.AddTo(*capture);
  capture->add_option("--registers", arguments->registers, "The registers, by name")
      ->required()
      ->delimiter(',')
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->type_name("NAME,...");
  capture->callback([arguments] { RunCapture(*arguments); });
}

void AddCompareCommand(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<CompareArguments>();
  CLI::App* compare = app.add_subcommand("compare", kAboutCompare);
  compare->footer(kCompareFooter);
  arguments->device.AddTo(*compare);
  compare->add_option("SNAPSHOT", arguments->snapshot, "What `ioview capture` wrote")
      ->required()
      ->type_name("");
  compare->add_option("SNAPSHOT2", arguments->second, "Held against it in the target's place")->type_name("");
  compare->add_flag("--ignore-address", arguments->ignore_address, "Don't compare addresses");
  compare->callback([arguments, &status] { status = RunCompare(*arguments); });
}

}  // namespace ioview
