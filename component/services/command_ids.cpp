#include "component/services/command_ids.h"

#include <algorithm>
#include <cstddef>

#include "platform/base/app.h"
#include "platform/base/resources.h"

namespace pvw {

namespace {

constexpr std::uint32_t kFirstCommand = 28672;
constexpr std::uint32_t kLastCommand = 61439;

constexpr std::uint16_t kToolbarVersion = 1;
constexpr std::size_t kToolbarHead = 4;

void AppendCommands(std::span<const platform::MenuItemResource> items, CommandIds& ids) {
  for (const platform::MenuItemResource& item : items) {
    if (!item.Items().empty()) {
      AppendCommands(item.Items(), ids);
      continue;
    }
    const bool has_text = item.text != nullptr && *item.text != '\0';
    if (has_text && item.id >= kFirstCommand && item.id <= kLastCommand) ids.push_back(item.id);
  }
}

}  // namespace

std::optional<CommandIds> MenuCommandIds(platform::HMODULE module, std::uint32_t menu_id) {
  const platform::ScopedResourceModule scope(module);
  const platform::MenuResource* menu = platform::LoadMenu(menu_id);
  if (menu == nullptr) return std::nullopt;
  CommandIds ids;
  AppendCommands(menu->items, ids);
  return ids;
}

std::optional<CommandIds> ToolbarCommandIds(platform::HMODULE module, std::uint32_t toolbar_id,
                                            std::uint32_t second_id) {
  const platform::ScopedResourceModule scope(module);
  const platform::ToolbarResource* toolbar = platform::LoadToolbar(toolbar_id != 0 ? toolbar_id : second_id);
  if (toolbar == nullptr) return std::nullopt;
  CommandIds ids;
  const std::span<const std::uint16_t> words = toolbar->words;
  if (words.size() <= kToolbarHead || words[0] != kToolbarVersion) return ids;
  // A count beyond what is there counts no further.
  const std::size_t count = std::min<std::size_t>(words[3], words.size() - kToolbarHead);
  std::ranges::copy_if(words.subspan(kToolbarHead, count), std::back_inserter(ids),
                       [](std::uint16_t id) { return id != 0; });
  return ids;
}

std::optional<CommandIds> AcceleratorCommandIds(platform::HMODULE module, std::uint32_t accelerator_id) {
  const auto keys = platform::LoadAccelerators(module, accelerator_id);
  if (!keys) return std::nullopt;
  CommandIds ids;
  for (const platform::AcceleratorKey& key : *keys) ids.push_back(key.command);
  return ids;
}

IdList::IdList(std::span<const std::uint32_t> ids) {
  platform::SAFEARRAY* const array = platform::SafeArrayCreateVector(platform::VT_VARIANT, ids.size());
  if (array == nullptr) return;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    platform::VARIANT* const element = platform::SafeArrayVariantAt(array, i);
    element->vt = platform::VT_UINT;
    element->uintVal = ids[i];
  }
  platform::VARIANT* const list = m_list.Receive();
  list->vt = platform::VT_ARRAY | platform::VT_UINT;
  list->parray = array;
}

}  // namespace pvw
