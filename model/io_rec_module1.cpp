#include "model/io_rec_module1.h"

#include <tuple>

#include "model/io_rec_reg1.h"
#include "model/key_list.h"

namespace pvw {

bool CIORecModule1::LoadDependency(CIODataFile* /*file*/) {
  return true;
}

bool CIORecModule1::LoadRegisters(CIODataFile* file, IQDebugger* target) {
  if (!HasRoom()) return true;
  const KeyList keys = KeyList::All(*file, m_name);
  std::string_view rest = keys.Text();
  if (rest.empty()) return true;
  const Watch<CIORec> watch(this);
  while (!rest.empty()) {
    auto made = MakeRegister(std::string(KeyList::Next(rest)));
    if (made == nullptr) return true;
    CIORecReg& reg = *made;
    AddChild(std::move(made));
    std::ignore = ParseRegister(reg, file);
    std::ignore = reg.ReadValue(target);
    if (!watch.Stands()) return false;
  }
  m_bLoaded = true;
  return true;
}

std::unique_ptr<CIORecReg> CIORecModule1::MakeRegister(std::string name) {
  return TryMakeRecord<CIORecReg1>(std::move(name), this, m_name);
}

bool CIORecModule1::ParseRegister(CIORecReg& reg, CIODataFile* file) {
  std::ignore = static_cast<CIORecReg1&>(reg).ParseEntry(file);
  return true;
}

}  // namespace pvw
