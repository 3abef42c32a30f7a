// The services that FakeHost gives. Tests speak to FakeHost; only it knows these.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <optional>

#include "host/format_services.h"
#include "host/ids.h"
#include "host/workspace_services.h"
#include "platform/base/bstr.h"
#include "tests/support/fake_host.h"

namespace pvw::test::fakes {

using platform::BSTR;
using platform::BstrText;
using platform::Failed;
using platform::Status;

inline constexpr Status kBadNumber = static_cast<Status>(0x80040906u);

inline std::string Hex(std::uint64_t value, int digits) {
  char text[17];
  std::snprintf(text, sizeof text, "%0*llX", digits, static_cast<unsigned long long>(value));
  return text;
}

inline std::string Number(const char* before, std::uint32_t value) {
  return before + std::to_string(value);
}

inline std::string Range(std::uint32_t first, std::uint32_t last) {
  return Hex(first, 8) + "-" + Hex(last, 8);
}

inline std::string Bytes(const std::uint8_t* bytes, std::uint32_t count) {
  std::string text = ":";
  for (std::uint32_t i = 0; i < count; ++i) text += " " + Hex(bytes[i], 2);
  return text;
}

// The names as the host got them, one blank between them.
template <typename... Names>
inline std::string Join(Names... names) {
  std::string text;
  ((text += (text.empty() ? "" : " ") + BstrText(names)), ...);
  return text;
}

// Hexadecimal digits bare or behind H', h', 0x, 0X, decimal behind D', binary behind B'; a bare prefix is 0.
inline std::optional<std::uint64_t> ParseNumber(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  if (text.empty()) return std::nullopt;
  int base = 16;
  static constexpr std::pair<const char*, int> kPrefixes[] = {{"H'", 16}, {"h'", 16}, {"0x", 16},
                                                              {"0X", 16}, {"D'", 10}, {"B'", 2}};
  for (const auto& [prefix, radix] : kPrefixes) {
    if (!text.starts_with(prefix)) continue;
    text.remove_prefix(2);
    if (text.empty()) return 0;
    base = radix;
    break;
  }
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// One service: an object whose operations work on its host.
template <typename Interface>
class Service : public Interface {
 public:
  explicit Service(FakeHost& host) : host_(host) {}
  Status QueryInterface(const platform::GUID*, void** out) override {
    *out = nullptr;
    return platform::E_NOINTERFACE;
  }
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }

 protected:
  FakeHost& host_;
};

class FakeErrorService final : public Service<IQErrorService> {
 public:
  using Service::Service;
  Status GetErrorText(Status status, BSTR* text) override {
    const auto found = host_.error_texts.find(status);
    return host_.BeginText("GetErrorText", Hex(static_cast<std::uint32_t>(status), 8), text,
                           found == host_.error_texts.end() ? "" : found->second);
  }
};

class FakeErrorReporter final : public Service<IQErrorReporter> {
 public:
  using Service::Service;
  Status GetErrorText(Status status, BSTR* text) override {
    return FakeErrorService(host_).GetErrorText(status, text);
  }
};

class FakeNumberFormat final : public Service<IQNumberFormat> {
 public:
  using Service::Service;
  Status ParseValue(BSTR text, std::uint64_t* value) override {
    if (const Status status = host_.Begin("ParseValue", BstrText(text)); status != platform::S_OK)
      return status;
    const std::optional<std::uint64_t> parsed = ParseNumber(BstrText(text));
    if (parsed) *value = *parsed;
    return parsed ? platform::S_OK : kBadNumber;
  }
  Status FormatByte(std::uint8_t value, std::uint32_t radix, BSTR* text) override {
    const std::string digits = Hex(value, 2);
    return host_.BeginText("FormatByte", digits + Number(" radix ", radix), text, "H'" + digits);
  }
  Status FormatWord(std::uint16_t value, std::uint32_t radix, BSTR* text) override {
    const std::string digits = Hex(value, 4);
    return host_.BeginText("FormatWord", digits + Number(" radix ", radix), text, "H'" + digits);
  }
  Status FormatLong(std::uint32_t value, std::uint32_t radix, BSTR* text) override {
    const std::string digits = Hex(value, 8);
    return host_.BeginText("FormatLong", digits + Number(" radix ", radix), text, "H'" + digits);
  }
  Status FormatQuad(std::uint32_t low, std::uint32_t high, std::uint32_t radix, BSTR* text) override {
    const std::string digits = Hex(static_cast<std::uint64_t>(high) << 32 | low, 16);
    return host_.BeginText("FormatQuad", digits + Number(" radix ", radix), text, "H'" + digits);
  }
};

inline Status Evaluate(FakeHost& host, const char* operation, BSTR text, std::uint32_t radix,
                       std::int64_t* value) {
  const Status status = host.Begin(operation, BstrText(text) + Number(" radix ", radix));
  if (status != platform::S_OK) return status;
  const auto found = host.expressions.find(BstrText(text));
  if (found == host.expressions.end()) return platform::E_FAIL;
  *value = found->second;
  return platform::S_OK;
}

// Explains its own statuses, with the texts of the error service.
class FakeAddressFormat final : public Service<IQAddressFormat> {
 public:
  explicit FakeAddressFormat(FakeHost& host) : Service(host), reporter_(host) {}
  Status QueryInterface(const platform::GUID* iid, void** out) override {
    if (*iid != IID_IQErrorReporter) return Service::QueryInterface(iid, out);
    const Status status = host_.Begin("QueryInterface", "IQErrorReporter");
    *out = status == platform::S_OK ? static_cast<IQErrorReporter*>(&reporter_) : nullptr;
    return status;
  }
  Status FormatAddress(std::uint32_t address, std::uint32_t space, std::uint32_t mask, std::uint32_t flags,
                       BSTR* text) override {
    const std::string arguments =
        Hex(address, 8) + " space " + Hex(space, 1) + " mask " + Hex(mask, 1) + " flags " + Hex(flags, 1);
    return host_.BeginText("FormatAddress", arguments, text, "H'" + Hex(address, 8));
  }
  Status EvaluateExpression(BSTR text, std::uint32_t radix, std::int64_t* value) override {
    return Evaluate(host_, "EvaluateExpression", text, radix, value);
  }
  Status EvaluateExpression2(BSTR text, std::uint32_t radix, std::int64_t* value) override {
    return Evaluate(host_, "EvaluateExpression2", text, radix, value);
  }

