// The host's root object: the register of its services, and of what the component offers back.
#pragma once

#include <functional>
#include <unordered_map>

#include "host/component_host.h"

namespace ioview {

class ComponentHost final : public pvw::IQComponentHost {
 public:
  ComponentHost() = default;
  ComponentHost(const ComponentHost&) = delete;
  ComponentHost& operator=(const ComponentHost&) = delete;

  // Gives `service` from now on, in place of another with that id; not owned. With null the host has the
  // service and gives null.
  template <typename Interface>
  void Provide(const platform::GUID& id, Interface* service) {
    services_[id] = static_cast<void*>(service);
  }
  // The host has no such service from now on. A pointer that was given before stays good.
  void Withdraw(const platform::GUID& id) { services_.erase(id); }

  // Gets every event that the component fires, before the firing returns.
  void OnFiredEvent(std::function<void(const pvw::QEventRecord&)> receiver) {
    receiver_ = std::move(receiver);
  }

  // What the component has added under `id`; null when there is nothing.
  void* Client(const platform::GUID& id) const;
  void* Server(const platform::GUID& id) const;

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
  using Register = std::unordered_map<platform::GUID, void*>;

  Register services_;
  Register clients_;
  Register servers_;
  std::function<void(const pvw::QEventRecord&)> receiver_;
};

}  // namespace ioview
