#include "model/io_rec_bitfield3.h"

#include <utility>

#include "model/access_text.h"
#include "model/definition_keys.h"
#include "model/field_scan.h"

namespace pvw {

CIORecBitfield3::CIORecBitfield3(std::string name, CIORec* parent, CIORegisterID* registerId, bool read,
                                 bool write)
    : CIORecBitfield(std::move(name), parent, registerId), m_bRead(read), m_bWrite(write) {}

bool CIORecBitfield3::ParseSection(CIODataFile* file) {
  const DefinitionKeys& keys = Keys();
  std::string name = file->GetValue(m_name, keys.name);
  std::int32_t bit = 0;
  std::int32_t length = 1;
  bool clean = FieldScan(file->GetValue(m_name, keys.bit)).Decimal(bit);
  if (const std::string value = file->GetValue(m_name, keys.len); !value.empty()) {
    clean &= FieldScan(value).Integer(length);
  }
  SetField(std::move(name), bit, length);
  return clean;
}

std::string CIORecBitfield3::GetAccessText() const {
  return AccessText(m_bRead, m_bWrite);
}

}  // namespace pvw