 private:
  FakeErrorReporter reporter_;
};

// While it is idle IsActive gives 1, which is a success and yet not yes.
class FakeCommandRecorder final : public Service<IQCommandRecorder> {
 public:
  using Service::Service;
  Status IsActive() override {
    const Status status = host_.Begin("IsActive");
    return status != platform::S_OK || host_.recorder_active ? status : 1;
  }
  Status AddCommand(BSTR text) override {
    const Status status = host_.Begin("AddCommand", BstrText(text));
    if (status == platform::S_OK) host_.recorded.push_back(BstrText(text));
    return status;
  }
};

// Paths and the workspace. A name that isn't the present one is a failure.

// `names` and `present` as Join makes them.
inline Status GiveNamed(FakeHost& host, const char* operation, const std::string& names,
                        const std::string& present, BSTR* out, const std::string& text) {
  if (names == present) return host.BeginText(operation, names, out, text);
  const Status status = host.Begin(operation, names);
  return Failed(status) ? status : platform::E_FAIL;
}

inline std::string Project(const FakePaths& paths) {
  return paths.workspace + " " + paths.project;
}
inline std::string Configuration(const FakePaths& paths) {
  return Project(paths) + " " + paths.configuration;
}

class FakePathService final : public Service<IQPathService> {
 public:
  using Service::Service;
  Status GetInstallDirectory(BSTR* directory) override {
    return host_.BeginText("GetInstallDirectory", "", directory, host_.paths.install);
  }
  Status GetTempDirectory(BSTR* directory) override {
    return host_.BeginText("GetTempDirectory", "", directory, host_.paths.temp);
  }
  Status GetCurrentConfiguration(BSTR* name) override {
    return host_.BeginText("GetCurrentConfiguration", "", name, host_.paths.configuration);
  }
  Status GetCurrentProject(BSTR* name) override {
    return host_.BeginText("GetCurrentProject", "", name, host_.paths.project);
  }
  Status GetCurrentWorkspace(BSTR* name) override {
    return host_.BeginText("GetCurrentWorkspace", "", name, host_.paths.workspace);
  }
  Status GetConfigurationDisplayName(BSTR workspace, BSTR project, BSTR configuration, BSTR* name) override {
    return GiveNamed(host_, "GetConfigurationDisplayName", Join(workspace, project, configuration),
                     Configuration(host_.paths), name, host_.paths.configuration_display);
  }
  Status GetProjectDisplayName(BSTR workspace, BSTR project, BSTR* name) override {
    return GiveNamed(host_, "GetProjectDisplayName", Join(workspace, project), Project(host_.paths), name,
                     host_.paths.project_display);
  }
  Status GetWorkspaceDisplayName(BSTR workspace, BSTR* name) override {
    return GiveNamed(host_, "GetWorkspaceDisplayName", Join(workspace), host_.paths.workspace, name,
                     host_.paths.workspace_display);
  }
  Status GetConfigurationDirectory(BSTR workspace, BSTR project, BSTR configuration,
                                   BSTR* directory) override {
    return GiveNamed(host_, "GetConfigurationDirectory", Join(workspace, project, configuration),
                     Configuration(host_.paths), directory, host_.paths.configuration_directory);
  }
  Status GetProjectDirectory(BSTR workspace, BSTR project, BSTR* directory) override {
    return GiveNamed(host_, "GetProjectDirectory", Join(workspace, project), Project(host_.paths), directory,
                     host_.paths.project_directory);
  }
  Status GetWorkspaceDirectory(BSTR workspace, BSTR* directory) override {
    return GiveNamed(host_, "GetWorkspaceDirectory", Join(workspace), host_.paths.workspace, directory,
                     host_.paths.workspace_directory);
  }
  Status IsWorkspaceOpen(std::uint32_t* open) override {
    const Status status = host_.Begin("IsWorkspaceOpen");
    if (status == platform::S_OK) *open = host_.paths.open ? 1 : 0;
    return status;
  }
};

class FakeWorkspaceInfo final : public Service<IQWorkspaceInfo> {
 public:
  using Service::Service;
  Status GetCurrentProject(BSTR* name) override { return FakePathService(host_).GetCurrentProject(name); }
  Status GetCurrentWorkspace(BSTR* name) override { return FakePathService(host_).GetCurrentWorkspace(name); }
  Status GetProjectKey(BSTR workspace, BSTR project, BSTR* key) override {
    return host_.BeginText("GetProjectKey", Join(workspace, project), key,
                           "key of " + Join(workspace, project));
  }
  Status GetCurrentConfiguration(BSTR* name) override {
    return FakePathService(host_).GetCurrentConfiguration(name);
  }
  Status GetPlatformText(BSTR* text) override {
    return host_.BeginText("GetPlatformText", "", text, "Simulator");
  }
  Status GetConfigurationKey(BSTR workspace, BSTR project, BSTR configuration, BSTR* key) override {
    const std::string names = Join(workspace, project, configuration);
    return host_.BeginText("GetConfigurationKey", names, key, "key of " + names);
  }
};

class FakeDataManager final : public Service<IQDataManager> {
 public:
  using Service::Service;
  Status SetSessionValue(BSTR workspace, BSTR project, BSTR configuration, BSTR key, BSTR value) override {
    const std::string name = Join(workspace, project, configuration, key);
    const Status status = host_.Begin("SetSessionValue", name + " = " + BstrText(value));
    if (status == platform::S_OK) host_.session[name] = BstrText(value);
    return status;
  }
  Status GetSessionValue(BSTR workspace, BSTR project, BSTR configuration, BSTR key, BSTR* value) override {
    const std::string name = Join(workspace, project, configuration, key);
    const auto found = host_.session.find(name);
    if (found != host_.session.end()) return host_.BeginText("GetSessionValue", name, value, found->second);
    const Status status = host_.Begin("GetSessionValue", name);
    return Failed(status) ? status : platform::E_FAIL;
  }
};

inline Status WriteNumber(FakeHost& host, const char* operation, const std::string& name,
                          std::int32_t value) {
  const Status status = host.Begin(operation, name + " = " + std::to_string(value));
  if (status == platform::S_OK) host.setting_numbers[name] = value;
  return status;
}

inline Status ReadNumber(FakeHost& host, const char* operation, const std::string& name,
                         std::int32_t* value) {
  if (const Status status = host.Begin(operation, name); status != platform::S_OK) return status;
  const auto found = host.setting_numbers.find(name);
  if (found == host.setting_numbers.end()) return platform::E_FAIL;
  *value = found->second;
  return platform::S_OK;
}

class FakeSettings final : public Service<IQSettings> {
 public:
  using Service::Service;
  Status WriteSectionInt(BSTR section, BSTR key, std::int32_t value) override {
    return WriteNumber(host_, "WriteSectionInt", BstrText(section) + "/" + BstrText(key), value);
  }
  Status WriteInt(BSTR key, std::int32_t value) override {
    return WriteNumber(host_, "WriteInt", BstrText(key), value);
  }
  Status WriteString(BSTR key, BSTR text) override {
    const Status status = host_.Begin("WriteString", BstrText(key) + " = " + BstrText(text));
    if (status == platform::S_OK) host_.setting_texts[BstrText(key)] = BstrText(text);
    return status;
  }
  Status ReadSectionInt(BSTR section, BSTR key, std::int32_t* value) override {
    return ReadNumber(host_, "ReadSectionInt", BstrText(section) + "/" + BstrText(key), value);
  }
  Status ReadInt(BSTR key, std::int32_t* value) override {
    return ReadNumber(host_, "ReadInt", BstrText(key), value);
  }
  Status ReadString(BSTR key, BSTR* text) override {
    const auto found = host_.setting_texts.find(BstrText(key));
    if (found != host_.setting_texts.end())
      return host_.BeginText("ReadString", found->first, text, found->second);
    const Status status = host_.Begin("ReadString", BstrText(key));
    return Failed(status) ? status : platform::E_FAIL;
  }
};

inline void FillList(const FakePlaceholderList& source, platform::VARIANT* list) {
  const platform::VARTYPE type = source.wrong_type ? platform::VT_VARIANT : platform::VT_BSTR;
  platform::SAFEARRAY* const array =
      platform::SafeArrayCreateVector(type, source.entries.size() * 4 + source.stray_elements);
  list->vt = platform::VT_ARRAY | type;
  list->parray = array;
  if (source.wrong_type) return;
  std::size_t index = 0;
  for (const FakePlaceholder& entry : source.entries) {
    for (const std::string* text : {&entry.description, &entry.name, &entry.value}) {
      *platform::SafeArrayBstrAt(array, index++) = platform::NewBstr(*text);
    }
  }
}

class FakeCustomPlaceholders final : public Service<IQCustomPlaceholders> {
 public:
  using Service::Service;
  Status GetGlobalPlaceholders(platform::VARIANT* list) override {
    const Status status = host_.Begin("GetGlobalPlaceholders");
    if (status == platform::S_OK) FillList(host_.global_placeholders, list);
    return status;
  }
  Status GetWorkspacePlaceholders(BSTR workspace, platform::VARIANT* list) override {
    const Status status = host_.Begin("GetWorkspacePlaceholders", BstrText(workspace));
    if (status == platform::S_OK) FillList(host_.workspace_placeholders, list);
    return status;
  }
};

class FakeDeviceInfo final : public Service<IQDeviceInfo> {
 public:
  using Service::Service;
  Status GetDefaultIOPath(BSTR* path) override {
    return host_.BeginText("GetDefaultIOPath", "", path, host_.device_path);
  }
  Status GetBaseAddress(std::uint32_t* address) override {
    const Status status = host_.Begin("GetBaseAddress");
    if (status == platform::S_OK) *address = 0;
    return status;
  }
};

class FakeDebugSession final : public Service<IQDebugSession> {
 public:
  using Service::Service;
  Status IsTargetRunning() override {
    const Status status = host_.Begin("IsTargetRunning");
    return status == platform::S_OK ? host_.target_running : status;
  }
};

inline Status Read(FakeHost& host, const char* operation, std::uint32_t first, std::uint32_t last,
                   std::uint32_t width, std::uint8_t* buffer) {
  const Status status = host.Begin(operation, Range(first, last) + Number(" width ", width));
  if (status == platform::S_OK) std::ranges::copy(host.Peek(first, last - first + 1), buffer);
  return status;
}

class FakeTargetMemory final : public Service<IQTargetMemory> {
 public:
  using Service::Service;
  Status ReadDirect(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                    std::uint8_t* buffer) override {
    return Read(host_, "ReadDirect", first, last, width, buffer);
  }
  Status ReadDirectLittle(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                          std::uint8_t* buffer) override {
    return Read(host_, "ReadDirectLittle", first, last, width, buffer);
  }
  Status WriteMemory(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                     const std::uint8_t* buffer) override {
    const std::uint32_t count = last - first + 1;
    const Status status =
        host_.Begin("WriteMemory", Range(first, last) + Number(" width ", width) + Bytes(buffer, count));
    if (status == platform::S_OK) host_.Poke(first, {buffer, buffer + count});
    return status;
  }
};

class FakeBlockMemory final : public Service<IQBlockMemory> {
 public:
  using Service::Service;
  Status WriteBlock(std::uint32_t first, std::uint32_t last, std::uint32_t flag, std::uint32_t size,
                    const std::uint8_t* buffer) override {
    const Status status =
        host_.Begin("WriteBlock", Range(first, last) + " flag " + Hex(flag, 1) + Bytes(buffer, size));
    if (status != platform::S_OK) return status;
    std::vector<std::uint8_t> bytes(buffer, buffer + size);
    std::uint32_t area_first = 0;
    std::uint32_t area_last = 0;
    if (host_.IsLittle(first, &area_first, &area_last)) std::ranges::reverse(bytes);
    host_.Poke(first, bytes);
    return status;
  }
};

class FakeMemoryMap final : public Service<IQMemoryMap> {
 public:
  using Service::Service;
  Status GetAreaInfo(std::uint32_t address, std::uint32_t* first, std::uint32_t* last,
                     std::uint32_t* endian) override {
    const Status status = host_.Begin("GetAreaInfo", Hex(address, 8));
    if (status == platform::S_OK) *endian = host_.IsLittle(address, first, last) ? 1 : 0;
    return status;
  }
};

class FakeDebugLibrary final : public Service<IQDebugLibrary> {
 public:
  using Service::Service;
  Status GetLibraryHandle(platform::HMODULE* handle) override {
    const Status status = host_.Begin("GetLibraryHandle");
    if (status != platform::S_OK) return status;
    *handle = host_.library;
    return host_.library == nullptr ? platform::E_FAIL : platform::S_OK;
  }
};

// Services without an operation.
template <typename Interface>
class SilentService final : public Service<Interface> {
 public:
  using Service<Interface>::Service;
};

}  // namespace pvw::test::fakes
