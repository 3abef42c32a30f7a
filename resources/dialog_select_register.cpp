#include "platform/gui/dialog_template.h"
#include "platform/gui/messages.h"
#include "resources/dialogs.h"

namespace pvw {

namespace {

using platform::DialogItemKind;

// RECT is left, top, right, bottom.
constexpr platform::DialogItem kItems[] = {
    {DialogItemKind::Label, 13021, "Available &Registers:", {7, 7, 183, 15}},
    {DialogItemKind::Tree, 13006, "", {7, 18, 183, 175}},
    {DialogItemKind::Button, 13007, "&OK", {190, 18, 240, 32}, platform::BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, 13008, "&Cancel", {190, 36, 240, 50}},
    {DialogItemKind::Button, 13016, "Check &All", {190, 62, 240, 76}},
    {DialogItemKind::Button, 13017, "&Uncheck All", {190, 80, 240, 94}},
};

}  // namespace

extern const platform::DialogTemplate kSelectRegisterDialog{"Select IO Register", {247, 182}, kItems};

}  // namespace pvw
