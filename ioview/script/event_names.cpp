#include "ioview/script/event_names.h"

#include "host/events.h"

namespace ioview {

namespace {

struct Event {
  std::string_view name;
  platform::GUID id;
};

constexpr Event kEvents[] = {
    {"memory-changed", pvw::EVENT_MEMORY_CHANGED},
    {"refresh-1", pvw::EVENT_VIEW_REFRESH_1},
    {"refresh-2", pvw::EVENT_VIEW_REFRESH_2},
    {"refresh-3", pvw::EVENT_VIEW_REFRESH_3},
};

}  // namespace

std::string EventName(const platform::GUID& id) {
  for (const Event& event : kEvents) {
    if (event.id == id) return std::string(event.name);
  }
  return platform::GuidText(id);
}

std::optional<platform::GUID> EventOfName(std::string_view name) {
  for (const Event& event : kEvents) {
    if (event.name == name) return event.id;
  }
  return std::nullopt;
}

}  // namespace ioview
