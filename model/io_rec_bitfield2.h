// File version 2: a bit field as its base has it.
#pragma once

#include "model/io_rec_bitfield.h"

namespace pvw {

class CIORecBitfield2 final : public CIORecBitfield {
 public:
  using CIORecBitfield::CIORecBitfield;
};

}  // namespace pvw
