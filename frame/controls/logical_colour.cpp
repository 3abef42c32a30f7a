#include "frame/controls/logical_colour.h"

#include <algorithm>
#include <iterator>

#include "platform/gui/graphics.h"

namespace pvw {

namespace {

struct LogicalColour {
  std::string_view name;
  platform::COLORREF value;
};

constexpr LogicalColour kColours[] = {
    {"WHITE", 0xFFFFFF},     {"BLACK", 0x000000},      {"GREY", 0xA0A0A0},
    {"BLUE", 0xFF0000},      {"RED", 0x0000FF},        {"GREEN", 0x00FF00},
    {"YELLOW", 0x00FFFF},    {"PURPLE", 0xFF00FF},     {"CYAN", 0xFFFF00},
    {"DARKGREY", 0x808080},  {"DARKBLUE", 0x800000},   {"DARKRED", 0x000080},
    {"DARKGREEN", 0x008000}, {"DARKYELLOW", 0x008080}, {"DARKPURPLE", 0x800080},
    {"DARKCYAN", 0x808000},  {"LIGHTGREY", 0xDFE1E5},  {"SYSTEM", 0},
    {"HIGHLIGHT", 0},        {"MEDGREY", 0xB3B3B3},
};
constexpr platform::COLORREF kWhite = 0xFFFFFF;

}  // namespace

int ColourIndexFromName(std::string_view name) {
  const auto* found = std::ranges::find(kColours, name, &LogicalColour::name);
  return found != std::end(kColours) ? static_cast<int>(found - std::begin(kColours)) : -1;
}

int ColourFromIndex(int index, platform::COLORREF& value) {
  const bool in_table = index >= 0 && index < static_cast<int>(std::size(kColours));
  if (!in_table || index == kColourSystem || index == kColourHighlight) {
    value = kWhite;
    return 1;
  }
  value = kColours[index].value;
  return 0;
}

platform::COLORREF ResolveColour(int index, ColourRole role) {
  using platform::SystemColour;
  const bool foreground = role == ColourRole::Foreground;
  if (index == kColourSystem) {
    return platform::GetSysColour(foreground ? SystemColour::WindowText : SystemColour::Window);
  }
  if (index == kColourHighlight) {
    return platform::GetSysColour(foreground ? SystemColour::HighlightText : SystemColour::Highlight);
  }
  platform::COLORREF value = kWhite;
  ColourFromIndex(index, value);
  return value;
}

}  // namespace pvw
