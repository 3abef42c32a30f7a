#include "ioview/host/host_services.h"

#include <tuple>

#include "ioview/host/service_table.h"

namespace ioview {

HostServices::HostServices(UserSettings& user_settings) : settings(user_settings) {
  const auto provide = [this](auto&... services) { (Provide(services), ...); };
  provide(session, placeholders, device, recorder, errors, numbers, addresses, debugger, memory, blocks, map,
          library, paths, workspace_info, data_manager, settings_service, ui_manager, toolbars, pages);
  std::apply(provide, plain);
  root.SetAvailability(pvw::IID_IQDebugPlatform, Availability::kOff);
}

bool HostServices::SetAvailability(std::string_view service, Availability availability) {
  const ServiceEntry* entry = FindService(service);
  if (entry != nullptr) root.SetAvailability(entry->id, availability);
  return entry != nullptr;
}

template <typename Real>
void HostServices::Provide(WithFailing<Real>& service) {
  service.LogTo(calls);
  service.failing.LogTo(calls);
  root.Provide<typename Real::Face>(Real::kId, &service, &service.failing);
}

}  // namespace ioview
