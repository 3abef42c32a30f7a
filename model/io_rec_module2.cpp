#include "model/io_rec_module2.h"

#include "model/definition_keys.h"
#include "model/field_scan.h"
#include "model/io_rec_reg2.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/message_text.h"

namespace pvw {

bool CIORecModule2::LoadDependency(CIODataFile* file) {
  const std::string value = file->GetValue(m_name, Keys().dep);
  if (value.empty()) return true;
  const std::size_t blank = value.find(' ');
  if (blank == 0 || blank == std::string::npos) return false;

  CIORecReg2 reg(value.substr(0, blank), this);
  FieldScan scan(std::string_view(value).substr(blank));
  std::uint32_t bit = 0;
  std::uint32_t required = 0;
  if (!scan.Decimal(bit) || !scan.Decimal(required)) return false;
  if (!reg.ParseId(file)) return false;
  SetDependency(*reg.GetRegister(), bit, required);
  return true;
}

bool CIORecModule2::OnNoRegisters() const {
  platform::MessageBox(FormatMessageText(platform::LoadString(IDS_BITFIELDS_MISSING), m_name),
                       platform::MB_ICONSTOP);
  return false;
}

std::unique_ptr<CIORecReg> CIORecModule2::MakeRegister(std::string name) {
  return TryMakeRecord<CIORecReg2>(std::move(name), this);
}

bool CIORecModule2::ParseRegister(CIORecReg& reg, CIODataFile* file) {
  return static_cast<CIORecReg2&>(reg).ParseId(file);
}

}  // namespace pvw
