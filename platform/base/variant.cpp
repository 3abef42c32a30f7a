#include "platform/base/variant.h"

#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace platform {

// Holds its elements in the member that its type names.
struct SAFEARRAY {
  VARTYPE type = VT_EMPTY;
  std::size_t count = 0;
  std::unique_ptr<VARIANT[]> variants;
  std::unique_ptr<BSTR[]> strings;
  SAFEARRAY* next = nullptr;  // in the list of arrays that wait for their destruction
};

namespace {

void DestroyArray(SAFEARRAY* array) {
  // Arrays in arrays wait in a list: no depth of nesting takes up the stack.
  while (array != nullptr) {
    const std::unique_ptr<SAFEARRAY> current(array);
    array = array->next;
    for (std::size_t i = 0; i < current->count; ++i) {
      if (current->type == VT_BSTR) {
        SysFreeString(current->strings[i]);
        continue;
      }
      VARIANT& element = current->variants[i];
      if ((element.vt & VT_ARRAY) != 0 && element.parray != nullptr) {
        element.parray->next = array;
        array = element.parray;
      } else {
        VariantClear(&element);
      }
    }
  }
}

}  // namespace

void VariantClear(VARIANT* variant) {
  if (variant == nullptr) return;
  const VARIANT old = std::exchange(*variant, VARIANT{});
  if (old.vt == VT_BSTR) {
    SysFreeString(old.bstrVal);
  } else if ((old.vt & VT_ARRAY) != 0) {
    DestroyArray(old.parray);
  }
}

SAFEARRAY* SafeArrayCreateVector(VARTYPE type, std::size_t count) {
  if ((type != VT_VARIANT && type != VT_BSTR) || count > std::numeric_limits<std::uint32_t>::max())
    return nullptr;
  std::unique_ptr<SAFEARRAY> array(new (std::nothrow) SAFEARRAY);
  if (array == nullptr) return nullptr;
  array->type = type;
  array->count = count;
  if (type == VT_VARIANT) {
    array->variants.reset(new (std::nothrow) VARIANT[count]);
    if (array->variants == nullptr) return nullptr;
  } else {
    array->strings.reset(new (std::nothrow) BSTR[count]());
    if (array->strings == nullptr) return nullptr;
  }
  return array.release();
}

std::size_t SafeArrayGetCount(const SAFEARRAY* array) {
  return array != nullptr ? array->count : 0;
}

VARIANT* SafeArrayVariantAt(SAFEARRAY* array, std::size_t index) {
  const bool found = array != nullptr && array->type == VT_VARIANT && index < array->count;
  return found ? &array->variants[index] : nullptr;
}

BSTR* SafeArrayBstrAt(SAFEARRAY* array, std::size_t index) {
  const bool found = array != nullptr && array->type == VT_BSTR && index < array->count;
  return found ? &array->strings[index] : nullptr;
}

}  // namespace platform
