// File version 1: every entry of the module's section is a register, and there are no dependencies.
#pragma once

#include "model/io_rec_module.h"

namespace pvw {

class CIORecModule1 final : public CIORecModule {
 public:
  using CIORecModule::CIORecModule;

  bool LoadDependency(CIODataFile* file) override;

 protected:
  // A section without entries isn't counted as loaded: it is looked at again next time.
  bool LoadRegisters(CIODataFile* file, IQDebugger* target) override;
  std::unique_ptr<CIORecReg> MakeRegister(std::string name) override;
  bool ParseRegister(CIORecReg& reg, CIODataFile* file) override;
};

}  // namespace pvw
