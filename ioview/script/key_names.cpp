#include "ioview/script/key_names.h"

#include "platform/base/text.h"
#include "platform/gui/messages.h"

namespace ioview {

namespace {

using platform::UINT;

struct Name {
  std::string_view name;
  UINT value;
};

constexpr Name kModifiers[] = {
    {"Ctrl+", platform::MK_CONTROL},
    {"Shift+", platform::MK_SHIFT},
    {"Alt+", platform::MK_ALT},
};

constexpr Name kKeys[] = {
    // Ends and edits.
    {"Enter", platform::VK_RETURN},
    {"Return", platform::VK_RETURN},
    {"Escape", platform::VK_ESCAPE},
    {"Esc", platform::VK_ESCAPE},
    {"Tab", platform::VK_TAB},
    {"Space", platform::VK_SPACE},
    {"Backspace", platform::VK_BACK},
    {"Delete", platform::VK_DELETE},
    {"Insert", platform::VK_INSERT},
    // Moves.
    {"Left", platform::VK_LEFT},
    {"Right", platform::VK_RIGHT},
    {"Up", platform::VK_UP},
    {"Down", platform::VK_DOWN},
    {"Home", platform::VK_HOME},
    {"End", platform::VK_END},
    {"PageUp", platform::VK_PRIOR},
    {"PageDown", platform::VK_NEXT},
    // Opens and closes rows.
    {"Plus", platform::VK_ADD},
    {"+", platform::VK_ADD},
    {"Minus", platform::VK_SUBTRACT},
    {"-", platform::VK_SUBTRACT},
    {"Star", platform::VK_MULTIPLY},
    {"*", platform::VK_MULTIPLY},
};

constexpr UINT kLastFunctionKey = 12;

std::optional<UINT> FunctionKey(std::string_view name) {
  if (name.size() < 2 || name.size() > 3 || (name[0] != 'F' && name[0] != 'f')) return std::nullopt;
  UINT number = 0;
  for (const char c : name.substr(1)) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + static_cast<UINT>(c - '0');
  }
  if (number < 1 || number > kLastFunctionKey) return std::nullopt;
  return platform::VK_F1 + number - 1;
}

std::optional<UINT> PlainKey(std::string_view name) {
  if (name.size() == 1) {
    const char c = name[0];
    if (c >= 'a' && c <= 'z') return static_cast<UINT>(c - 'a' + 'A');
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) return static_cast<UINT>(c);
  }
  for (const Name& key : kKeys) {
    if (platform::EqualNoCase(key.name, name)) return key.value;
  }
  return FunctionKey(name);
}

}  // namespace

std::optional<NamedKey> ParseKey(std::string_view name) {
  NamedKey parsed;
  for (bool more = true; more;) {
    more = false;
    for (const Name& modifier : kModifiers) {
      if (name.size() <= modifier.name.size() || !platform::StartsWithNoCase(name, modifier.name)) continue;
      parsed.modifiers |= modifier.value;
      name.remove_prefix(modifier.name.size());
      more = true;
    }
  }
  const std::optional<UINT> key = PlainKey(name);
  if (!key) return std::nullopt;
  parsed.key = *key;
  return parsed;
}

}  // namespace ioview
