// File version 2: a module lists register sections, the first that fails stops it, and its faults are told to
// the user. It depends on a bit by one line of text.
#pragma once

#include "model/io_rec_module.h"

namespace pvw {

class CIORecModule2 final : public CIORecModule {
 public:
  using CIORecModule::CIORecModule;

  bool LoadDependency(CIODataFile* file) override;

 protected:
  // The view loads a module before it counts as open, so one that is open has been loaded.
  bool TestLoaded() override { return m_bLoaded = m_bExpanded; }
  bool OnNoRegisters() const override;
  std::unique_ptr<CIORecReg> MakeRegister(std::string name) override;
  bool ParseRegister(CIORecReg& reg, CIODataFile* file) override;
};

}  // namespace pvw
