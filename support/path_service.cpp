#include "support/path_service.h"

namespace pvw {

namespace {

// The names go back to the host as it gave them, never through the code page.
class Names {
 public:
  enum Level { kWorkspace, kProject, kConfiguration };

  Names(IQPathService* service, Level level) {
    AskPathService(service, workspace, &IQPathService::GetCurrentWorkspace);
    if (level >= kProject) AskPathService(service, project, &IQPathService::GetCurrentProject);
    if (level >= kConfiguration)
      AskPathService(service, configuration, &IQPathService::GetCurrentConfiguration);
    complete = HasText(workspace) && (level < kProject || HasText(project)) &&
               (level < kConfiguration || HasText(configuration));
  }

  bool complete;
  platform::ScopedBstr workspace;
  platform::ScopedBstr project;
  platform::ScopedBstr configuration;

 private:
  static bool HasText(const platform::ScopedBstr& name) { return platform::SysStringLen(name.Get()) > 0; }
};

}  // namespace

bool IsWorkspaceOpen(IQPathService* service) {
  std::uint32_t open = 0;
  return service != nullptr && !platform::Failed(service->IsWorkspaceOpen(&open)) && open != 0;
}

WorkspaceText AskOfWorkspace(IQPathService* service, WorkspaceQuestion question) {
  const Names names(service, Names::kWorkspace);
  if (!names.complete) return {};
  return {true, PathServiceText(service, question, names.workspace.Get())};
}

WorkspaceText AskOfProject(IQPathService* service, ProjectQuestion question) {
  const Names names(service, Names::kProject);
  if (!names.complete) return {};
  return {true, PathServiceText(service, question, names.workspace.Get(), names.project.Get())};
}

WorkspaceText AskOfConfiguration(IQPathService* service, ConfigurationQuestion question) {
  const Names names(service, Names::kConfiguration);
  if (!names.complete) return {};
  return {true, PathServiceText(service, question, names.workspace.Get(), names.project.Get(),
                                names.configuration.Get())};
}

}  // namespace pvw
