// Access to one service of the host, for the length of one operation.
#pragma once

#include <string_view>

#include "host/component_host.h"
#include "host/format_services.h"
#include "host/ids.h"

namespace pvw {

// A service by its id, or null when there is no host, the host lacks it, or gives null.
template <typename Service>
Service* GetService(IQComponentHost* host, const platform::GUID& id) {
  void* service = nullptr;
  if (host == nullptr || platform::Failed(host->GetService(&id, &service))) return nullptr;
  return static_cast<Service*>(service);
}

// Asks for the service when it is made; nothing is given back at its end.
template <typename Service>
class CHostPtr {
 public:
  CHostPtr(IQComponentHost* host, const platform::GUID& id) : service_(pvw::GetService<Service>(host, id)) {}

  Service* Get() const { return service_; }
  Service* operator->() const { return service_; }
  explicit operator bool() const { return service_ != nullptr; }

 private:
  Service* service_;
};

// The command recorder with its two questions: false without the service, else whether the status is 0.
class CRecorderPtr : public CHostPtr<IQCommandRecorder> {
 public:
  explicit CRecorderPtr(IQComponentHost* host) : CHostPtr(host, IID_IQCommandRecorder) {}

  bool IsActive() const { return Get() != nullptr && Get()->IsActive() == platform::S_OK; }
  // `text` is in the ANSI code page.
  bool AddCommand(std::string_view text) const {
    if (Get() == nullptr) return false;
    const platform::ScopedBstr command(text);
    return Get()->AddCommand(command.Get()) == platform::S_OK;
  }
};

}  // namespace pvw
