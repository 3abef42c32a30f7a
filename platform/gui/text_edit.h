// What the keys of an edit do to a line of text, for displays whose widgets don't do it. Positions are bytes
// of the code page and fall between whole characters.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/gui/types.h"

namespace platform::text_edit {

// The anchor stays where a selection began, the caret moves.
struct Selection {
  std::size_t anchor = 0;
  std::size_t caret = 0;
  std::size_t Start() const { return std::min(anchor, caret); }
  std::size_t End() const { return std::max(anchor, caret); }
  friend bool operator==(const Selection&, const Selection&) = default;
};

struct Line {
  std::string text;
  Selection selection;
  friend bool operator==(const Line&, const Line&) = default;
};

// The nearest place between characters, at or before the position and never past the end.
std::size_t Snap(std::string_view text, std::size_t position);
// With the selection replaced and the caret behind it; a line end in `inserted` ends it.
Line Insert(const Line& line, std::string_view inserted);
// Nothing for a key that an edit has no use for.
std::optional<Line> ApplyKey(const Line& line, UINT key, UINT modifiers);
// The bytes of a WM_CHAR's code point in the code page.
std::string CharText(WPARAM code_point);

}  // namespace platform::text_edit
