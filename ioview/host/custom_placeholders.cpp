#include "ioview/host/custom_placeholders.h"

#include <utility>

namespace ioview {

namespace {

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

void PlaceholderList::Set(CustomPlaceholder placeholder) {
  const auto [place, is_new] = places_.try_emplace(placeholder.name, entries_.size());
  if (is_new) {
    entries_.push_back(std::move(placeholder));
  } else {
    entries_[place->second] = std::move(placeholder);
  }
}

platform::Status CustomPlaceholders::GetGlobalPlaceholders(platform::VARIANT* list) {
  if (!Enter("GetGlobalPlaceholders")) return platform::E_FAIL;
  *list = {};
  return Give(global_.Entries(), list);
}

platform::Status CustomPlaceholders::GetWorkspacePlaceholders(platform::BSTR workspace,
                                                              platform::VARIANT* list) {
  if (!Enter("GetWorkspacePlaceholders", workspace)) return platform::E_FAIL;
  *list = {};
  if (!workspace_.IsOpen() || platform::BstrText(workspace) != workspace_.name) return platform::E_FAIL;
  return Give(of_workspace_.Entries(), list);
}

}  // namespace ioview
