// What a test tells the scripted library to answer, and what the library was asked.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace pvw::test {

// One call of a text export. "*" fills the buffer to its last byte; null leaves it alone.
struct TextAnswer {
  const char* text;
  std::int32_t result = 0;
  std::uint32_t size_left = 0;  // what it leaves as the size, where it answers that the buffer is too small
};

struct LibraryScript {
  std::uint32_t major = 1, minor = 0, ordinal = 1;
  std::vector<TextAnswer> product = {{"1.0"}}, type = {{"Resource"}};  // the last answer stays
  std::vector<std::string> asked = {};  // "interface", "product 1024 zeroed", "type 2000 dirty"
};

}  // namespace pvw::test
