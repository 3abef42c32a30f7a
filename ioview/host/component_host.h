// The host's root object: the register of its services, and of what the component offers back.
#pragma once

#include <functional>
#include <unordered_map>

#include "host/component_host.h"
#include "ioview/host/call_log.h"

namespace ioview {

// What the host does when the component asks for a service.
enum class Availability {
  kOn,
  kOff,   // it has none
  kNull,  // it gives null, with success
  kFail,  // it gives one whose operations all fail
};

class ComponentHost final : public pvw::IQComponentHost {
 public:
  // Its own operations are written to `calls`.
  explicit ComponentHost(CallLog& calls) : calls_(calls) {}
  ComponentHost(const ComponentHost&) = delete;
  ComponentHost& operator=(const ComponentHost&) = delete;

  // Gives `service` from now on, in place of another with that id, or `failing` where it has to fail. Neither
  // is owned.
  template <typename Interface>
  void Provide(const platform::GUID& id, Interface* service, Interface* failing) {
    services_[id] = {static_cast<void*>(service), static_cast<void*>(failing), Availability::kOn};
  }
  // How the host answers from the next request on; a pointer that was given before stays good. Nothing for an
  // id that isn't provided.
  void SetAvailability(const platform::GUID& id, Availability availability);

  // Gets every event that the component fires, before the firing returns.
  void OnFiredEvent(std::function<void(const pvw::QEventRecord&)> receiver) {
    receiver_ = std::move(receiver);
  }

  // What the component has added under `id`; null when there is nothing.
  void* Client(const platform::GUID& id) const;
  void* Server(const platform::GUID& id) const;

  // IQHostFrame is given here, every other service by GetService.
  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  platform::Status FireEvent(const pvw::QEventRecord* event) override;
  platform::Status GetService(const platform::GUID* id, void** out) override;
  // One client and one server an id: a later one takes the place of the first.
  platform::Status AddClient(const platform::GUID* id, void* client) override;
  platform::Status AddServer(const platform::GUID* id, void* server) override;
  // Fails when another one, or none, is registered.
  platform::Status RemoveClient(const platform::GUID* id, void* client) override;
  platform::Status RemoveServer(const platform::GUID* id, void* server) override;

 private:
  struct Provided {
    void* service;
    void* failing;
    Availability availability;
  };
  using Register = std::unordered_map<platform::GUID, void*>;

  template <typename... Arguments>
  void Log(std::string_view operation, const Arguments&... arguments);
  platform::Status Give(const platform::GUID& id, void** out) const;

  CallLog& calls_;
  std::unordered_map<platform::GUID, Provided> services_;
  Register clients_;
  Register servers_;
  std::function<void(const pvw::QEventRecord&)> receiver_;
};

}  // namespace ioview
