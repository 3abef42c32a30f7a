// Events that the host and the component pass each other.
#pragma once

#include <cstdint>

#include "platform/base/guid.h"

namespace pvw {

// A host format: the id at offset 0, the number at offset 16. No receiver of the component looks at the
// number.
struct QEventRecord {
  platform::GUID id;
  std::uint32_t value = 0;
};
static_assert(sizeof(QEventRecord) == 20);

// Target memory has changed: sent by the host, and by a pane after it has written to the target.
inline constexpr platform::GUID EVENT_MEMORY_CHANGED =
    platform::MakeGuid("{2289D0FB-1242-11D5-9690-00B0D0167C2F}");
// The host wants the views to be read again; the three are treated alike.
inline constexpr platform::GUID EVENT_VIEW_REFRESH_1 =
    platform::MakeGuid("{2289D11D-1242-11D5-9690-00B0D0167C2F}");
inline constexpr platform::GUID EVENT_VIEW_REFRESH_2 =
    platform::MakeGuid("{2289D125-1242-11D5-9690-00B0D0167C2F}");
inline constexpr platform::GUID EVENT_VIEW_REFRESH_3 =
    platform::MakeGuid("{83B5AC60-1C93-11D6-8BC2-0004E2013C71}");
inline constexpr platform::GUID EVENT_TARGET_CONNECTED =
    platform::MakeGuid("{2289D12E-1242-11D5-9690-00B0D0167C2F}");
inline constexpr platform::GUID EVENT_TARGET_DISCONNECTED =
    platform::MakeGuid("{2289D130-1242-11D5-9690-00B0D0167C2F}");

}  // namespace pvw
