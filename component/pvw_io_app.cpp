#include "component/pvw_io_app.h"

#include <new>
#include <utility>

#include "host/ids.h"

namespace pvw {

using platform::S_OK;
using platform::Status;

namespace {

constexpr const char* kLibraryName = "Generic PVW IO";
constexpr std::uint32_t kLibraryKind = 2;
constexpr std::uint32_t kMajorVersion = 1;
constexpr std::uint32_t kMinorVersion = 0;

std::unique_ptr<CPvwIODataCtrl> TryMakeControl() {
  try {
    return std::make_unique<CPvwIODataCtrl>();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

CPvwIOApp theApp;

CPvwIOApp::~CPvwIOApp() {
  for (auto& [instance, control] : m_instances) static_cast<void>(control.release());
}

Status CPvwIOApp::RegisterLibrary(IQLibraryRegistrar* registrar) {
  const platform::ScopedBstr name(kLibraryName);
  registrar->RegisterLibrary(name.Get(), kLibraryKind, kMajorVersion, kMinorVersion, &CLSID_PvwIO);
  return S_OK;
}

Status CPvwIOApp::GetVersion(std::uint32_t* major, std::uint32_t* minor) {
  *major = kMajorVersion;
  *minor = kMinorVersion;
  return S_OK;
}

Status CPvwIOApp::CreateInstance(void* instance) {
  // The new one stands before the old one's end calls the host.
  std::unique_ptr<CPvwIODataCtrl> old = std::exchange(m_instances[instance], TryMakeControl());
  if (old != nullptr) CPvwIODataCtrl::End(std::move(old));
  return S_OK;
}

Status CPvwIOApp::DestroyInstance(void* instance) {
  // Out of the table first: its end calls the host, which may ask for it again.
  if (const auto found = m_instances.find(instance); found != m_instances.end()) {
    std::unique_ptr<CPvwIODataCtrl> control = std::move(found->second);
    m_instances.erase(found);
    if (control != nullptr) CPvwIODataCtrl::End(std::move(control));
  }
  return S_OK;
}

Status CPvwIOApp::QueryInterface(void* instance, const platform::GUID* iid, void** out) {
  *out = nullptr;
  const auto found = m_instances.find(instance);
  if (found == m_instances.end() || found->second == nullptr) return platform::E_NOINTERFACE;
  return platform::Failed(found->second->QueryInterface(iid, out)) ? platform::E_NOINTERFACE : S_OK;
}

}  // namespace pvw
