#include "platform/gui/dialog_template.h"
#include "platform/gui/messages.h"
#include "resources/dialogs.h"

namespace pvw {

namespace {

using platform::DialogItemKind;

// RECT is left, top, right, bottom.
constexpr platform::DialogItem kItems[] = {
    {DialogItemKind::Label, 9010, "&I/O File:", {7, 10, 41, 18}},
    {DialogItemKind::Edit, 9001, "", {44, 7, 210, 21}},
    {DialogItemKind::Button, 20001, "RIGHTARROW", {213, 7, 229, 21}},
    {DialogItemKind::Button, 9002, "Browse&...", {235, 7, 285, 21}},
    {DialogItemKind::Button, 9003, "&OK", {181, 33, 231, 47}, platform::BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, 9004, "&Cancel", {235, 33, 285, 47}},
    {DialogItemKind::CheckBox, 13001, "&Save path name of I/O file", {7, 33, 150, 47}},
};

}  // namespace

extern const platform::DialogTemplate kSetIOFileDialog{"Set I/O File", {292, 54}, kItems};

}  // namespace pvw
