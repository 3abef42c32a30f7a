#include "ioview/host/component_host.h"

#include "host/ids.h"

namespace ioview {

namespace {

using Register = std::unordered_map<platform::GUID, void*>;

void* Find(const Register& faces, const platform::GUID& id) {
  const auto found = faces.find(id);
  return found != faces.end() ? found->second : nullptr;
}

platform::Status Remove(Register& faces, const platform::GUID& id, const void* face) {
  const auto found = faces.find(id);
  if (found == faces.end() || found->second != face) return platform::E_FAIL;
  faces.erase(found);
  return platform::S_OK;
}

}  // namespace

void* ComponentHost::Client(const platform::GUID& id) const {
  return Find(clients_, id);
}

void* ComponentHost::Server(const platform::GUID& id) const {
  return Find(servers_, id);
}

platform::Status ComponentHost::QueryInterface(const platform::GUID* iid, void** out) {
  *out = *iid == pvw::IID_IUnknown ? static_cast<pvw::IQComponentHost*>(this) : nullptr;
  return *out != nullptr ? platform::S_OK : platform::E_NOINTERFACE;
}

platform::Status ComponentHost::FireEvent(const pvw::QEventRecord* event) {
  if (receiver_) receiver_(*event);
  return platform::S_OK;
}

platform::Status ComponentHost::GetService(const platform::GUID* id, void** out) {
  const auto found = services_.find(*id);
  if (found == services_.end()) return platform::E_NOINTERFACE;
  *out = found->second;
  return platform::S_OK;
}

platform::Status ComponentHost::AddClient(const platform::GUID* id, void* client) {
  clients_[*id] = client;
  return platform::S_OK;
}

platform::Status ComponentHost::AddServer(const platform::GUID* id, void* server) {
  servers_[*id] = server;
  return platform::S_OK;
}

platform::Status ComponentHost::RemoveClient(const platform::GUID* id, void* client) {
  return Remove(clients_, *id, client);
}

platform::Status ComponentHost::RemoveServer(const platform::GUID* id, void* server) {
  return Remove(servers_, *id, server);
}

}  // namespace ioview
