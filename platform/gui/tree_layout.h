// Where the parts of a tree row's first cell stand, and the dotted lines in it. Pixels, in client
// coordinates.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/types.h"

namespace platform::tree_layout {

// What a cell shows of its text: up to the first line end, 259 characters at most, with tabs as blanks.
std::string ShownText(std::string_view text);

// What the places depend on.
struct RowShape {
  RECT cell;  // of the first column
  int depth = 0;
  int indent = 0;      // of one level; even, so that the lines' dots meet
  bool leads = false;  // room for lines and expand boxes, one level's indent, stands before a row's parts
  bool has_check = false;
  SIZE image;          // empty: no picture
  int text_width = 0;  // -1: the label goes to the cell's end
  bool one_column = true;
};

struct RowParts {
  POINT node;  // centre of the expand box, where the row's lines meet
  RECT button;
  RECT check;     // empty when there is none
  RECT image;     // empty when there is none
  RECT label;     // the text begins kTextGap behind its left edge
  int first = 0;  // left edge of the first of check box, picture, label
};

inline constexpr int kTextGap = 3;

// `origin` is where the content's upper left corner stands now: dots keep their places in the content while
// it scrolls.
RowParts PartsOf(const RowShape& shape, POINT origin);

struct Dotted {
  POINT from;
  POINT to;  // not drawn itself
  friend bool operator==(const Dotted&, const Dotted&) = default;
};

struct RowLines {
  bool at_root = false;  // between the top-level rows too
  bool first = false;    // nothing stands above the row
  bool open = false;     // its children show below it
};

// The lines of one row that `leads`, as far as they show between `view`'s left and right edge. `has_next` is
// asked for levels that show alone: whether the row, or its ancestor at that depth, has a next sibling.
std::vector<Dotted> LinesOf(const RowShape& shape, const RowParts& parts, const RowLines& lines, POINT origin,
                            const RECT& view, const std::function<bool(int)>& has_next);

}  // namespace platform::tree_layout
