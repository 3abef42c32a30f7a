// Makes definition files of any size, for benchmarks, tests and fuzz seeds.
#pragma once

#include <string>

namespace pvw::test {

struct DefinitionShape {
  int version = 1;
  int registers = 1000;
  int registersPerModule = 100;
  int fieldsPerRegister = 2;  // 0 to 4, each two bits wide; versions 2 and 3
  bool dependencies = true;   // every module hangs on a bit of one register that must be 0; versions 2 and 3
};

// Modules MODULE1 and on hold registers M1R0 and on, which hold fields F0 and on. Addresses run on from the
// file base 0xFF0000; sizes, radixes and access words take turns.
std::string GenerateDefinition(const DefinitionShape& shape);

}  // namespace pvw::test
