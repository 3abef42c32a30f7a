// Placeholders that the user has defined. They live in the host and can change between any two questions, so
// nothing of them is kept.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/workspace_services.h"

namespace pvw {

struct CCustomPlaceholderInfo {
  std::string name;
  std::string description;
  std::string value;
};

using CustomPlaceholderList = std::vector<CCustomPlaceholderInfo>;

// The entries of a list from the host, in its order. Empty for a VARIANT that isn't of type VT_ARRAY |
// VT_BSTR and for an element count that isn't a multiple of 4; an element that isn't a string counts as
// empty.
CustomPlaceholderList ReadCustomPlaceholders(const platform::VARIANT& list);

// Either list is empty when a service is missing or fails; the second one also while no workspace is open.
CustomPlaceholderList GlobalPlaceholders(IQCustomPlaceholders* service);
CustomPlaceholderList WorkspacePlaceholders(IQCustomPlaceholders* service, IQPathService* path_service);

// The entry of that name, or null. Of two with the same name the later counts.
const CCustomPlaceholderInfo* FindCustomPlaceholder(const CustomPlaceholderList& list, std::string_view name);

}  // namespace pvw
