#include "support/placeholder_expander.h"

#include <algorithm>
#include <ctime>
#include <unordered_set>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/system.h"
#include "support/path_service.h"
#include "support/path_text.h"
#include "support/placeholder_scan.h"

namespace pvw {

namespace {

constexpr std::size_t kMaxPlaceholders = 9999;
constexpr std::size_t kMaxPath = 260;
constexpr std::size_t kUserNameBuffer = 200;  // terminator included

std::string Now(const char* format) {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&now, &local) == nullptr) return {};
  char text[64];
  return std::string(text, std::strftime(text, sizeof text, format, &local));
}

std::string FileValue(PlaceholderIndex index, std::string_view file) {
  switch (index) {
    case kPlaceholderFileName:
      return GetFileNameOf(file);
    case kPlaceholderFileLeaf:
      return GetFileLeafOf(file);
    case kPlaceholderFileDir:
      return GetDirectoryOf(file);
    case kPlaceholderExtension:
      return GetExtensionOf(file);
    default:
      return std::string(file);
  }
}

std::string SystemDirectory(const std::string& directory) {
  return directory.size() <= kMaxPath ? directory : std::string();
}

std::string UserName() {
  const std::string user = platform::GetUserName();
  return user.size() < kUserNameBuffer ? user : std::string();
}

// Without the names that the question needs the placeholder stays for a time when a workspace is open.
std::string ValueOrPlaceholder(PlaceholderIndex index, WorkspaceText answer) {
  return answer.named ? std::move(answer.text) : GetPlaceholderText(index, true);
}

}  // namespace

CPlaceholderExpander::CPlaceholderExpander(IQComponentHost* host)
    : pathService(GetService<IQPathService>(host, IID_IQPathService)),
      customPlaceholders(GetService<IQCustomPlaceholders>(host, IID_IQCustomPlaceholders)) {}

std::string CPlaceholderExpander::Expand(std::string_view text, std::optional<std::string_view> file) const {
  std::string expanded;
  CPlaceholderScan scan(text);
  for (std::size_t count = 0; count < kMaxPlaceholders && scan.Next(); ++count) {
    expanded += scan.Plain();
    const std::string value = Resolve(scan.Name(), file);
    expanded += value;
    scan.Replace(value);
  }
  expanded += scan.Rest();
  return expanded;
}

bool CPlaceholderExpander::ValidatePlaceholders(std::string_view text,
                                                std::span<const std::uint32_t> allowedIndices) const {
  const CustomPlaceholderList global = GlobalPlaceholders(customPlaceholders);
  const CustomPlaceholderList workspace = WorkspacePlaceholders(customPlaceholders, pathService);
  std::unordered_set<std::string_view> custom_names;
  for (const CCustomPlaceholderInfo& info : global) custom_names.insert(info.name);
  for (const CCustomPlaceholderInfo& info : workspace) custom_names.insert(info.name);
  const auto end = std::find(allowedIndices.begin(), allowedIndices.end(), 0u);

  // What stands before a placeholder holds no other and doesn't end in `$`, so taking one out makes none
  // behind the walk, and one walk finds what a search from the start of the text would.
  CPlaceholderScan scan(text);
  while (scan.Next()) {
    const PlaceholderIndex index = FindPlaceholderIndex(scan.Name());
    const bool allowed = index == kPlaceholderUnknown ? custom_names.contains(scan.Name())
                                                      : std::find(allowedIndices.begin(), end,
                                                                  static_cast<std::uint32_t>(index)) != end;
    if (!allowed) return false;
    scan.Replace({});
  }
  return true;
}

void CPlaceholderExpander::CollectCustomPlaceholders(CustomPlaceholderMap& map) const {
  for (CCustomPlaceholderInfo& info : GlobalPlaceholders(customPlaceholders)) {
    std::string name = info.name;
    map.insert_or_assign(std::move(name), std::move(info));
  }
  for (CCustomPlaceholderInfo& info : WorkspacePlaceholders(customPlaceholders, pathService)) {
    std::string name = info.name;
    map.try_emplace(std::move(name), std::move(info));
  }
}

