// IQWorkspaceInfo: the current names, and the keys that tell projects and configurations apart.
#pragma once

#include "host/workspace_services.h"
#include "ioview/host/service.h"
#include "ioview/host/workspace.h"

namespace ioview {

// Every name is its own key. The three current names are empty when no workspace is open.
class WorkspaceInfo : public Service<pvw::IQWorkspaceInfo, pvw::IID_IQWorkspaceInfo> {
 public:
  explicit WorkspaceInfo(const Workspace& workspace) : workspace_(workspace) {}

  platform::Status GetCurrentProject(platform::BSTR* name) override;
  platform::Status GetCurrentWorkspace(platform::BSTR* name) override;
  platform::Status GetProjectKey(platform::BSTR workspace, platform::BSTR project,
                                 platform::BSTR* key) override;
  platform::Status GetCurrentConfiguration(platform::BSTR* name) override;
  platform::Status GetPlatformText(platform::BSTR* text) override;
  platform::Status GetConfigurationKey(platform::BSTR workspace, platform::BSTR project,
                                       platform::BSTR configuration, platform::BSTR* key) override;

 private:
  const Workspace& workspace_;
};

}  // namespace ioview
