// What the fuzz targets share: a check that counts in every build, and a definition file in memory.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <string_view>

namespace pvw::fuzz {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

// One file without a directory entry, whose text is replaced for each load.
class MemoryFile {
 public:
  MemoryFile() : m_descriptor(::memfd_create("definition", 0)) { Require(m_descriptor >= 0); }

  std::string Path() const { return "c:\\proc\\self\\fd\\" + std::to_string(m_descriptor); }

  void Write(std::string_view bytes) const {
    Require(::ftruncate(m_descriptor, 0) == 0);
    Require(::pwrite(m_descriptor, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
  }

 private:
  const int m_descriptor;
};

}  // namespace pvw::fuzz
