#include "tests/support/fake_host.h"

#include <algorithm>

#include "host/ids.h"
#include "tests/support/fake_services.h"
#include "tests/support/fake_ui_services.h"

namespace pvw::test {

using platform::GUID;
using platform::Status;

FakeHost::FakeHost() : offered_(fakes::OfferServices(*this)), ui_(std::make_unique<FakeUi>(*this)) {
  std::ranges::move(fakes::OfferUiServices(*this), std::back_inserter(offered_));
  Lack(IID_IQDebugPlatform);
}
FakeHost::~FakeHost() = default;

std::vector<std::string> FakeHost::Asked(std::string_view prefix) const {
  std::vector<std::string> lines;
  std::ranges::copy_if(transcript_, std::back_inserter(lines),
                       [&](const std::string& line) { return line.starts_with(prefix); });
  return lines;
}

void FakeHost::Poke(std::uint32_t address, const std::vector<std::uint8_t>& bytes) {
  for (const std::uint8_t byte : bytes) memory_[address++] = byte;
}

std::vector<std::uint8_t> FakeHost::Peek(std::uint32_t address, std::uint32_t count) const {
  std::vector<std::uint8_t> bytes;
  for (; count > 0; --count, ++address) {
    const auto found = memory_.find(address);
    bytes.push_back(found == memory_.end() ? static_cast<std::uint8_t>(address) : found->second);
  }
  return bytes;
}

FakeArea FakeHost::AreaAt(std::uint32_t address) const {
  const bool inside = little_.little && address >= little_.first && address <= little_.last;
  return inside ? little_ : FakeArea{};
}

Status FakeHost::Begin(std::string_view operation, const std::string& arguments) {
  transcript_.push_back(std::string(operation) + (arguments.empty() ? "" : " " + arguments));
  if (const auto event = during.find(operation); event != during.end()) event->second();
  if (const auto next = fail_next_.find(operation); next != fail_next_.end() && !next->second.empty()) {
    const Status status = next->second.front();
    next->second.erase(next->second.begin());
    return status;
  }
  const auto all = fail_all_.find(operation);
  return all == fail_all_.end() ? platform::S_OK : all->second;
}

std::vector<GUID> FakeHost::Services() const {
  std::vector<GUID> ids;
  std::ranges::transform(offered_, std::back_inserter(ids), &fakes::Offered::id);
  return ids;
}

const fakes::Offered* FakeHost::Find(const GUID& id) const {
  const auto found = std::ranges::find(offered_, id, &fakes::Offered::id);
  return found == offered_.end() ? nullptr : &*found;
}

IQDebugger* FakeHost::Debugger() {
  return static_cast<IQDebugger*>(Find(IID_IQDebugger)->service.get());
}

// The frame comes by QueryInterface alone, everything else by GetService alone.
Status FakeHost::Give(const GUID& id, std::string_view operation, void** out) {
  const bool by_query = operation == "QueryInterface";
  const fakes::Offered* const offered = Find(id);
  const Status status = Begin(operation, offered == nullptr ? platform::GuidText(id) : offered->name);
  if (status != platform::S_OK) return status;
  if (offered == nullptr || lacking_.contains(id) || by_query != (id == IID_IQHostFrame)) {
    return platform::E_NOINTERFACE;
  }
  *out = null_.contains(id) ? nullptr : offered->service.get();
  return platform::S_OK;
}

Status FakeHost::GetService(const GUID* id, void** out) {
  return Give(*id, "GetService", out);
}

Status FakeHost::QueryInterface(const GUID* iid, void** out) {
  *out = nullptr;
  return Give(*iid, "QueryInterface", out);
}

Status FakeHost::Register(std::string_view operation, const GUID& id, void* face) {
  const Status status = Begin(operation, platform::GuidText(id));
  if (status == platform::S_OK) faces_[id] = face;
  return status;
}

void* FakeHost::Registered(const GUID& id) const {
  const auto found = faces_.find(id);
  return found != faces_.end() ? found->second : nullptr;
}

Status FakeHost::FireEvent(const QEventRecord* event) {
  return Begin("FireEvent", platform::GuidText(event->id));
}
Status FakeHost::AddClient(const GUID* id, void* client) {
  return Register("AddClient", *id, client);
}
Status FakeHost::AddServer(const GUID* id, void* server) {
  return Register("AddServer", *id, server);
}
Status FakeHost::RemoveClient(const GUID* id, void*) {
  return Register("RemoveClient", *id, nullptr);
}
Status FakeHost::RemoveServer(const GUID* id, void*) {
  return Register("RemoveServer", *id, nullptr);
}

}  // namespace pvw::test
