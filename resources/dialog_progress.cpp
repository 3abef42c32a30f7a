#include "platform/gui/dialog_template.h"
#include "resources/dialogs.h"

namespace pvw {

namespace {

using platform::DialogItemKind;

// RECT is left, top, right, bottom.
constexpr platform::DialogItem kItems[] = {
    {DialogItemKind::Label, 13026, "This process may take some time.", {7, 7, 180, 15}},
    {DialogItemKind::Progress, 13024, "", {7, 20, 180, 34}},
    {DialogItemKind::Button, 13025, "Cancel", {68, 44, 118, 58}},
};

}  // namespace

extern const platform::DialogTemplate kProgressDialog{"Loading...", {187, 65}, kItems};

}  // namespace pvw
