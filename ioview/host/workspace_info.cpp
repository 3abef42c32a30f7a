#include "ioview/host/workspace_info.h"

namespace ioview {

platform::Status WorkspaceInfo::GetCurrentProject(platform::BSTR* name) {
  if (!Enter("GetCurrentProject")) return platform::E_FAIL;
  return GiveText(workspace_.project, name);
}

platform::Status WorkspaceInfo::GetCurrentWorkspace(platform::BSTR* name) {
  if (!Enter("GetCurrentWorkspace")) return platform::E_FAIL;
  return GiveText(workspace_.name, name);
}

platform::Status WorkspaceInfo::GetProjectKey(platform::BSTR workspace, platform::BSTR project,
                                              platform::BSTR* key) {
  if (!Enter("GetProjectKey", workspace, project)) return platform::E_FAIL;
  return GiveText(platform::BstrText(project), key);
}

platform::Status WorkspaceInfo::GetCurrentConfiguration(platform::BSTR* name) {
  if (!Enter("GetCurrentConfiguration")) return platform::E_FAIL;
  return GiveText(workspace_.configuration, name);
}

platform::Status WorkspaceInfo::GetPlatformText(platform::BSTR* text) {
  if (!Enter("GetPlatformText")) return platform::E_FAIL;
  return GiveText("Simulated target", text);
}

platform::Status WorkspaceInfo::GetConfigurationKey(platform::BSTR workspace, platform::BSTR project,
                                                    platform::BSTR configuration, platform::BSTR* key) {
  if (!Enter("GetConfigurationKey", workspace, project, configuration)) return platform::E_FAIL;
  return GiveText(platform::BstrText(configuration), key);
}

}  // namespace ioview
