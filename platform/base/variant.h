// Lists as they cross host interfaces: a VARIANT that holds a one-dimensional SAFEARRAY. Stands in for the
// part of OLE automation that the host's lists use; no other types, no conversion.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/base/bstr.h"

namespace platform {

using VARTYPE = std::uint16_t;

inline constexpr VARTYPE VT_EMPTY = 0;
inline constexpr VARTYPE VT_BSTR = 8;
inline constexpr VARTYPE VT_VARIANT = 12;
inline constexpr VARTYPE VT_UI1 = 17;
inline constexpr VARTYPE VT_UINT = 23;
inline constexpr VARTYPE VT_ARRAY = 0x2000;

struct SAFEARRAY;

// `vt` says which member counts. A plain record: VariantClear frees what it owns.
struct VARIANT {
  VARTYPE vt = VT_EMPTY;
  union {
    BSTR bstrVal;
    std::uint8_t bVal;
    std::uint32_t uintVal;
    SAFEARRAY* parray = nullptr;
  };
};

// Frees the string or the array with its elements, and leaves the type empty.
void VariantClear(VARIANT* variant);

// A new array of `count` empty elements of VT_VARIANT or VT_BSTR, lower bound 0; null for another type,
// 2 to the 32nd or more elements, or when there is no memory.
[[nodiscard]] SAFEARRAY* SafeArrayCreateVector(VARTYPE type, std::size_t count);
// Number of elements; 0 for null.
std::size_t SafeArrayGetCount(const SAFEARRAY* array);
// The element itself, to read or to fill; null when the index is past the end or the type is another.
VARIANT* SafeArrayVariantAt(SAFEARRAY* array, std::size_t index);
BSTR* SafeArrayBstrAt(SAFEARRAY* array, std::size_t index);

// Owns one VARIANT.
class ScopedVariant {
 public:
  ScopedVariant() = default;
  ScopedVariant(const ScopedVariant&) = delete;
  ScopedVariant& operator=(const ScopedVariant&) = delete;
  ~ScopedVariant() { VariantClear(&value_); }

  VARIANT* Receive() {
    VariantClear(&value_);
    return &value_;
  }
  const VARIANT& Get() const { return value_; }

 private:
  VARIANT value_;
};

}  // namespace platform
