#include "ioview/commands/device_options.h"

#include <cstdio>

#include "ioview/component/open_definition.h"
#include "ioview/component/open_workspace.h"
#include "ioview/memory_file.h"
#include "ioview/native_file.h"
#include "ioview/number_text.h"
#include "ioview/store/store_files.h"
#include "platform/base/bstr.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

void PrintNotes(const LoadNotes& notes) {
  for (const std::string& line : notes.lines) std::fprintf(stderr, "ioview: %s\n", OneLine(line).c_str());
}

}  // namespace

void DeviceOptions::AddTo(CLI::App& app) {
  app.add_option("FILE", file, "The I/O definition file, of any name")->required()->type_name("");
  const auto option = [&app](const char* name, auto& word, const char* value, const char* about) {
    app.add_option(name, word, about)->type_name(value);
  };
  option("--base", base, "HEX", "Base address of the device; 0 (the default) takes the file's own");
  option("--memory", memory, "MEMORY", "Memory file: what the target's memory holds");
  option("--endian", endian, "ORDER", "Byte order of the target: big (the default) or little");
  option("--codepage", code_page, "N",
         "Code page of FILE and output: 65001 (UTF-8, the default), 1252 or 932");
  option("--workspace", workspace, "DIR", "Workspace whose session is used; none is used unless given");
  option("--settings", settings, "SETTINGS", "File with user settings; none are used unless given");
}

void DeviceOptions::SetCodePage() const {
  platform::SetAnsiCodePage(
      Choose<unsigned>("--codepage", code_page, {{"65001", 65001u}, {"1252", 1252u}, {"932", 932u}}));
}

std::uint32_t DeviceOptions::BaseAddress() const {
  const std::optional<std::uint32_t> address = ParseHexWord(base, 8);
  if (!address) {
    throw ProgramError("--base: " + Quoted(base) + " is not a hexadecimal number of up to eight digits");
  }
  return *address;
}

UserSettings DeviceOptions::LoadSettings() const {
  if (!settings) return {};
  LoadNotes notes;
  UserSettings loaded = LoadSettingsFile(*settings, notes).settings;
  PrintNotes(notes);
  return loaded;
}

void DeviceOptions::Prepare(HostServices& host) const {
  const ByteOrder order =
      Choose<ByteOrder>("--endian", endian, {{"big", ByteOrder::kBig}, {"little", ByteOrder::kLittle}});
  host.device.SetBaseAddress(BaseAddress());
  host.target.SetArea({0, 0xFFFFFFFF, order});
  if (memory) LoadMemoryFile(host.target, *memory);
  RequireReadableFile(file);

  host.workspace = OpenWorkspace(workspace.value_or("."));
  if (workspace) {
    LoadNotes notes;
    host.session_values = LoadSessionFile(SessionFileOf(*workspace), notes);
    PrintNotes(notes);
  }
  if (OfferDefinition(host, DrivePathOf(file))) ForgetDefinition(host);
}

}  // namespace ioview
