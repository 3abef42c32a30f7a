// What a script's commands work on: the instances with their hosts, the display, the output.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ioview/component/component_library.h"
#include "ioview/component/headless_stage.h"
#include "ioview/component/instance.h"
#include "ioview/script/arguments.h"
#include "ioview/script/offscreen_pictures.h"
#include "ioview/script/script_output.h"
#include "ioview/script/script_places.h"
#include "ioview/script/script_stores.h"

namespace ioview {

struct ScriptOptions {
  std::string file;  // native; "-" is standard input
  std::optional<std::string> workspace;
  std::optional<std::string> settings;
};

// One instance as a script knows it.
struct ScriptInstance {
  ScriptInstance(std::string its_name, const ComponentLibrary& library, UserSettings& settings)
      : name(std::move(its_name)), instance(library, settings) {}

  const std::string name;
  Instance instance;
  bool is_started = false;
  bool target_connected = true;  // before the start: whether the host tells of a target then
};

// A pane that is there, its page on top. Good until something of the component runs.
struct ScriptPane {
  platform::CWnd& window;
  platform::SECTreeCtrl& grid;
};

class ScriptRun {
 public:
  // Throws ProgramError when the component's file or a directory can't be used.
  explicit ScriptRun(const ScriptOptions& options);
  ScriptRun(const ScriptRun&) = delete;
  ScriptRun& operator=(const ScriptRun&) = delete;
  ~ScriptRun();

  ScriptOutput out;
  const ScriptPlaces places;
  OffscreenPictures pictures;

  platform::HeadlessDisplay& Display() { return stage_.display; }

  // Instances. The first is "main". ScriptError where there is none.
  ScriptInstance& Current();
  Instance& Component() { return Current().instance; }
  HostServices& Host() { return Current().instance.host; }
  // Makes it when it isn't there; nothing of the component runs in it yet.
  void Select(const std::string& name);
  // False when there is no such instance.
  bool Destroy(const std::string& name);
  // Starts the current one unless it has been.
  void Start();

  // Panes. ScriptError for one that isn't there, and for a path that names no row.
  static PaneIndex PaneOf(Arguments& arguments);
  ScriptPane Pane(PaneIndex pane);
  static platform::HTREEITEM Row(const ScriptPane& pane, const std::string& path);

  // Something went wrong where nothing may be thrown, as in a step of an answer: the command that runs ends
  // the script. The first failure counts.
  void Fail(int exit_status, const std::string& text) noexcept;
  bool HasFailed() const { return failure_.has_value(); }
  // Ends a command: what was posted is handled, then a failure, a leftover answer or lost output is thrown.
  void EndCommand(bool keeps_answers);

  // What an instance's host has open at first, unless it is told otherwise: a drive path.
  const std::string& WorkspaceDirectory() const { return workspace_.directory; }
  // Of everything from now on. Hosts that have the first workspace open have its directory in the new page.
  void SetCodePage(unsigned page);

  // Writes the stores that have a file.
  void SaveStores();

 private:
  std::optional<ScriptError> failure_;
  HeadlessStage stage_;
  const ComponentLibrary library_;
  ScriptStores stores_;
  const std::string workspace_directory_;  // native
  Workspace workspace_;
  std::vector<std::unique_ptr<ScriptInstance>> instances_;
  ScriptInstance* current_ = nullptr;
};

}  // namespace ioview
