#include "tests/support/fake_host.h"

#include <algorithm>

#include "host/ids.h"
#include "tests/support/fake_services.h"
#include "tests/support/fake_ui_services.h"

namespace pvw::test {

using platform::GUID;
using platform::Status;

namespace {

// `service` points at the interface that the id names; `owner` is the object behind it.
struct Offered {
  GUID id;
  const char* name;
  void* service;
  std::shared_ptr<void> owner;
};

template <typename Interface, typename Fake = fakes::SilentService<Interface>>
Offered Make(FakeHost& host, const GUID& id, const char* name) {
  const auto service = std::make_shared<Fake>(host);
  return {id, name, static_cast<Interface*>(service.get()), service};
}

}  // namespace

struct FakeHost::Services {
  explicit Services(FakeHost& host)
      : offered{
            Make<IQErrorService, fakes::FakeErrorService>(host, IID_IQErrorService, "IQErrorService"),
            Make<IQNumberFormat, fakes::FakeNumberFormat>(host, IID_IQNumberFormat, "IQNumberFormat"),
            Make<IQAddressFormat, fakes::FakeAddressFormat>(host, IID_IQAddressFormat, "IQAddressFormat"),
            Make<IQCommandRecorder, fakes::FakeCommandRecorder>(host, IID_IQCommandRecorder,
                                                                "IQCommandRecorder"),
            Make<IQPathService, fakes::FakePathService>(host, IID_IQPathService, "IQPathService"),
            Make<IQWorkspaceInfo, fakes::FakeWorkspaceInfo>(host, IID_IQWorkspaceInfo, "IQWorkspaceInfo"),
            Make<IQDataManager, fakes::FakeDataManager>(host, IID_IQDataManager, "IQDataManager"),
            Make<IQSettings, fakes::FakeSettings>(host, IID_IQSettings, "IQSettings"),
            Make<IQCustomPlaceholders, fakes::FakeCustomPlaceholders>(host, IID_IQCustomPlaceholders,
                                                                      "IQCustomPlaceholders"),
            Make<IQDeviceInfo, fakes::FakeDeviceInfo>(host, IID_IQDeviceInfo, "IQDeviceInfo"),
            Make<IQDebugSession, fakes::FakeDebugSession>(host, IID_IQDebugSession, "IQDebugSession"),
            Make<IQTargetMemory, fakes::FakeTargetMemory>(host, IID_IQTargetMemory, "IQTargetMemory"),
            Make<IQBlockMemory, fakes::FakeBlockMemory>(host, IID_IQBlockMemory, "IQBlockMemory"),
            Make<IQMemoryMap, fakes::FakeMemoryMap>(host, IID_IQMemoryMap, "IQMemoryMap"),
            Make<IQDebugLibrary, fakes::FakeDebugLibrary>(host, IID_IQDebugLibrary, "IQDebugLibrary"),
            Make<IQDebugPlatform>(host, IID_IQDebugPlatform, "IQDebugPlatform"),
            Make<IQDebugger>(host, IID_IQDebugger, "IQDebugger"),
            Make<IQDebugExtra>(host, IID_IQDebugExtra, "IQDebugExtra"),
            Make<IQDebugExtra2>(host, IID_IQDebugExtra2, "IQDebugExtra2"),
            Make<IQBreakpoints>(host, IID_IQBreakpoints, "IQBreakpoints"),
            Make<IQCpuRegisters>(host, IID_IQCpuRegisters, "IQCpuRegisters"),
            Make<IQRegisterInfo>(host, IID_IQRegisterInfo, "IQRegisterInfo"),
            Make<IQUiManager, fakes::FakeUiManager>(host, IID_IQUiManager, "IQUiManager"),
            Make<IQToolbarManager, fakes::FakeToolbarManager>(host, IID_IQToolbarManager, "IQToolbarManager"),
            Make<IQPageHost, fakes::FakePageHost>(host, IID_IQPageHost, "IQPageHost"),
            Make<IQHostFrame>(host, IID_IQHostFrame, "IQHostFrame"),
            Make<IQHostCommon>(host, IID_IQHostCommon, "IQHostCommon"),
            Make<IQHostExtra>(host, IID_IQHostExtra, "IQHostExtra"),
            Make<IQUiExtra>(host, IID_IQUiExtra, "IQUiExtra")} {}

