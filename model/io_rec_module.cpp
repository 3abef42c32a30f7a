#include "model/io_rec_module.h"

#include <new>
#include <tuple>
#include <utility>

#include "model/definition_keys.h"

namespace pvw {

bool CIORecModule::LoadChildren(CIODataFile* file, IQDebugger* target) {
  if (TestLoaded()) return true;
  const CIODataFile::Reading reading(*file);
  Records earlier = TakeChildren();
  const bool loaded = LoadRegisters(file, target);
  for (auto& record : earlier) {
    if (record->IsMissing()) AddChild(std::move(record));
  }
  return loaded;
}

bool CIORecModule::LoadRegisters(CIODataFile* file, IQDebugger* target) {
  bool loaded = true;
  for (std::uint32_t n = 0; HasRoom(); ++n) {
    std::string name = file->GetValue(m_name, NumberedKey(Keys().reg, n));
    if (name.empty()) {
      if (n == 0) loaded = OnNoRegisters();
      break;
    }
    if (auto reg = MakeRegister(std::move(name))) AddChild(std::move(reg));
  }
  for (const auto& child : m_children) {
    if (!ParseRegister(static_cast<CIORecReg&>(*child), file)) {
      loaded = false;
      break;
    }
    std::ignore = child->ReadValue(target);
  }
  m_bLoaded = true;
  return loaded;
}

platform::Status CIORecModule::ReadValue(IQDebugger* target) {
  if (!m_bMissing && m_pDepRegister != nullptr) std::ignore = m_pDepRegister->Read(target);
  return CIORec::ReadValue(target);
}

void CIORecModule::SetDependency(const CIORegisterID& registerId, std::uint32_t bit, std::uint32_t value) {
  try {
    m_pDepRegister = std::make_unique<CIORegisterID>(registerId);
  } catch (const std::bad_alloc&) {
    return;
  }
  m_depBit = bit;
  m_depValue = value;
}

bool CIORecModule::IsConditionMet() const {
  return m_pDepRegister == nullptr || m_pDepRegister->GetBit(m_depBit) == m_depValue;
}

}  // namespace pvw
