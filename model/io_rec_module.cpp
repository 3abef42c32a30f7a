#include "model/io_rec_module.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <tuple>
#include <utility>

#include "model/definition_keys.h"

namespace pvw {

bool CIORecModule::LoadChildren(CIODataFile* file, IQDebugger* target) {
  if (TestLoaded()) return true;
  if (m_bLoading) return false;
  const CIODataFile::Reading reading(*file);
  const Watch<CIORec> watch(this);
  std::erase_if(m_children, [](const auto& record) { return !record->IsMissing(); });
  m_bLoading = true;
  const bool loaded = LoadRegisters(file, target);
  if (!watch.Stands()) return false;
  m_bLoading = false;
  std::stable_partition(m_children.begin(), m_children.end(),
                        [](const auto& record) { return !record->IsMissing(); });
  return loaded;
}

bool CIORecModule::LoadRegisters(CIODataFile* file, IQDebugger* target) {
  const Watch<CIORec> watch(this);
  bool loaded = true;
  for (std::uint32_t n = 0; HasRoom(); ++n) {
    std::string name = file->GetValue(m_name, NumberedKey(Keys().reg, n));
    if (name.empty()) {
      if (n == 0) loaded = OnNoRegisters();
      break;
    }
    if (auto reg = MakeRegister(std::move(name))) AddChild(std::move(reg));
  }
  for (std::size_t i = 0; watch.Stands() && loaded && i < m_children.size(); ++i) {
    if (m_children[i]->IsMissing()) continue;
    auto& reg = static_cast<CIORecReg&>(*m_children[i]);
    loaded = ParseRegister(reg, file);
    if (loaded && watch.Stands()) std::ignore = reg.ReadValue(target);
  }
  if (!watch.Stands()) return false;
  m_bLoaded = true;
  return loaded;
}

platform::Status CIORecModule::ReadValue(IQDebugger* target) {
  const Watch<CIORec> watch(this);
  if (!m_bMissing && m_pDepRegister != nullptr) std::ignore = m_pDepRegister->Read(target);
  if (!watch.Stands()) return platform::E_FAIL;
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