  const Offered* Find(const GUID& id) const {
    const auto found = std::ranges::find_if(offered, [&](const Offered& entry) { return entry.id == id; });
    return found == offered.end() ? nullptr : &*found;
  }

  const std::vector<Offered> offered;
};

FakeHost::FakeHost() : services_(std::make_unique<Services>(*this)), ui_(std::make_unique<FakeUi>(*this)) {
  Lack(IID_IQDebugPlatform);
}
FakeHost::~FakeHost() = default;

std::vector<std::string> FakeHost::Asked(std::string_view prefix) const {
  std::vector<std::string> lines;
  std::ranges::copy_if(transcript_, std::back_inserter(lines),
                       [&](const std::string& line) { return line.starts_with(prefix); });
  return lines;
}

void FakeHost::Offer(const GUID& service) {
  lacking_.erase(platform::GuidText(service));
  null_.erase(platform::GuidText(service));
}

void FakeHost::FailNext(const std::string& operation, Status status) {
  fail_next_[operation].push_back(status);
}
void FakeHost::FailAll(const std::string& operation, Status status) {
  fail_all_[operation] = status;
}
void FakeHost::FailNone() {
  fail_next_.clear();
  fail_all_.clear();
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

bool FakeHost::IsLittle(std::uint32_t address, std::uint32_t* first, std::uint32_t* last) const {
  *first = 0;
  *last = 0xFFFFFFFF;
  for (const Area& area : little_) {
    if (address < area.first || address > area.last) continue;
    *first = area.first;
    *last = area.last;
    return true;
  }
  return false;
}

IQDebugger* FakeHost::Debugger() {
  return static_cast<IQDebugger*>(services_->Find(IID_IQDebugger)->service);
}

void FakeHost::CloseWorkspace() {
  paths.open = false;
  paths.workspace = paths.project = paths.configuration = {};
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

Status FakeHost::BeginText(std::string_view operation, const std::string& arguments, platform::BSTR* out,
                           const std::string& text) {
  const Status status = Begin(operation, arguments);
  if (status == platform::S_OK) {
    *out = platform::NewBstr(text);
  } else if (!text_on_failure.empty()) {
    *out = platform::NewBstr(text_on_failure);
  }
  return status;
}

namespace {

std::string NameOf(const GUID& id, const Offered* offered) {
  return offered == nullptr ? platform::GuidText(id) : offered->name;
}

}  // namespace

// The frame comes by QueryInterface alone, everything else by GetService alone.
Status FakeHost::Give(const GUID& id, std::string_view operation, void** out) {
  const bool by_query = operation == "QueryInterface";
  const Offered* const offered = services_->Find(id);
  const Status status = Begin(operation, NameOf(id, offered));
  if (status != platform::S_OK) return status;
  const std::string text = platform::GuidText(id);
  if (offered == nullptr || lacking_.contains(text) || by_query != (id == IID_IQHostFrame)) {
    return platform::E_NOINTERFACE;
  }
  *out = null_.contains(text) ? nullptr : offered->service;
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
  if (status == platform::S_OK) faces_[platform::GuidText(id)] = face;
  return status;
}

Status FakeHost::Unregister(std::string_view operation, const GUID& id) {
  const Status status = Begin(operation, platform::GuidText(id));
  if (status == platform::S_OK) faces_.erase(platform::GuidText(id));
  return status;
}

void* FakeHost::Registered(const GUID& id) const {
  const auto found = faces_.find(platform::GuidText(id));
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
  return Unregister("RemoveClient", *id);
}
Status FakeHost::RemoveServer(const GUID* id, void*) {
  return Unregister("RemoveServer", *id);
}

}  // namespace pvw::test
