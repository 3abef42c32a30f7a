// Which commands a menu, a toolbar or a table of keys holds, and lists of them as the host takes them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/base/module.h"
#include "platform/base/variant.h"

namespace pvw {

using CommandIds = std::vector<std::uint32_t>;

// Each looks in `module` and gives nothing when it has no resource of that id.

// The commands from 28672 to 61439 that have a text, a submenu's in its place.
std::optional<CommandIds> MenuCommandIds(platform::HMODULE module, std::uint32_t menu_id);
// The buttons of the toolbar of that id, or of `second_id` where that is 0. None for a toolbar of another
// version than 1.
std::optional<CommandIds> ToolbarCommandIds(platform::HMODULE module, std::uint32_t toolbar_id,
                                            std::uint32_t second_id);
std::optional<CommandIds> AcceleratorCommandIds(platform::HMODULE module, std::uint32_t accelerator_id);

// A list of command ids for a host call: type VT_ARRAY | VT_UINT, each element a VARIANT of VT_UINT.
class IdList {
 public:
  // A list that isn't given: type VT_EMPTY.
  IdList() = default;
  // A list of these, also when there are none.
  explicit IdList(std::span<const std::uint32_t> ids);

  const platform::VARIANT* Get() const { return &m_list.Get(); }

 private:
  platform::ScopedVariant m_list;
};

}  // namespace pvw
