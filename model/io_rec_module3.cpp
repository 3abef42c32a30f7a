#include "model/io_rec_module3.h"

#include <tuple>

#include "model/definition_keys.h"
#include "model/field_scan.h"
#include "model/io_rec_reg3.h"

namespace pvw {

bool CIORecModule3::LoadDependency(CIODataFile* file) {
  const DefinitionKeys& keys = Keys();
  FieldScan(file->GetValue(m_name, keys.addr)).Hex(m_address);
  m_bAbsolute = file->GetNumber(m_name, keys.abs, m_bAbsolute ? 1 : 0) != 0;
  std::string section = file->GetValue(m_name, keys.depReg);
  if (section.empty()) return true;
  const std::uint32_t bit = file->GetNumber(m_name, keys.depBit, 0);
  const std::uint32_t required = file->GetNumber(m_name, keys.depVal, 0);

  CIORecReg3 reg(std::move(section), this);
  if (!reg.ParseSection(file, m_address)) return false;
  SetDependency(*reg.GetRegister(), bit, required);
  return true;
}

std::unique_ptr<CIORecReg> CIORecModule3::MakeRegister(std::string name) {
  return TryMakeRecord<CIORecReg3>(std::move(name), this);
}

bool CIORecModule3::ParseRegister(CIORecReg& reg, CIODataFile* file) {
  std::ignore = static_cast<CIORecReg3&>(reg).ParseSection(file, m_address);
  return true;
}

}  // namespace pvw
