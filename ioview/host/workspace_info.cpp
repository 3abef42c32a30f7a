#include "ioview/host/workspace_info.h"

namespace ioview {

platform::Status WorkspaceInfo::GetCurrentProject(platform::BSTR* name) {
  return GiveText(workspace_.project, name);
}

platform::Status WorkspaceInfo::GetCurrentWorkspace(platform::BSTR* name) {
  return GiveText(workspace_.name, name);
}

platform::Status WorkspaceInfo::GetProjectKey(platform::BSTR /*workspace*/, platform::BSTR project,
                                              platform::BSTR* key) {
  return GiveText(platform::BstrText(project), key);
}

platform::Status WorkspaceInfo::GetCurrentConfiguration(platform::BSTR* name) {
  return GiveText(workspace_.configuration, name);
}

platform::Status WorkspaceInfo::GetPlatformText(platform::BSTR* text) {
  return GiveText("Simulated target", text);
}

platform::Status WorkspaceInfo::GetConfigurationKey(platform::BSTR /*workspace*/, platform::BSTR /*project*/,
                                                    platform::BSTR configuration, platform::BSTR* key) {
  return GiveText(platform::BstrText(configuration), key);
}

}  // namespace ioview
