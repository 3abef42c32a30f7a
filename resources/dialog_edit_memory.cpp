#include "platform/gui/dialog_template.h"
#include "platform/gui/messages.h"
#include "resources/dialogs.h"

namespace pvw {

namespace {

using platform::DialogItemKind;

// RECT is left, top, right, bottom.
constexpr platform::DialogItem kItems[] = {
    {DialogItemKind::Label, 0, "&Current value:", {7, 10, 65, 18}},
    {DialogItemKind::ComboBox, 311, "", {68, 7, 170, 21}, platform::WS_DISABLED},
    {DialogItemKind::Label, 0, "&New value:", {7, 30, 65, 38}},
    {DialogItemKind::ComboBox, 312, "", {68, 27, 170, 41}},
    {DialogItemKind::Button, platform::IDOK, "OK", {177, 7, 227, 21}, platform::BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, platform::IDCANCEL, "Cancel", {177, 27, 227, 41}},
};

}  // namespace

extern const platform::DialogTemplate kEditMemoryDialog{"", {234, 48}, kItems};

}  // namespace pvw
