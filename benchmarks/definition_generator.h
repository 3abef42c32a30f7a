// Makes definition files of any size.
#pragma once

#include <string>

namespace bench {

struct DefinitionShape {
  int version = 1;
  int registers = 1000;
  int registersPerModule = 100;
  int fieldsPerRegister = 2;  // 1 to 4, each two bits wide; versions 2 and 3
};

// In versions 2 and 3 every module hangs on a bit of one register that must be 0.
// Modules MODULE1 and on hold registers M1R0 and on, which hold fields F0 and on. Addresses run on from the
// file base 0xFF0000; sizes, radixes and access words take turns.
std::string GenerateDefinition(const DefinitionShape& shape);

}  // namespace bench
