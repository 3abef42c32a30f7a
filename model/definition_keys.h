// The keys of the definition file, as the string table holds them.
#pragma once

#include <cstdint>
#include <string>

namespace pvw {

struct DefinitionKeys {
  std::string modules, module;                                        // section, and stem of its list
  std::string dep, reg, addr, abs, depReg, depBit, depVal;            // of a module
  std::string id, name, reladdr, size, radix, read, write, bitfield;  // of a register
  std::string bit, len, protection;                                   // of bit fields
};

// Read from the string table at the first use and whenever modules are loaded; in between they stay.
const DefinitionKeys& Keys();
void ReloadKeys();

// A key of a numbered list: "reg12".
std::string NumberedKey(const std::string& stem, std::uint32_t number);

}  // namespace pvw
