// The Access column of file version 3. It only informs: a register that says so can still be read and
// written.
#pragma once

#include <string>

namespace pvw {

inline std::string AccessText(bool read, bool write) {
  return std::string(read ? "R" : "") + (write ? "W" : "");
}

}  // namespace pvw
