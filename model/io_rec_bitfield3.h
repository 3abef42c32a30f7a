// File version 3: a bit field is a section of its own, and shows its register's access flags.
#pragma once

#include "model/io_rec_bitfield.h"

namespace pvw {

class CIORecBitfield3 final : public CIORecBitfield {
 public:
  // `name` is the field's section.
  CIORecBitfield3(std::string name, CIORec* parent, CIORegisterID* registerId, bool read, bool write);

  // Reads the section; false when a number is missing or unreadable, in place of which 0 for the bit and 1
  // for the length stands.
  [[nodiscard]] bool ParseSection(CIODataFile* file);
  std::string GetAccessText() const override;

 private:
  bool m_bRead;
  bool m_bWrite;
};

}  // namespace pvw
