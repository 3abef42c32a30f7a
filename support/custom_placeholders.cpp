#include "support/custom_placeholders.h"

#include <algorithm>

#include "platform/base/bstr.h"
#include "platform/base/variant.h"
#include "support/path_service.h"

namespace pvw {

namespace {

constexpr std::size_t kElementsPerEntry = 3;
constexpr std::size_t kArrayUnit = 4;  // three elements of an entry and one that the host keeps to itself

std::string ElementText(platform::SAFEARRAY* array, std::size_t index) {
  if (const platform::BSTR* text = platform::SafeArrayBstrAt(array, index)) return platform::BstrText(*text);
  const platform::VARIANT* element = platform::SafeArrayVariantAt(array, index);
  if (element == nullptr || element->vt != platform::VT_BSTR) return {};
  return platform::BstrText(element->bstrVal);
}

}  // namespace

CustomPlaceholderList ReadCustomPlaceholders(const platform::VARIANT& list) {
  if (list.vt != (platform::VT_ARRAY | platform::VT_BSTR)) return {};
  platform::SAFEARRAY* array = list.parray;
  const std::size_t count = platform::SafeArrayGetCount(array);
  if (count % kArrayUnit != 0) return {};
  CustomPlaceholderList entries(count / kArrayUnit);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::size_t first = i * kElementsPerEntry;
    entries[i].description = ElementText(array, first);
    entries[i].name = ElementText(array, first + 1);
    entries[i].value = ElementText(array, first + 2);
  }
  return entries;
}

CustomPlaceholderList GlobalPlaceholders(IQCustomPlaceholders* service) {
  platform::ScopedVariant list;
  if (service == nullptr || platform::Failed(service->GetGlobalPlaceholders(list.Receive()))) return {};
  return ReadCustomPlaceholders(list.Get());
}

CustomPlaceholderList WorkspacePlaceholders(IQCustomPlaceholders* service, IQPathService* path_service) {
  if (service == nullptr || !IsWorkspaceOpen(path_service)) return {};
  platform::ScopedBstr workspace;
  AskPathService(path_service, workspace, &IQPathService::GetCurrentWorkspace);
  platform::ScopedVariant list;
  if (platform::Failed(service->GetWorkspacePlaceholders(workspace.Get(), list.Receive()))) return {};
  return ReadCustomPlaceholders(list.Get());
}

const CCustomPlaceholderInfo* FindCustomPlaceholder(const CustomPlaceholderList& list,
                                                    std::string_view name) {
  const auto entry = std::find_if(list.rbegin(), list.rend(),
                                  [&](const CCustomPlaceholderInfo& info) { return info.name == name; });
  return entry == list.rend() ? nullptr : &*entry;
}

}  // namespace pvw
