// File version 1: a register is one entry of its module's section, without radix, access text or bit fields.
#pragma once

#include "model/io_rec_reg.h"

namespace pvw {

class CIORecReg1 final : public CIORecReg {
 public:
  // `name` is the key of the entry in `moduleSection`.
  CIORecReg1(std::string name, CIORec* parent, std::string moduleSection);

  // Reads the entry; false when a field of it isn't one that is known. The register is defined all the same.
  [[nodiscard]] bool ParseEntry(CIODataFile* file);

 private:
  std::string m_moduleSection;
};

}  // namespace pvw
