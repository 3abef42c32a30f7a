// Services for the workspace, its stored state, user settings and the device that is debugged.
//
// A text that an operation gives back belongs to the caller, also when the operation fails. Workspace,
// project and configuration are names, as GetCurrentWorkspace and its like give them.
#pragma once

#include "host/unknown.h"
#include "platform/base/bstr.h"
#include "platform/base/variant.h"

namespace pvw {

class IQPathService : public IQUnknown {
 public:
  virtual platform::Status GetInstallDirectory(platform::BSTR* directory) = 0;
  virtual platform::Status GetTempDirectory(platform::BSTR* directory) = 0;
  // The three give an empty name when no workspace is open.
  virtual platform::Status GetCurrentConfiguration(platform::BSTR* name) = 0;
  virtual platform::Status GetCurrentProject(platform::BSTR* name) = 0;
  virtual platform::Status GetCurrentWorkspace(platform::BSTR* name) = 0;
  virtual platform::Status GetConfigurationDisplayName(platform::BSTR workspace, platform::BSTR project,
                                                       platform::BSTR configuration,
                                                       platform::BSTR* name) = 0;
  virtual platform::Status GetProjectDisplayName(platform::BSTR workspace, platform::BSTR project,
                                                 platform::BSTR* name) = 0;
  virtual platform::Status GetWorkspaceDisplayName(platform::BSTR workspace, platform::BSTR* name) = 0;
  virtual platform::Status GetConfigurationDirectory(platform::BSTR workspace, platform::BSTR project,
                                                     platform::BSTR configuration,
                                                     platform::BSTR* directory) = 0;
  virtual platform::Status GetProjectDirectory(platform::BSTR workspace, platform::BSTR project,
                                               platform::BSTR* directory) = 0;
  virtual platform::Status GetWorkspaceDirectory(platform::BSTR workspace, platform::BSTR* directory) = 0;
  virtual platform::Status IsWorkspaceOpen(std::uint32_t* open) = 0;

 protected:
  ~IQPathService() = default;
};

class IQWorkspaceInfo : public IQUnknown {
 public:
  virtual platform::Status GetCurrentProject(platform::BSTR* name) = 0;
  virtual platform::Status GetCurrentWorkspace(platform::BSTR* name) = 0;
  virtual platform::Status GetProjectKey(platform::BSTR workspace, platform::BSTR project,
                                         platform::BSTR* key) = 0;
  virtual platform::Status GetCurrentConfiguration(platform::BSTR* name) = 0;
  virtual platform::Status GetPlatformText(platform::BSTR* text) = 0;
  virtual platform::Status GetConfigurationKey(platform::BSTR workspace, platform::BSTR project,
                                               platform::BSTR configuration, platform::BSTR* key) = 0;

 protected:
  ~IQWorkspaceInfo() = default;
};

// The values that a session keeps.
class IQDataManager : public IQUnknown {
 public:
  virtual platform::Status SetSessionValue(platform::BSTR workspace, platform::BSTR project,
                                           platform::BSTR configuration, platform::BSTR key,
                                           platform::BSTR value) = 0;
  // Negative when the key is missing.
  virtual platform::Status GetSessionValue(platform::BSTR workspace, platform::BSTR project,
                                           platform::BSTR configuration, platform::BSTR key,
                                           platform::BSTR* value) = 0;

 protected:
  ~IQDataManager() = default;
};

// Values that belong to the user. Reading a missing one is a negative status.
class IQSettings : public IQUnknown {
 public:
  virtual platform::Status WriteSectionInt(platform::BSTR section, platform::BSTR key,
                                           std::int32_t value) = 0;
  virtual platform::Status WriteInt(platform::BSTR key, std::int32_t value) = 0;
  virtual platform::Status WriteString(platform::BSTR key, platform::BSTR text) = 0;
  virtual platform::Status ReadSectionInt(platform::BSTR section, platform::BSTR key,
                                          std::int32_t* value) = 0;
  virtual platform::Status ReadInt(platform::BSTR key, std::int32_t* value) = 0;
  virtual platform::Status ReadString(platform::BSTR key, platform::BSTR* text) = 0;

 protected:
  ~IQSettings() = default;
};

// Placeholders that the user has defined. A list is of type VT_ARRAY | VT_BSTR; its element count is a
// multiple of 4, and the first three quarters hold the entries, three elements each: description, name,
// value.
class IQCustomPlaceholders : public IQUnknown {
 public:
  virtual platform::Status GetGlobalPlaceholders(platform::VARIANT* list) = 0;
  virtual platform::Status GetWorkspacePlaceholders(platform::BSTR workspace, platform::VARIANT* list) = 0;

 protected:
  ~IQCustomPlaceholders() = default;
};

class IQDeviceInfo : public IQUnknown {
 public:
  // The device's definition file.
  virtual platform::Status GetDefaultIOPath(platform::BSTR* path) = 0;
  virtual platform::Status GetBaseAddress(std::uint32_t* address) = 0;

 protected:
  ~IQDeviceInfo() = default;
};

}  // namespace pvw
