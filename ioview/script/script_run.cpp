#include "ioview/script/script_run.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "ioview/component/open_workspace.h"
#include "ioview/number_text.h"
#include "ioview/program_error.h"
#include "ioview/script/event_names.h"
#include "ioview/script/row_path.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr const char* kFirstInstance = "main";
// The dialog that shows how far a load has come, and ends with it.
constexpr platform::UINT kProgressDialog = 11007;

std::filesystem::path DirectoryOf(const std::string& file) {
  const std::filesystem::path directory =
      file == "-" ? std::filesystem::path() : std::filesystem::path(file).parent_path();
  std::error_code error;
  std::filesystem::path absolute =
      directory.empty() ? std::filesystem::current_path(error) : std::filesystem::absolute(directory, error);
  if (error) throw ProgramError("The current directory can't be told: " + error.message());
  return absolute.lexically_normal();
}

}  // namespace

ScriptRun::ScriptRun(const ScriptOptions& options)
    : places(DirectoryOf(options.file)),
      stage_([this](const std::string& line) { out.Line(line); },
             [this](const std::string& text) { Fail(ScriptError::kNegative, text); }),
      stores_(options.workspace, options.settings),
      workspace_directory_(options.workspace.value_or(places.Directory().string())),
      workspace_(OpenWorkspace(workspace_directory_)) {
  Display().SetRunningByThemselves({kProgressDialog});
  Select(kFirstInstance);
  Host().session_values = stores_.Session();
}

ScriptRun::~ScriptRun() = default;

ScriptInstance& ScriptRun::Current() {
  if (current_ == nullptr) throw ScriptError("there is no instance any more; `instance NAME` makes one");
  return *current_;
}

void ScriptRun::Select(const std::string& name) {
  const auto found = std::ranges::find_if(instances_, [&](const auto& one) { return one->name == name; });
  if (found != instances_.end()) {
    current_ = found->get();
    return;
  }
  current_ =
      instances_.emplace_back(std::make_unique<ScriptInstance>(name, library_, stores_.Settings())).get();
  HostServices& host = Host();
  host.workspace = workspace_;
  host.target.LogAccesses(true);
  host.calls.Switch(true);
  for (const CustomPlaceholder& placeholder : stores_.GlobalPlaceholders()) {
    host.placeholders.SetGlobal(placeholder);
  }
  Component().on_fired_event = [this](const pvw::QEventRecord& event) {
    out.Line("event: " + EventName(event.id));
  };
}

bool ScriptRun::Destroy(const std::string& name) {
  const auto found = std::ranges::find_if(instances_, [&](const auto& one) { return one->name == name; });
  if (found == instances_.end()) return false;
  if (name == kFirstInstance) stores_.Save((*found)->instance.host.session_values);
  // Out of the list first: its end may show something.
  const std::unique_ptr<ScriptInstance> gone = std::move(*found);
  instances_.erase(found);
  if (current_ == gone.get()) current_ = nullptr;
  gone->instance.Destroy();
  return true;
}

void ScriptRun::Start() {
  if (current_ == nullptr || current_->is_started) return;
  current_->is_started = true;
  out.BeginCommand();
  const platform::Status status = current_->instance.Start(current_->target_connected);
  if (status != platform::S_OK) out.Line(DigitsText(static_cast<std::uint32_t>(status), 16, 8));
  EndCommand(false);
}

PaneIndex ScriptRun::PaneOf(Arguments& arguments) {
  return arguments.Choice<PaneIndex>({{"all", PaneIndex::kAll}, {"selected", PaneIndex::kSelected}});
}

ScriptPane ScriptRun::Pane(PaneIndex pane) {
  Instance& instance = Component();
  platform::CWnd* const window = instance.Pane(pane);
  platform::SECTreeCtrl* const grid = window != nullptr ? instance.Grid(pane) : nullptr;
  if (grid == nullptr) {
    throw ScriptError(std::string("there is no pane ") + (pane == PaneIndex::kAll ? "all" : "selected"));
  }
  return {*window, *grid};
}

platform::HTREEITEM ScriptRun::Row(const ScriptPane& pane, const std::string& path) {
  const platform::HTREEITEM item = FindRow(pane.grid, SplitRowPath(path));
  if (item == 0) throw ScriptError(Quoted(path) + " names no row");
  return item;
}

void ScriptRun::Fail(int exit_status, const std::string& text) noexcept {
  if (!failure_) failure_.emplace(exit_status, text);
}

void ScriptRun::EndCommand(bool keeps_answers) {
  Display().Settle();
  out.Check();
  if (failure_) throw ScriptError(*failure_);
  if (keeps_answers || Display().GetAnswerCount() == 0) return;
  Display().DropAnswers();
  throw ScriptError(ScriptError::kNegative, "an answer was left unused");
}

void ScriptRun::SetCodePage(unsigned page) {
  platform::SetAnsiCodePage(page);
  const std::string before = workspace_.directory;
  workspace_ = OpenWorkspace(workspace_directory_);
  for (const auto& one : instances_) {
    std::string& directory = one->instance.host.workspace.directory;
    if (directory == before) directory = workspace_.directory;
  }
}

void ScriptRun::SaveStores() {
  for (const auto& one : instances_) {
    if (one->name == kFirstInstance) stores_.Save(one->instance.host.session_values);
  }
}

}  // namespace ioview
