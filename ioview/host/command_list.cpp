#include "ioview/host/command_list.h"

#include <cstddef>

namespace ioview {

std::vector<std::uint32_t> CommandsOf(const platform::VARIANT* list) {
  std::vector<std::uint32_t> commands;
  if (list == nullptr || list->vt != (platform::VT_ARRAY | platform::VT_UINT)) return commands;
  const std::size_t count = platform::SafeArrayGetCount(list->parray);
  for (std::size_t i = 0; i < count; ++i) {
    const platform::VARIANT* element = platform::SafeArrayVariantAt(list->parray, i);
    if (element != nullptr && element->vt == platform::VT_UINT) commands.push_back(element->uintVal);
  }
  return commands;
}

}  // namespace ioview
