// A dialog as a resource: its controls in dialog units, in the order of the Tab key. Stands in for the
// system's dialog template.
//
// A dialog unit is a quarter of the average width and an eighth of the height of the display's dialog font.
// Edits, combo boxes and buttons are 14 units high, so that no display's widgets cut their text.
#pragma once

#include <cstdint>
#include <span>

#include "platform/gui/types.h"

namespace platform {

// A list is a tree without levels; both are grids, and bound to a member of the dialog's class.
enum class DialogItemKind : std::uint8_t { Label, Edit, Button, CheckBox, ComboBox, List, Tree, Progress };

struct DialogItem {
  DialogItemKind kind;
  std::uint32_t id;  // 0 for a label that nobody asks for
  const char* text;  // UTF-8
  RECT units;
  UINT style = 0;  // of WS_DISABLED, ES_READONLY, BS_DEFPUSHBUTTON, CBS_DROPDOWNLIST
};

struct DialogTemplate {
  const char* title;  // UTF-8
  SIZE units;
  std::span<const DialogItem> items;
};

}  // namespace platform
