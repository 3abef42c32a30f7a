#include "model/io_rec_reg3.h"

#include <tuple>
#include <utility>

#include "model/access_text.h"
#include "model/definition_keys.h"
#include "model/field_scan.h"
#include "model/io_rec_bitfield3.h"

namespace pvw {
namespace {

// A size in bits; empty means 8.
bool ParseSize(const std::string& value, std::uint32_t& bytes) {
  std::uint32_t bits = 8;
  if (!value.empty() && !FieldScan(value).Integer(bits)) return false;
  if (bits != 8 && bits != 16 && bits != 32) return false;
  bytes = bits / 8;
  return true;
}

// One character, 0 or 1; empty means 1, and so does anything else, which gives false.
bool ParseFlag(const std::string& value, bool& flag) {
  flag = value != "0";
  return value.empty() || value == "0" || value == "1";
}

}  // namespace

bool CIORecReg3::ParseSection(CIODataFile* file, std::uint32_t moduleAddress) {
  const DefinitionKeys& keys = Keys();
  RegisterDescription description;
  description.name = file->GetValue(m_name, keys.name);
  bool clean = FieldScan(file->GetValue(m_name, keys.reladdr)).Hex(description.address);
  clean &= ParseSize(file->GetValue(m_name, keys.size), description.size);
  description.address += file->GetEffectiveBase() - file->GetFileBase() + moduleAddress;
  if (const std::string value = file->GetValue(m_name, keys.radix); !value.empty()) {
    const auto radix = value.size() == 1 ? RadixOf(value.front()) : std::nullopt;
    description.radix = radix.value_or(Radix::kHexadecimal);
    clean &= radix.has_value();
  }
  clean &= ParseFlag(file->GetValue(m_name, keys.read), m_bRead);
  clean &= ParseFlag(file->GetValue(m_name, keys.write), m_bWrite);
  Define(std::move(description));
  return clean;
}

bool CIORecReg3::LoadChildren(CIODataFile* file, IQDebugger* /*target*/) {
  if (m_bLoaded) return true;
  const CIODataFile::Reading reading(*file);
  const std::string& stem = Keys().bitfield;
  const std::size_t first = m_children.size();
  for (std::uint32_t n = 0; HasRoom(); ++n) {
    std::string name = file->GetValue(m_name, NumberedKey(stem, n));
    if (name.empty()) break;
    if (auto field = TryMakeRecord<CIORecBitfield3>(std::move(name), this, &m_register, m_bRead, m_bWrite)) {
      AddChild(std::move(field));
    }
  }
  for (std::size_t i = first; i < m_children.size(); ++i) {
    std::ignore = static_cast<CIORecBitfield3&>(*m_children[i]).ParseSection(file);
  }
  m_bLoaded = true;
  return true;
}

std::string CIORecReg3::GetAccessText() const {
  return AccessText(m_bRead, m_bWrite);
}

}  // namespace pvw
