#include "ioview/host/service_table.h"

#include <algorithm>
#include <optional>

namespace ioview {

const ServiceEntry* FindService(std::string_view name_or_id) {
  const std::optional<platform::GUID> id = platform::ParseGuid(name_or_id);
  const auto found = std::ranges::find_if(
      kServices, [&](const ServiceEntry& entry) { return id ? entry.id == *id : entry.name == name_or_id; });
  return found != kServices.end() ? &*found : nullptr;
}

}  // namespace ioview
