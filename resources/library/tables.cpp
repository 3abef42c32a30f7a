// What the resource library holds: the keys of a pane. Any text that it held besides would be shown in place
// of the component's text of the same id.

#include "platform/base/resources.h"
#include "resources/ids.h"

namespace pvw {

namespace {

constexpr std::uint16_t kKeyF3 = 0x72;

// The keys send ids of their own: the pane registers them under another owner and class than its menu and
// toolbar, where the menu's ids already stand.
constexpr platform::AcceleratorKey kPaneKeys[] = {
    {platform::kAccelControl, 'F', ID_FIND_KEY},
    {0, kKeyF3, ID_FIND_NEXT_KEY},
};
constexpr platform::AcceleratorResource kAccelerators[] = {
    {IDA_PANE, kPaneKeys},
};

const platform::ResourceTables kTables{{}, kAccelerators};
const platform::ResourceRegistration kRegistration(kTables, platform::ResourceRole::kLibrary);

}  // namespace

}  // namespace pvw
