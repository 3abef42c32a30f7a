#include "model/io_rec_reg2.h"

#include <utility>

#include "model/definition_keys.h"
#include "model/field_scan.h"
#include "model/io_rec_bitfield2.h"
#include "model/key_list.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "resources/ids.h"
#include "support/message_text.h"

namespace pvw {
namespace {

constexpr std::size_t kBitSectionKeys = 8192;
constexpr std::size_t kProtectionTagLength = 3;

void Report(std::uint32_t message, std::string_view name, std::uint32_t type = platform::MB_OK) {
  platform::MessageBox(FormatMessageText(platform::LoadString(message), name), type);
}

// Addresses are written with 0x, and are never negative. The whole line is looked at, its name included; a
// minus at its very start is part of the name.
bool HasAddressForm(std::string_view value) {
  return value.find("0x") != std::string_view::npos && value.find("-0x", 1) == std::string_view::npos;
}

// The fields behind the name, "%lx %c %c %c %s %c", and how many of them there are.
struct IdFields {
  int count = 0;
  std::uint32_t address = 0;
  char size = 'B';
  char flag = 'I';
  char radix = 'H';
  std::string bitSection;
};

IdFields ScanId(std::string_view text) {
  IdFields fields;
  char surplus = 0;
  FieldScan scan(text);
  fields.count += scan.Hex(fields.address);
  fields.count += scan.Char(fields.size);
  fields.count += scan.Char(fields.flag);
  fields.count += scan.Char(fields.radix);
  fields.count += scan.Word(fields.bitSection);
  // A word in the place of the radix letter leaves one field too many: then it's the radix that is wrong.
  if (scan.Char(surplus)) fields.radix = 0;
  return fields;
}

}  // namespace

bool CIORecReg2::ParseId(CIODataFile* file) {
  const std::string value = file->GetValue(m_name, Keys().id);
  const std::size_t blank = value.find(' ');
  if (blank == 0 || blank == std::string::npos) {
    Report(IDS_REGISTER_MISSING, m_name, platform::MB_ICONSTOP);
    return false;
  }
  IdFields fields = ScanId(std::string_view(value).substr(blank));
  RegisterDescription description;
  description.name = value.substr(0, blank);
  description.address = fields.address;
  description.bitSection = std::move(fields.bitSection);
  const auto size = SizeOf(fields.size);
  const auto radix = RadixOf(fields.radix);
  description.size = size.value_or(description.size);
  description.radix = radix.value_or(description.radix);
  const bool placed = ApplyAbsoluteFlag(fields.flag, *file, description);

  const std::string& name = description.name;
  const Watch<CIORec> watch(GetTop());
  bool clean = true;
  const auto expect = [&](bool right, std::uint32_t message) {
    if (!right) Report(message, name);
    clean = clean && right;
  };
  expect(fields.count > 0 && HasAddressForm(value), IDS_BAD_ADDRESS);
  expect(size.has_value(), IDS_BAD_SIZE);
  expect(placed, IDS_BAD_ABSOLUTE);
  expect(radix.has_value(), IDS_BAD_RADIX);
  if (!watch.Stands()) return false;
  Define(std::move(description));
  return clean;
}

bool CIORecReg2::LoadChildren(CIODataFile* file, IQDebugger* /*target*/) {
  if (m_bChildrenKnown) return true;
  m_bChildrenKnown = true;
  const std::string section = m_register.GetBitSection();
  if (section.empty()) return true;
  const CIODataFile::Reading reading(*file);
  const KeyList keys = KeyList::UpTo(*file, section, kBitSectionKeys);
  std::string_view rest = keys.Text();
  const Watch<CIORec> watch(this);
  if (rest.empty()) Report(IDS_BITFIELDS_MISSING, m_register.GetName(), platform::MB_ICONSTOP);
  while (!rest.empty() && HasRoom()) {
    const std::string_view key = KeyList::Next(rest);
    // By its name, so a key that is repeated gives its first value again.
    if (!LoadEntry(key, file->GetValue(section, key))) break;
  }
  return watch.Stands();
}

bool CIORecReg2::LoadEntry(std::string_view key, const std::string& value) {
  const DefinitionKeys& keys = Keys();
  if (platform::EqualNoCase(key, keys.protection)) return LoadProtection(value);
  if (platform::StartsWithNoCase(key, keys.bit)) return LoadBitfield(key.substr(keys.bit.size()), value);
  return true;
}

bool CIORecReg2::LoadProtection(const std::string& value) {
  std::string tag;
  std::uint32_t number = 0;
  FieldScan scan(value);
  if (!scan.Word(tag) || !scan.Hex(number)) return false;
  std::size_t end = 0;
  for (std::size_t i = 0; i < kProtectionTagLength; ++i) end += platform::CharBytes(tag, end);
  tag.resize(end);
  m_register.SetProtection(std::move(tag), number);
  return true;
}

bool CIORecReg2::LoadBitfield(std::string_view number, const std::string& value) {
  std::string name;
  std::int32_t length = 1;
  std::int32_t bit = 0;
  FieldScan scan(value);
  if (!scan.Word(name)) return false;
  scan.Decimal(length);
  if (!FieldScan(number).Decimal(bit)) return false;
  if (auto field = TryMakeRecord<CIORecBitfield2>(name, this, &m_register)) {
    field->SetField(std::move(name), bit, length);
    AddChild(std::move(field));
  }
  return true;
}

}  // namespace pvw
