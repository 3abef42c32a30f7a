#include "ioview/desktop/test_commands.h"

#include <filesystem>
#include <optional>
#include <vector>

#include "ioview/desktop/result_dialog.h"
#include "ioview/program_error.h"
#include "ioview/test/snapshot_file.h"
#include "ioview/test/snapshot_text.h"
#include "platform/base/bstr.h"
#include "platform/base/message_box.h"
#include "platform/base/paths.h"
#include "platform/gui/common_dialogs.h"

namespace ioview {

namespace {

constexpr char kSnapshotFilter[] = "Snapshots (*.txt)|*.txt|All Files (*.*)|*.*||";
constexpr char kNothingChosen[] =
    "There is nothing to capture: no registers of this device are chosen.\n"
    "Test > Choose Registers... chooses them.";

void Tell(const std::string& text) {
  platform::MessageBox(text, platform::MB_ICONEXCLAMATION);
}

template <typename Work>
void TellingFaults(const Work& work) {
  try {
    work();
  } catch (const ProgramError& error) {
    Tell(error.what());
  }
}

}  // namespace

void TestCommands::ChooseRegisters() {
  if (pvw::IQTestClient* const client = instance_.Test()) client->EditDetails();
}

void TestCommands::Capture() {
  TellingFaults([this] { CaptureToFile(); });
}

void TestCommands::Compare() {
  TellingFaults([this] { CompareWithFile(); });
}

std::string TestCommands::AskForFile(bool save) const {
  platform::FileDialogRequest request;
  request.save = save;
  request.default_extension = "txt";
  request.filter = kSnapshotFilter;
  request.directory = instance_.host.workspace.directory;
  request.overwrite_prompt = save;
  request.path_must_exist = true;
  const std::optional<std::string> path = platform::RunFileDialog(request);
  return path ? platform::ToNativePath(*path).value_or(std::string()) : std::string();
}

// The values are those of the moment at which the user asked for them.
void TestCommands::CaptureToFile() {
  pvw::IQTestClient* const client = instance_.Test();
  if (client == nullptr) return;
  platform::ScopedBstr data;
  client->GetTestData(data.Receive());
  const std::string snapshot = data.Text();
  if (SnapshotNames(snapshot).empty()) {
    Tell(kNothingChosen);
    return;
  }
  const std::string path = AskForFile(true);
  if (!path.empty()) WriteSnapshotFile(path, snapshot);
}

void TestCommands::CompareWithFile() {
  const std::string path = CanTest() ? AskForFile(false) : std::string();
  if (path.empty()) return;
  const platform::ScopedBstr text(ReadSnapshotFile(path));
  platform::ScopedBstr summary, detail, words;
  std::uint32_t status = 0;
  if (pvw::IQTestClient* const client = instance_.Test()) {
    client->CompareWithTarget(text.Get(), summary.Receive(), detail.Receive(), &status);
  }
  // A question for the definition file may have come in between.
  pvw::IQTestClient* const client = instance_.Test();
  if (client == nullptr) return;
  std::vector<std::string> lines;
  if (status != 0 && client->FormatResult(detail.Get(), 0, words.Receive()) == platform::S_OK) {
    lines = SplitItems(words.Text());
  }
  const std::string name = std::filesystem::path(path).filename().string();
  ResultDialog(QString::fromStdString(name), lines, &window_).exec();
}

}  // namespace ioview
