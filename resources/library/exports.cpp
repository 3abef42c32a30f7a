// By which the component knows that this is a resource library, and one of its own version.
//
// Each gives 0. The two that give a text take its room in `*size`, in bytes with the terminator; where that
// is too small they give 1, leave the size that is needed in `*size`, and leave the buffer alone.

#include <cstdint>
#include <cstring>

#define PVW_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

template <std::size_t kSize>
std::int32_t GiveText(const char (&text)[kSize], char* buffer, std::uint32_t* size) {
  if (buffer == nullptr || *size < kSize) {
    *size = kSize;
    return 1;
  }
  std::memcpy(buffer, text, kSize);
  return 0;
}

}  // namespace

PVW_EXPORT std::int32_t GetDLLInterfaceVersion(std::uint32_t* major, std::uint32_t* minor) {
  *major = 1;
  *minor = 0;
  return 0;
}

PVW_EXPORT std::int32_t GetDLLOrdinalVersion(std::uint32_t* version) {
  *version = 1;
  return 0;
}

PVW_EXPORT std::int32_t GetDLLProductVersion(char* buffer, std::uint32_t* size) {
  return GiveText("1.0", buffer, size);
}

PVW_EXPORT std::int32_t GetDLLType(char* buffer, std::uint32_t* size) {
  return GiveText("Resource", buffer, size);
}
