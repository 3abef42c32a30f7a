// Reads any bytes as a definition file: through the index, held against a reading line by line, and through
// the record tree, with every module and register opened.

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/memory_file.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "model/profile_text.h"
#include "platform/base/text.h"
#include "tests/model/scanning_reader.h"

namespace {

using namespace pvw;
using fuzz::MemoryFile;
using fuzz::Require;

// A scan of the text for each lookup is slow: the first names of a text have to do.
constexpr std::size_t kNames = 6;

void CheckIndex(std::string_view bytes) {
  const ProfileText text{std::string(bytes)};
  std::vector<std::string> sections{""};
  std::vector<std::string> keys{""};
  for (std::size_t begin = 0; begin < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    const ProfileLine line = ParseProfileLine(bytes.substr(begin, end - begin));
    begin = end + 1;
    if (line.kind == ProfileLine::Kind::kSection && sections.size() < kNames)
      sections.emplace_back(line.name);
    if (line.kind == ProfileLine::Kind::kEntry && keys.size() < kNames) keys.emplace_back(line.name);
  }
  for (const std::string& name : sections) {
    const std::vector<ProfileLine> scanned = test::ScanForEntries(bytes, name);
    const ProfileText::Section* section = text.FindSection(name);
    Require(scanned.size() == (section != nullptr ? text.KeyCount(*section) : 0));
    for (std::size_t i = 0; i < scanned.size(); ++i) Require(text.KeyAt(*section, i) == scanned[i].name);
    for (const std::string& key : keys)
      Require(text.Value(name, key) == test::ScanForValue(bytes, name, key));
  }
}

void CheckKeyLists(CIODataFile& file, const std::string& section) {
  std::array<char, 64> buffer;
  for (std::size_t size = 0; size <= buffer.size(); size += 1 + size / 4) {
    const std::size_t used = file.GetKeys(section, std::span(buffer).first(size));
    Require(used == 0 || used < size);
    Require(size == 0 || buffer[used] == '\0');
  }
}

// A text of some kilobytes can name a large section in each of thousands of modules.
constexpr std::size_t kRecords = 20'000;

void ReadColumns(CIORec& record) {
  record.GetName();
  record.GetAddressText(0x1000);
  record.GetValueText();
  record.GetAccessText();
}

void OpenEverything(CIODataFile& file) {
  CIOData data;
  data.LoadModules(&file);
  std::size_t records = data.GetModuleCount();
  for (std::size_t i = 0; CIORec* module = data.GetModule(i); ++i) {
    if (records > kRecords) return;
    module->LoadChildren(&file, nullptr);
    module->UpdateEnabled();
    records += module->GetChildren().size();
    for (const auto& reg : module->GetChildren()) {
      if (records > kRecords) return;
      reg->LoadChildren(&file, nullptr);
      ReadColumns(*reg);
      records += reg->GetChildren().size();
      for (const auto& field : reg->GetChildren()) {
        ReadColumns(*field);
        field->SetValue(nullptr, 1);
      }
      reg->SetValue(nullptr, 0xA5);
    }
  }
  data.ReadValues(nullptr);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile memory;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  // The last byte chooses the code page, so that a seed is a plain definition file.
  constexpr std::array<unsigned, 3> kPages = {932, 65001, 1252};
  platform::SetAnsiCodePage(kPages[bytes.empty() ? 0 : data[size - 1] % kPages.size()]);

  CheckIndex(bytes);
  memory.Write(bytes);
  CIODataFile file;
  const CIODataFile::Reading reading(file);
  file.Open(memory.Path(), 0);
  CheckKeyLists(file, "Modules");
  OpenEverything(file);
  return 0;
}
