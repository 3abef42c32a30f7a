// File version 3: a register is a section with a key for each of its properties, an address relative to its
// module's, access flags that are shown, and a list of bit-field sections. Faults are noted and not told.
#pragma once

#include "model/io_rec_reg.h"

namespace pvw {

class CIORecReg3 final : public CIORecReg {
 public:
  // `name` is the register's section.
  using CIORecReg::CIORecReg;

  // Reads the section; false when a key has a value that isn't one of its own. The register is defined all
  // the same.
  [[nodiscard]] bool ParseSection(CIODataFile* file, std::uint32_t moduleAddress);
  bool LoadChildren(CIODataFile* file, IQDebugger* target) override;
  std::string GetAccessText() const override;

 private:
  bool m_bLoaded = false;
  bool m_bRead = true;
  bool m_bWrite = true;
};

}  // namespace pvw
