#include "platform/gui/dialog_template.h"
#include "platform/gui/messages.h"
#include "resources/dialogs.h"

namespace pvw {

namespace {

using platform::DialogItemKind;

// RECT is left, top, right, bottom.
constexpr platform::DialogItem kItems[] = {
    {DialogItemKind::Label, 13022, "C&olumn:", {7, 10, 47, 18}},
    {DialogItemKind::ComboBox, 13013, "", {50, 7, 180, 21}, platform::CBS_DROPDOWNLIST},
    {DialogItemKind::Label, 13023, "F&ind:", {7, 30, 47, 38}},
    {DialogItemKind::Edit, 13014, "", {50, 27, 180, 41}},
    {DialogItemKind::CheckBox, 13015, "&Match whole word", {50, 46, 180, 60}},
    {DialogItemKind::Button, 13018, "&OK", {76, 69, 126, 83}, platform::BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, 13019, "&Cancel", {130, 69, 180, 83}},
};

}  // namespace

extern const platform::DialogTemplate kFindDialog{"", {187, 90}, kItems};

}  // namespace pvw
