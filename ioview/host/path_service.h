// IQPathService: names and directories of the open workspace, and the program's own directories.
#pragma once

#include "host/workspace_services.h"
#include "ioview/host/service.h"
#include "ioview/host/workspace.h"

namespace ioview {

// Directories are drive paths without a trailing backslash: a project's lies in the workspace's and has the
// project's name, a configuration's lies in the project's. Asked for another workspace, project or
// configuration than the open one, an operation fails and gives null.
class PathService : public Service<pvw::IQPathService, pvw::IID_IQPathService> {
 public:
  explicit PathService(const Workspace& workspace) : workspace_(workspace) {}

  // Where the program's file lies; fails when that is no drive path.
  platform::Status GetInstallDirectory(platform::BSTR* directory) override;
  platform::Status GetTempDirectory(platform::BSTR* directory) override;
  platform::Status GetCurrentConfiguration(platform::BSTR* name) override;
  platform::Status GetCurrentProject(platform::BSTR* name) override;
  platform::Status GetCurrentWorkspace(platform::BSTR* name) override;
  platform::Status GetConfigurationDisplayName(platform::BSTR workspace, platform::BSTR project,
                                               platform::BSTR configuration, platform::BSTR* name) override;
  platform::Status GetProjectDisplayName(platform::BSTR workspace, platform::BSTR project,
                                         platform::BSTR* name) override;
  platform::Status GetWorkspaceDisplayName(platform::BSTR workspace, platform::BSTR* name) override;
  platform::Status GetConfigurationDirectory(platform::BSTR workspace, platform::BSTR project,
                                             platform::BSTR configuration,
                                             platform::BSTR* directory) override;
  platform::Status GetProjectDirectory(platform::BSTR workspace, platform::BSTR project,
                                       platform::BSTR* directory) override;
  platform::Status GetWorkspaceDirectory(platform::BSTR workspace, platform::BSTR* directory) override;
  platform::Status IsWorkspaceOpen(std::uint32_t* open) override;

 private:
  const Workspace& workspace_;
};

}  // namespace ioview
