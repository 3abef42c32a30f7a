#include "ioview/host/custom_placeholders.h"

#include <algorithm>
#include <utility>

namespace ioview {

namespace {

void Set(std::vector<CustomPlaceholder>& list, CustomPlaceholder placeholder) {
  const auto same = std::ranges::find(list, placeholder.name, &CustomPlaceholder::name);
  if (same != list.end()) {
    *same = std::move(placeholder);
  } else {
    list.push_back(std::move(placeholder));
  }
}

// Four elements a placeholder; the readers take the entries from the first three quarters of the list, and
// the last quarter stays empty.
platform::Status Give(const std::vector<CustomPlaceholder>& placeholders, platform::VARIANT* list) {
  platform::SAFEARRAY* array = platform::SafeArrayCreateVector(platform::VT_BSTR, placeholders.size() * 4);
  if (array == nullptr) return platform::E_FAIL;
  std::size_t element = 0;
  for (const CustomPlaceholder& placeholder : placeholders) {
    *platform::SafeArrayBstrAt(array, element++) = platform::NewBstr(placeholder.description);
    *platform::SafeArrayBstrAt(array, element++) = platform::NewBstr(placeholder.name);
    *platform::SafeArrayBstrAt(array, element++) = platform::NewBstr(placeholder.value);
  }
  list->vt = platform::VT_ARRAY | platform::VT_BSTR;
  list->parray = array;
  return platform::S_OK;
}

}  // namespace

void CustomPlaceholders::SetGlobal(CustomPlaceholder placeholder) {
  Set(global_, std::move(placeholder));
}

void CustomPlaceholders::SetOfWorkspace(CustomPlaceholder placeholder) {
  Set(of_workspace_, std::move(placeholder));
}

platform::Status CustomPlaceholders::GetGlobalPlaceholders(platform::VARIANT* list) {
  if (!Enter("GetGlobalPlaceholders")) return platform::E_FAIL;
  *list = {};
  return Give(global_, list);
}

platform::Status CustomPlaceholders::GetWorkspacePlaceholders(platform::BSTR workspace,
                                                              platform::VARIANT* list) {
  if (!Enter("GetWorkspacePlaceholders", workspace)) return platform::E_FAIL;
  *list = {};
  if (!workspace_.IsOpen() || platform::BstrText(workspace) != workspace_.name) return platform::E_FAIL;
  return Give(of_workspace_, list);
}

}  // namespace ioview
