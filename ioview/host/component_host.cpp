#include "ioview/host/component_host.h"

#include "host/ids.h"
#include "ioview/host/call_text.h"
#include "ioview/host/service_table.h"

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

void ComponentHost::SetAvailability(const platform::GUID& id, Availability availability) {
  const auto found = services_.find(id);
  if (found != services_.end()) found->second.availability = availability;
}

template <typename... Arguments>
void ComponentHost::Log(std::string_view operation, const Arguments&... arguments) {
  if (calls_.IsOn()) calls_.Add(kRootName, CallText(operation, arguments...));
}

platform::Status ComponentHost::Give(const platform::GUID& id, void** out) const {
  const auto found = services_.find(id);
  if (found == services_.end()) return platform::E_NOINTERFACE;
  switch (found->second.availability) {
    case Availability::kOn:
      *out = found->second.service;
      return platform::S_OK;
    case Availability::kNull:
      *out = nullptr;
      return platform::S_OK;
    case Availability::kFail:
      *out = found->second.failing;
      return platform::S_OK;
    case Availability::kOff:
      break;
  }
  return platform::E_NOINTERFACE;
}

platform::Status ComponentHost::QueryInterface(const platform::GUID* iid, void** out) {
  Log("QueryInterface", iid);
  *out = nullptr;
  if (*iid == pvw::IID_IQHostFrame) return Give(*iid, out);
  if (*iid != pvw::IID_IUnknown) return platform::E_NOINTERFACE;
  *out = static_cast<pvw::IQComponentHost*>(this);
  return platform::S_OK;
}

platform::Status ComponentHost::FireEvent(const pvw::QEventRecord* event) {
  Log("FireEvent", event);
  if (receiver_) receiver_(*event);
  return platform::S_OK;
}

platform::Status ComponentHost::GetService(const platform::GUID* id, void** out) {
  Log("GetService", id);
  return *id != pvw::IID_IQHostFrame ? Give(*id, out) : platform::E_NOINTERFACE;
}

platform::Status ComponentHost::AddClient(const platform::GUID* id, void* client) {
  Log("AddClient", id, client);
  clients_[*id] = client;
  return platform::S_OK;
}

platform::Status ComponentHost::AddServer(const platform::GUID* id, void* server) {
  Log("AddServer", id, server);
  servers_[*id] = server;
  return platform::S_OK;
}

platform::Status ComponentHost::RemoveClient(const platform::GUID* id, void* client) {
  Log("RemoveClient", id, client);
  return Remove(clients_, *id, client);
}

platform::Status ComponentHost::RemoveServer(const platform::GUID* id, void* server) {
  Log("RemoveServer", id, server);
  return Remove(servers_, *id, server);
}

}  // namespace ioview
