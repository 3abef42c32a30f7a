// Announces the component's own resources as the module that they are linked into is loaded.

#include "platform/base/resources.h"
#include "resources/cursors.h"
#include "resources/dialogs.h"
#include "resources/ids.h"
#include "resources/menus.h"
#include "resources/pictures.h"
#include "resources/strings.h"

// Nothing refers to the registration below, so a linker would leave this file out of whatever pvw_resources
// is linked into. The folder's link options ask for this name, which brings the file in.
extern "C" {
extern const char pvw_component_resources;
const char pvw_component_resources = 0;
}

namespace pvw {

namespace {

constexpr platform::AcceleratorKey kFrameKeys[] = {
    {platform::kAccelControl, 'I', ID_OPEN_IO_VIEW},
};
constexpr platform::AcceleratorResource kAccelerators[] = {
    {IDA_FRAME, kFrameKeys},
};

const platform::ResourceTables kTables{.strings = ComponentStrings(),
                                       .accelerators = kAccelerators,
                                       .menus = ComponentMenus(),
                                       .toolbars = ComponentToolbars(),
                                       .dialogs = ComponentDialogs(),
                                       .bitmaps = ComponentBitmaps(),
                                       .icons = ComponentIcons(),
                                       .cursors = ComponentCursors()};
const platform::ResourceRegistration kRegistration(kTables, platform::ResourceRole::kComponent);

}  // namespace

}  // namespace pvw
