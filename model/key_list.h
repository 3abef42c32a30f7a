// The keys of one section of a definition file, in order and with repeats.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "model/io_data_file.h"

namespace pvw {

class KeyList {
 public:
  // All of them.
  static KeyList All(CIODataFile& file, std::string_view section);
  // What fits into `size` bytes, each key with its zero byte, and one more at the end. The rest is lost, and
  // the last key can be cut.
  static KeyList UpTo(CIODataFile& file, std::string_view section, std::size_t size);

  // The keys, each ended by a zero byte, or by the end of the text. Good as long as the list is.
  std::string_view Text() const { return {m_buffer.get(), m_used}; }
  // Takes the first key off such a text.
  static std::string_view Next(std::string_view& rest);

 private:
  std::unique_ptr<char[]> m_buffer;
  std::size_t m_used = 0;
};

}  // namespace pvw
