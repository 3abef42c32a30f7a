// The colours that a format client speaks of by index: fixed ones, and two that the system has by role.
#pragma once

#include <QtGui/qcolor.h>

#include <array>
#include <cstdint>

namespace ioview {

struct LogicalColour {
  const char* name;
  std::uint32_t rgb;  // 0x00RRGGBB; of no meaning for the system's two
};

inline constexpr int kSystemColour = 17;
inline constexpr int kHighlightColour = 18;

inline constexpr std::array<LogicalColour, 20> kLogicalColours = {{
    {"WHITE", 0xFFFFFF},     {"BLACK", 0x000000},      {"GREY", 0xA0A0A0},
    {"BLUE", 0x0000FF},      {"RED", 0xFF0000},        {"GREEN", 0x00FF00},
    {"YELLOW", 0xFFFF00},    {"PURPLE", 0xFF00FF},     {"CYAN", 0x00FFFF},
    {"DARKGREY", 0x808080},  {"DARKBLUE", 0x000080},   {"DARKRED", 0x800000},
    {"DARKGREEN", 0x008000}, {"DARKYELLOW", 0x808000}, {"DARKPURPLE", 0x800080},
    {"DARKCYAN", 0x008080},  {"LIGHTGREY", 0xE5E1DF},  {"SYSTEM", 0},
    {"HIGHLIGHT", 0},        {"MEDGREY", 0xB3B3B3},
}};

enum class ColourUse { kText, kBackground };

// What the colour looks like in that use; white for an index that there is not.
QColor ColourOfIndex(int index, ColourUse use);

}  // namespace ioview
