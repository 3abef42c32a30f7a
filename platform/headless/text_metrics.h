// How large text is where there is no screen.
//
// The dialog font is 6 by 13 pixels a column. A font by points is laid out at 96 dots an inch: its em is 4/3
// pixels a point, a line nine eighths of that high, a column three fifths wide. A font by height is so many
// pixels high (a negative height is the em) and as wide as it says, else half its height.
#pragma once

#include <string_view>

#include "platform/gui/graphics.h"

namespace platform {

SIZE MeasureText(const LOGFONT& font, std::string_view text);

}  // namespace platform
