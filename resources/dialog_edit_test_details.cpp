#include "platform/gui/dialog_template.h"
#include "platform/gui/messages.h"
#include "resources/dialogs.h"

namespace pvw {

namespace {

using platform::DialogItemKind;

// RECT is left, top, right, bottom.
constexpr platform::DialogItem kItems[] = {
    {DialogItemKind::Label, 0, "&Compared IO registers:", {7, 7, 227, 15}},
    {DialogItemKind::List, 13002, "", {7, 17, 227, 102}},
    {DialogItemKind::Label, 0, "Current &Setting:", {7, 107, 227, 115}},
    {DialogItemKind::Edit, 13004, "", {7, 117, 227, 131}, platform::ES_READONLY},
    {DialogItemKind::CheckBox, 13003, "&Ignore address", {7, 135, 227, 149}},
    {DialogItemKind::Button, platform::IDOK, "OK", {122, 155, 172, 169}, platform::BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, platform::IDCANCEL, "Cancel", {177, 155, 227, 169}},
};

}  // namespace

extern const platform::DialogTemplate kEditTestDetailsDialog{"Edit Test IO registers", {234, 176}, kItems};

}  // namespace pvw
