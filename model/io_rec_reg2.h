// File version 2: a register is a section with one line that describes it, and lists its bit fields in
// another section. Faults of the line are told to the user. Selection records of any depth are of this kind
// too.
#pragma once

#include <string>
#include <string_view>

#include "model/io_rec_reg.h"

namespace pvw {

class CIORecReg2 final : public CIORecReg {
 public:
  // `name` is the register's section.
  using CIORecReg::CIORecReg;

  // Reads the line; false when it has a fault, of which the user has been told. The register is then defined
  // with what there is, unless the line is missing or has no name.
  [[nodiscard]] bool ParseId(CIODataFile* file);
  // Reads the bit section, once.
  bool LoadChildren(CIODataFile* file, IQDebugger* target) override;

 private:
  // One entry of the bit section; false when it ends the reading of the section.
  bool LoadEntry(std::string_view key, const std::string& value);
  bool LoadProtection(const std::string& value);
  bool LoadBitfield(std::string_view number, const std::string& value);
};

}  // namespace pvw
