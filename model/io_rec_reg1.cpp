#include "model/io_rec_reg1.h"

#include <utility>

#include "model/field_scan.h"

namespace pvw {

CIORecReg1::CIORecReg1(std::string name, CIORec* parent, std::string moduleSection)
    : CIORecReg(std::move(name), parent), m_moduleSection(std::move(moduleSection)) {
  m_bChildrenKnown = true;
}

bool CIORecReg1::ParseEntry(CIODataFile* file) {
  const std::string value = file->GetValue(m_moduleSection, m_name);
  RegisterDescription description;
  description.name = m_name;
  char size = 'B';
  char flag = 'I';
  FieldScan scan(value);
  scan.Hex(description.address) && scan.Char(size) && scan.Char(flag);
  const auto bytes = SizeOf(size);
  description.size = bytes.value_or(1);
  const bool flagged = ApplyAbsoluteFlag(flag, *file, description);
  Define(std::move(description));
  return bytes && flagged;
}

}  // namespace pvw
