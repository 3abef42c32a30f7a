// A resource library that answers as a good one until a test changes its script. Loading it afresh brings the
// good answers back.
#include <algorithm>
#include <cstring>

#include "tests/support_library/modules/library_script.h"

#define EXPORT extern "C" __attribute__((visibility("default")))

namespace {

pvw::test::LibraryScript script;

std::int32_t Answer(std::vector<pvw::test::TextAnswer>& answers, const char* name, char* buffer,
                    std::uint32_t* size) {
  const bool zeroed = std::all_of(buffer, buffer + *size, [](char c) { return c == 0; });
  script.asked.push_back(name + (" " + std::to_string(*size)) + (zeroed ? " zeroed" : " dirty"));
  const pvw::test::TextAnswer answer = answers.front();
  if (answers.size() > 1) answers.erase(answers.begin());
  if (answer.text != nullptr && *answer.text == '*') {
    std::memset(buffer, 'x', *size);
  } else if (answer.text != nullptr) {
    std::memcpy(buffer, answer.text, std::min<std::size_t>(*size, std::strlen(answer.text) + 1));
  }
  if (answer.result > 0) *size = answer.size_left;
  return answer.result;
}

}  // namespace

EXPORT pvw::test::LibraryScript* GetScript() {
  return &script;
}
EXPORT std::int32_t GetDLLInterfaceVersion(std::uint32_t* major, std::uint32_t* minor) {
  script.asked.push_back("interface");
  *major = script.major;
  *minor = script.minor;
  return 0;
}
EXPORT std::int32_t GetDLLOrdinalVersion(std::uint32_t* version) {
  script.asked.push_back("ordinal");
  *version = script.ordinal;
  return 0;
}
EXPORT std::int32_t GetDLLProductVersion(char* buffer, std::uint32_t* size) {
  return Answer(script.product, "product", buffer, size);
}
EXPORT std::int32_t GetDLLType(char* buffer, std::uint32_t* size) {
  return Answer(script.type, "type", buffer, size);
}
