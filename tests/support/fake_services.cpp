#include "tests/support/fake_services.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "host/format_services.h"
#include "host/ids.h"
#include "host/ui_services.h"
#include "host/workspace_services.h"

namespace pvw::test::fakes {
namespace {

constexpr Status kBadNumber = static_cast<Status>(0x80040906u);

std::string Range(u32 first, u32 last) {
  return Hex(first, 8) + "-" + Hex(last, 8);
}

std::string Bytes(const std::uint8_t* bytes, u32 count) {
  std::string text = ":";
  for (u32 i = 0; i < count; ++i) text += " " + Hex(bytes[i], 2);
  return text;
}

// Hexadecimal digits bare or behind H', h', 0x, 0X, decimal behind D', binary behind B'; a bare prefix is 0.
std::optional<std::uint64_t> ParseNumber(std::string_view text) {
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

template <typename Map>
std::optional<typename Map::mapped_type> Lookup(const Map& map, const typename Map::key_type& key) {
  const auto found = map.find(key);
  return found != map.end() ? std::optional(found->second) : std::nullopt;
}

void FillList(const FakePlaceholderList& source, VARIANT* list) {
  const platform::VARTYPE type = source.wrong_type ? platform::VT_VARIANT : platform::VT_BSTR;
  list->vt = platform::VT_ARRAY | type;
  list->parray = platform::SafeArrayCreateVector(type, source.entries.size() * 4 + source.stray_elements);
  if (source.wrong_type) return;
  std::size_t index = 0;
  for (const FakePlaceholder& entry : source.entries) {
    for (const std::string* text : {&entry.description, &entry.name, &entry.value}) {
      *platform::SafeArrayBstrAt(list->parray, index++) = platform::NewBstr(*text);
    }
  }
}

using AllButUi =
    Services<IQErrorService, IQErrorReporter, IQNumberFormat, IQAddressFormat, IQCommandRecorder,
             IQPathService, IQWorkspaceInfo, IQDataManager, IQSettings, IQCustomPlaceholders, IQDeviceInfo,
             IQDebugSession, IQTargetMemory, IQBlockMemory, IQMemoryMap, IQDebugLibrary, IQDebugPlatform,
             IQDebugger, IQDebugExtra, IQDebugExtra2, IQBreakpoints, IQCpuRegisters, IQRegisterInfo,
             IQHostFrame, IQHostCommon, IQHostExtra, IQUiExtra>;

class FakeServices final : public AllButUi {
 public:
  using AllButUi::AllButUi;

  // Explains the statuses of each service, with the texts of the error service.
  Status QueryInterface(const GUID* iid, void** out) override {
    if (*iid != IID_IQErrorReporter) return AllButUi::QueryInterface(iid, out);
    *out = nullptr;
    return Do("QueryInterface", "IQErrorReporter", [&] { *out = static_cast<IQErrorReporter*>(this); });
  }
  Status GetErrorText(Status status, BSTR* text) override {
    return Give("GetErrorText", Hex(static_cast<u32>(status), 8), text,
                Lookup(host_.error_texts, status).value_or(""));
  }

  Status ParseValue(BSTR text, std::uint64_t* value) override {
    const std::optional<std::uint64_t> parsed = ParseNumber(BstrText(text));
    const Status status = Do("ParseValue", BstrText(text), [&] { *value = parsed.value_or(*value); });
    return status == S_OK && !parsed ? kBadNumber : status;
  }
  Status Format(const char* operation, const std::string& digits, u32 radix, BSTR* text) {
    return Give(operation, Words(digits, "radix", radix), text, "H'" + digits);
  }
  Status FormatByte(std::uint8_t value, u32 radix, BSTR* text) override {
    return Format("FormatByte", Hex(value, 2), radix, text);
  }
  Status FormatWord(std::uint16_t value, u32 radix, BSTR* text) override {
    return Format("FormatWord", Hex(value, 4), radix, text);
  }
  Status FormatLong(u32 value, u32 radix, BSTR* text) override {
    return Format("FormatLong", Hex(value, 8), radix, text);
  }
  Status FormatQuad(u32 low, u32 high, u32 radix, BSTR* text) override {
    return Format("FormatQuad", Hex(high, 8) + Hex(low, 8), radix, text);
  }

  Status FormatAddress(u32 address, u32 space, u32 mask, u32 flags, BSTR* text) override {
    const std::string digits = Hex(address, 8);
    const std::string details = Words("space", Hex(space, 1), "mask", Hex(mask, 1), "flags", Hex(flags, 1));
    return Give("FormatAddress", digits + " " + details, text, "H'" + digits);
  }
  Status Evaluate(const char* operation, BSTR text, u32 radix, std::int64_t* value) {
    return Do(operation, Words(text, "radix", radix), [&] {
      const auto found = Lookup(host_.expressions, BstrText(text));
      *value = found.value_or(*value);
      return found.has_value();
    });
  }
  Status EvaluateExpression(BSTR text, u32 radix, std::int64_t* value) override {
    return Evaluate("EvaluateExpression", text, radix, value);
  }
  Status EvaluateExpression2(BSTR text, u32 radix, std::int64_t* value) override {
    return Evaluate("EvaluateExpression2", text, radix, value);
  }

  // An idle recorder gives 1, which is a success and yet not yes.
  Status IsActive() override {
    const Status status = host_.Begin("IsActive");
    return status != S_OK || host_.recorder_active ? status : 1;
  }
  Status AddCommand(BSTR text) override {
    return Do("AddCommand", BstrText(text), [&] { host_.recorded.push_back(BstrText(text)); });
  }

  Status GetInstallDirectory(BSTR* directory) override {
    return Give("GetInstallDirectory", "", directory, host_.paths.install);
  }
  Status GetTempDirectory(BSTR* directory) override {
    return Give("GetTempDirectory", "", directory, "c:\\temp");
  }
  Status GetCurrentConfiguration(BSTR* name) override {
    return Give("GetCurrentConfiguration", "", name, host_.paths.configuration);
  }
  Status GetCurrentProject(BSTR* name) override {
    return Give("GetCurrentProject", "", name, host_.paths.project);
  }
  Status GetCurrentWorkspace(BSTR* name) override {
    return Give("GetCurrentWorkspace", "", name, host_.paths.workspace);
  }
  // A name that isn't the present one is a failure.
  Status GiveNamed(const char* operation, const std::string& names, const std::string& present, BSTR* out,
                   const std::string& text) {
    return Give(operation, names, out, names == present ? std::optional(text) : std::nullopt);
  }
  std::string Project() const { return host_.paths.workspace + " " + host_.paths.project; }
  std::string Configuration() const { return Project() + " " + host_.paths.configuration; }
  Status GetConfigurationDisplayName(BSTR workspace, BSTR project, BSTR configuration, BSTR* name) override {
    return GiveNamed("GetConfigurationDisplayName", Words(workspace, project, configuration), Configuration(),
                     name, "Debug");
  }
  Status GetProjectDisplayName(BSTR workspace, BSTR project, BSTR* name) override {
    return GiveNamed("GetProjectDisplayName", Words(workspace, project), Project(), name, "My Project");
  }
  Status GetWorkspaceDisplayName(BSTR workspace, BSTR* name) override {
    return GiveNamed("GetWorkspaceDisplayName", Words(workspace), host_.paths.workspace, name,
                     "My Workspace");
  }
  Status GetConfigurationDirectory(BSTR workspace, BSTR project, BSTR configuration,
                                   BSTR* directory) override {
    return GiveNamed("GetConfigurationDirectory", Words(workspace, project, configuration), Configuration(),
                     directory, host_.paths.configuration_directory);
  }
  Status GetProjectDirectory(BSTR workspace, BSTR project, BSTR* directory) override {
    return GiveNamed("GetProjectDirectory", Words(workspace, project), Project(), directory, "c:\\ws\\prj");
  }
  Status GetWorkspaceDirectory(BSTR workspace, BSTR* directory) override {
    return GiveNamed("GetWorkspaceDirectory", Words(workspace), host_.paths.workspace, directory, "c:\\ws");
  }
  Status IsWorkspaceOpen(u32* open) override {
    return Do("IsWorkspaceOpen", "", [&] { *open = host_.paths.open ? 1 : 0; });
  }
  Status GetProjectKey(BSTR workspace, BSTR project, BSTR* key) override {
    const std::string names = Words(workspace, project);
    return Give("GetProjectKey", names, key, "key of " + names);
  }
  Status GetConfigurationKey(BSTR workspace, BSTR project, BSTR configuration, BSTR* key) override {
    const std::string names = Words(workspace, project, configuration);
    return Give("GetConfigurationKey", names, key, "key of " + names);
  }
  Status GetPlatformText(BSTR* text) override { return Give("GetPlatformText", "", text, "Simulator"); }

  Status SetSessionValue(BSTR workspace, BSTR project, BSTR configuration, BSTR key, BSTR value) override {
    const std::string name = Words(workspace, project, configuration, key);
    return Do("SetSessionValue", Words(name, "=", value), [&] { host_.session[name] = BstrText(value); });
  }
  Status GetSessionValue(BSTR workspace, BSTR project, BSTR configuration, BSTR key, BSTR* value) override {
    const std::string name = Words(workspace, project, configuration, key);
    return Give("GetSessionValue", name, value, Lookup(host_.session, name));
  }

  Status WriteNumber(const char* operation, const std::string& name, std::int32_t value) {
    return Do(operation, Words(name, "=", value), [&] { numbers_[name] = value; });
  }
  Status ReadNumber(const char* operation, const std::string& name, std::int32_t* value) {
    return Do(operation, name, [&] {
      const auto found = Lookup(numbers_, name);
      *value = found.value_or(*value);
      return found.has_value();
    });
  }
  Status WriteSectionInt(BSTR section, BSTR key, std::int32_t value) override {
    return WriteNumber("WriteSectionInt", BstrText(section) + "/" + BstrText(key), value);
  }
  Status WriteInt(BSTR key, std::int32_t value) override {
    return WriteNumber("WriteInt", BstrText(key), value);
  }
  Status WriteString(BSTR key, BSTR text) override {
    return Do("WriteString", Words(key, "=", text), [&] { texts_[BstrText(key)] = BstrText(text); });
  }
  Status ReadSectionInt(BSTR section, BSTR key, std::int32_t* value) override {
    return ReadNumber("ReadSectionInt", BstrText(section) + "/" + BstrText(key), value);
  }
  Status ReadInt(BSTR key, std::int32_t* value) override {
    return ReadNumber("ReadInt", BstrText(key), value);
  }
  Status ReadString(BSTR key, BSTR* text) override {
    return Give("ReadString", BstrText(key), text, Lookup(texts_, BstrText(key)));
  }

  Status GetGlobalPlaceholders(VARIANT* list) override {
    return Do("GetGlobalPlaceholders", "", [&] { FillList(host_.global_placeholders, list); });
  }
  Status GetWorkspacePlaceholders(BSTR workspace, VARIANT* list) override {
    return Do("GetWorkspacePlaceholders", BstrText(workspace),
              [&] { FillList(host_.workspace_placeholders, list); });
  }
  Status GetDefaultIOPath(BSTR* path) override {
    return Give("GetDefaultIOPath", "", path, host_.device_path);
  }
  Status GetBaseAddress(u32* address) override {
    return Do("GetBaseAddress", "", [&] { *address = 0; });
  }

  Status IsTargetRunning() override {
    const Status status = host_.Begin("IsTargetRunning");
    return status == S_OK ? host_.target_running : status;
  }
  Status Read(const char* operation, u32 first, u32 last, u32 width, std::uint8_t* buffer) {
    return Do(operation, Words(Range(first, last), "width", width),
              [&] { std::ranges::copy(host_.Peek(first, last - first + 1), buffer); });
  }
  Status ReadDirect(u32 first, u32 last, u32 width, std::uint8_t* buffer) override {
    return Read("ReadDirect", first, last, width, buffer);
  }
  Status ReadDirectLittle(u32 first, u32 last, u32 width, std::uint8_t* buffer) override {
    return Read("ReadDirectLittle", first, last, width, buffer);
  }
  Status WriteMemory(u32 first, u32 last, u32 width, const std::uint8_t* buffer) override {
    const u32 count = last - first + 1;
    return Do("WriteMemory", Words(Range(first, last), "width", width) + Bytes(buffer, count), [&] {
      host_.Poke(first, {buffer, buffer + count});
    });
  }
  Status WriteBlock(u32 first, u32 last, u32 flag, u32 size, const std::uint8_t* buffer) override {
    return Do("WriteBlock", Words(Range(first, last), "flag", Hex(flag, 1)) + Bytes(buffer, size), [&] {
      std::vector<std::uint8_t> bytes(buffer, buffer + size);
      if (host_.AreaAt(first).little) std::ranges::reverse(bytes);
      host_.Poke(first, bytes);
    });
  }
  Status GetAreaInfo(u32 address, u32* first, u32* last, u32* endian) override {
    return Do("GetAreaInfo", Hex(address, 8), [&] {
      const FakeArea area = host_.AreaAt(address);
      *first = area.first;
      *last = area.last;
      *endian = area.little ? 1 : 0;
    });
  }
  Status GetLibraryHandle(HMODULE* handle) override {
    return Do("GetLibraryHandle", "", [&] { return (*handle = host_.library) != nullptr; });
  }

 private:
  // A text that there isn't lets the operation fail.
  Status Give(std::string_view operation, const std::string& arguments, BSTR* out,
              const std::optional<std::string>& text) {
    const Status status = host_.Begin(operation, arguments);
    if (!text) return platform::Failed(status) ? status : E_FAIL;
    const std::string& given = status == S_OK ? *text : host_.text_on_failure;
    if (status == S_OK || !given.empty()) *out = platform::NewBstr(given);
    return status;
  }

  std::map<std::string, std::string> texts_;
  std::map<std::string, std::int32_t> numbers_;  // by "KEY" or "SECTION/KEY"
};

}  // namespace

std::vector<Offered> OfferServices(FakeHost& host) {
  const auto all = std::make_shared<FakeServices>(host);
  return {
      Offer<IQErrorService>(all, IID_IQErrorService, "IQErrorService"),
      Offer<IQNumberFormat>(all, IID_IQNumberFormat, "IQNumberFormat"),
      Offer<IQAddressFormat>(all, IID_IQAddressFormat, "IQAddressFormat"),
      Offer<IQCommandRecorder>(all, IID_IQCommandRecorder, "IQCommandRecorder"),
      Offer<IQPathService>(all, IID_IQPathService, "IQPathService"),
      Offer<IQWorkspaceInfo>(all, IID_IQWorkspaceInfo, "IQWorkspaceInfo"),
      Offer<IQDataManager>(all, IID_IQDataManager, "IQDataManager"),
      Offer<IQSettings>(all, IID_IQSettings, "IQSettings"),
      Offer<IQCustomPlaceholders>(all, IID_IQCustomPlaceholders, "IQCustomPlaceholders"),
      Offer<IQDeviceInfo>(all, IID_IQDeviceInfo, "IQDeviceInfo"),
      Offer<IQDebugSession>(all, IID_IQDebugSession, "IQDebugSession"),
      Offer<IQTargetMemory>(all, IID_IQTargetMemory, "IQTargetMemory"),
      Offer<IQBlockMemory>(all, IID_IQBlockMemory, "IQBlockMemory"),
      Offer<IQMemoryMap>(all, IID_IQMemoryMap, "IQMemoryMap"),
      Offer<IQDebugLibrary>(all, IID_IQDebugLibrary, "IQDebugLibrary"),
      Offer<IQDebugPlatform>(all, IID_IQDebugPlatform, "IQDebugPlatform"),
      Offer<IQDebugger>(all, IID_IQDebugger, "IQDebugger"),
      Offer<IQDebugExtra>(all, IID_IQDebugExtra, "IQDebugExtra"),
      Offer<IQDebugExtra2>(all, IID_IQDebugExtra2, "IQDebugExtra2"),
      Offer<IQBreakpoints>(all, IID_IQBreakpoints, "IQBreakpoints"),
      Offer<IQCpuRegisters>(all, IID_IQCpuRegisters, "IQCpuRegisters"),
      Offer<IQRegisterInfo>(all, IID_IQRegisterInfo, "IQRegisterInfo"),
      Offer<IQHostFrame>(all, IID_IQHostFrame, "IQHostFrame"),
      Offer<IQHostCommon>(all, IID_IQHostCommon, "IQHostCommon"),
      Offer<IQHostExtra>(all, IID_IQHostExtra, "IQHostExtra"),
      Offer<IQUiExtra>(all, IID_IQUiExtra, "IQUiExtra"),
  };
}

}  // namespace pvw::test::fakes
