// File version 3: a module has an address that its registers are relative to, keys of their own for its
// dependency, and puts up with registers whose sections have faults.
#pragma once

#include "model/io_rec_module.h"

namespace pvw {

class CIORecModule3 final : public CIORecModule {
 public:
  using CIORecModule::CIORecModule;

  // Reads the module's address first, so it comes before the registers are loaded.
  bool LoadDependency(CIODataFile* file) override;

 protected:
  std::unique_ptr<CIORecReg> MakeRegister(std::string name) override;
  bool ParseRegister(CIORecReg& reg, CIODataFile* file) override;
};

}  // namespace pvw
