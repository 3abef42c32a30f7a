#include "ioview/host/path_service.h"

#include <optional>
#include <string>

#include "platform/base/module.h"
#include "platform/base/system.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

const char kInProgram = 0;  // lies in the program's file

// A text of the open workspace, for callers that named it rightly.
platform::Status GiveIf(bool known, const std::string& text, platform::BSTR* out) {
  *out = nullptr;
  return known ? GiveText(text, out) : platform::E_FAIL;
}

// A drive's root has its backslash already.
std::string Below(std::string directory, const std::string& name) {
  if (directory.empty() || platform::FindLastChar(directory, '\\') != directory.size() - 1) directory += '\\';
  return directory + name;
}

bool IsOpen(const Workspace& open, platform::BSTR workspace) {
  return open.IsOpen() && platform::BstrText(workspace) == open.name;
}

bool IsOpen(const Workspace& open, platform::BSTR workspace, platform::BSTR project) {
  return IsOpen(open, workspace) && platform::BstrText(project) == open.project;
}

bool IsOpen(const Workspace& open, platform::BSTR workspace, platform::BSTR project,
            platform::BSTR configuration) {
  return IsOpen(open, workspace, project) && platform::BstrText(configuration) == open.configuration;
}

}  // namespace

platform::Status PathService::GetInstallDirectory(platform::BSTR* directory) {
  if (!Enter("GetInstallDirectory")) return platform::E_FAIL;
  const std::string file = platform::GetModuleFileName(&kInProgram).value_or(std::string());
  const std::size_t backslash = platform::FindLastChar(file, '\\');
  return GiveIf(backslash != std::string::npos, file.substr(0, backslash), directory);
}

platform::Status PathService::GetTempDirectory(platform::BSTR* directory) {
  if (!Enter("GetTempDirectory")) return platform::E_FAIL;
  std::string path = platform::GetTempPath();
  if (!path.empty() && platform::FindLastChar(path, '\\') == path.size() - 1) path.pop_back();
  return GiveText(path, directory);
}

platform::Status PathService::GetCurrentConfiguration(platform::BSTR* name) {
  if (!Enter("GetCurrentConfiguration")) return platform::E_FAIL;
  return GiveText(workspace_.configuration, name);
}

platform::Status PathService::GetCurrentProject(platform::BSTR* name) {
  if (!Enter("GetCurrentProject")) return platform::E_FAIL;
  return GiveText(workspace_.project, name);
}

platform::Status PathService::GetCurrentWorkspace(platform::BSTR* name) {
  if (!Enter("GetCurrentWorkspace")) return platform::E_FAIL;
  return GiveText(workspace_.name, name);
}

platform::Status PathService::GetConfigurationDisplayName(platform::BSTR workspace, platform::BSTR project,
                                                          platform::BSTR configuration,
                                                          platform::BSTR* name) {
  if (!Enter("GetConfigurationDisplayName", workspace, project, configuration)) return platform::E_FAIL;
  return GiveIf(IsOpen(workspace_, workspace, project, configuration), workspace_.configuration, name);
}

platform::Status PathService::GetProjectDisplayName(platform::BSTR workspace, platform::BSTR project,
                                                    platform::BSTR* name) {
  if (!Enter("GetProjectDisplayName", workspace, project)) return platform::E_FAIL;
  return GiveIf(IsOpen(workspace_, workspace, project), workspace_.project, name);
}

platform::Status PathService::GetWorkspaceDisplayName(platform::BSTR workspace, platform::BSTR* name) {
  if (!Enter("GetWorkspaceDisplayName", workspace)) return platform::E_FAIL;
  return GiveIf(IsOpen(workspace_, workspace), workspace_.name, name);
}

platform::Status PathService::GetConfigurationDirectory(platform::BSTR workspace, platform::BSTR project,
                                                        platform::BSTR configuration,
                                                        platform::BSTR* directory) {
  if (!Enter("GetConfigurationDirectory", workspace, project, configuration)) return platform::E_FAIL;
  return GiveIf(IsOpen(workspace_, workspace, project, configuration),
                Below(Below(workspace_.directory, workspace_.project), workspace_.configuration), directory);
}

platform::Status PathService::GetProjectDirectory(platform::BSTR workspace, platform::BSTR project,
                                                  platform::BSTR* directory) {
  if (!Enter("GetProjectDirectory", workspace, project)) return platform::E_FAIL;
  return GiveIf(IsOpen(workspace_, workspace, project), Below(workspace_.directory, workspace_.project),
                directory);
}

platform::Status PathService::GetWorkspaceDirectory(platform::BSTR workspace, platform::BSTR* directory) {
  if (!Enter("GetWorkspaceDirectory", workspace)) return platform::E_FAIL;
  return GiveIf(IsOpen(workspace_, workspace), workspace_.directory, directory);
}

platform::Status PathService::IsWorkspaceOpen(std::uint32_t* open) {
  if (!Enter("IsWorkspaceOpen")) return platform::E_FAIL;
  *open = workspace_.IsOpen() ? 1 : 0;
  return platform::S_OK;
}

}  // namespace ioview