std::string CPlaceholderExpander::Resolve(std::string_view name, std::optional<std::string_view> file) const {
  const PlaceholderIndex index = FindPlaceholderIndex(name);
  if (index == kPlaceholderUnknown) return CustomValueOf(name);
  if (index == kPlaceholderUserInput) return "$(" + std::string(name) + ")";  // as it was written
  return ValueOf(index, file);
}

std::string CPlaceholderExpander::CustomValueOf(std::string_view name) const {
  const CustomPlaceholderList global = GlobalPlaceholders(customPlaceholders);
  const CustomPlaceholderList workspace = WorkspacePlaceholders(customPlaceholders, pathService);
  for (const CustomPlaceholderList* list : {&global, &workspace}) {
    const CCustomPlaceholderInfo* info = FindCustomPlaceholder(*list, name);
    if (info != nullptr && !info->value.empty()) return info->value;
  }
  return {};
}

std::string CPlaceholderExpander::ValueOf(PlaceholderIndex index,
                                          std::optional<std::string_view> file) const {
  const auto service = pathService;
  switch (index) {
    case kPlaceholderUnknown:
    case kPlaceholderError:
    case kPlaceholderCount:
      return {};
    case kPlaceholderFullFile:
    case kPlaceholderFileName:
    case kPlaceholderFileLeaf:
    case kPlaceholderFileDir:
    case kPlaceholderExtension:
      return file ? FileValue(index, *file) : GetPlaceholderText(index, true);
    case kPlaceholderQbnDir:
      return PathServiceText(service, &IQPathService::GetInstallDirectory);
    case kPlaceholderTempDir:
      return PathServiceText(service, &IQPathService::GetTempDirectory);
    case kPlaceholderWorkspDir:
      return ValueOrPlaceholder(index, AskOfWorkspace(service, &IQPathService::GetWorkspaceDirectory));
    case kPlaceholderWorkspName:
      return ValueOrPlaceholder(index, AskOfWorkspace(service, &IQPathService::GetWorkspaceDisplayName));
    case kPlaceholderProjDir:
      return ValueOrPlaceholder(index, AskOfProject(service, &IQPathService::GetProjectDirectory));
    case kPlaceholderProjectName:
      return ValueOrPlaceholder(index, AskOfProject(service, &IQPathService::GetProjectDisplayName));
    case kPlaceholderConfigName:
      return ValueOrPlaceholder(index,
                                AskOfConfiguration(service, &IQPathService::GetConfigurationDisplayName));
    case kPlaceholderConfigDir:
      return ValueOrPlaceholder(index,
                                AskOfConfiguration(service, &IQPathService::GetConfigurationDirectory));
    case kPlaceholderWinDir:
      return SystemDirectory(platform::System().windows_directory);
    case kPlaceholderWinSysDir:
      return SystemDirectory(platform::System().system_directory);
    case kPlaceholderTime:
      return Now("%H:%M:%S");
    case kPlaceholderDateText:
      return Now("%B %d, %Y");
    case kPlaceholderDateDmy:
      return Now("%d/%m/%Y");
    case kPlaceholderDateMdy:
      return Now("%m/%d/%Y");
    case kPlaceholderDateYmd:
      return Now("%Y/%m/%d");
    case kPlaceholderUser:
      return UserName();
    // For a later stage of the host that knows what to put there.
    case kPlaceholderTcInstall:
    case kPlaceholderExeDir:
    case kPlaceholderExeName:
    case kPlaceholderLine:
    case kPlaceholderToolDir:
    case kPlaceholderQbnHwnd:
    case kPlaceholderQbnId:
    case kPlaceholderCursor:
    case kPlaceholderPageNo:
    case kPlaceholderLeft:
    case kPlaceholderCentre:
    case kPlaceholderRight:
    case kPlaceholderUserInput:
    case kPlaceholderDeviceDetails:
      return GetPlaceholderText(index, true);
  }
  return {};
}

}  // namespace pvw
