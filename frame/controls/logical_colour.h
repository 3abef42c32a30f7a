// Colours by index: how colours are stored, and exchanged with the host's format dialog.
#pragma once

#include <string_view>

#include "platform/gui/types.h"

namespace pvw {

// Indices with a meaning of their own.
inline constexpr int kColourGrey = 2;        // the texts of a locked view
inline constexpr int kColourRed = 4;         // a changed value
inline constexpr int kColourSystem = 17;     // the system's colours of a window
inline constexpr int kColourHighlight = 18;  // the system's colours of what is selected

// By the exact name; -1 when there is no such colour.
int ColourIndexFromName(std::string_view name);
// `value` is the colour and the result 0; or white and 1 for an index without a colour of its own: the
// system's two, and any that isn't in the table.
int ColourFromIndex(int index, platform::COLORREF& value);

enum class ColourRole { Foreground, Background };
// The colour to draw with: the system's, by role, for its two indices.
platform::COLORREF ResolveColour(int index, ColourRole role);

}  // namespace pvw
