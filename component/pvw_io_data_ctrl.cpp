#include "component/pvw_io_data_ctrl.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <utility>
#include <vector>

#include "component/services/module_state.h"
#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/message_box.h"
#include "platform/base/module.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/path_text.h"
#include "target/debugger_binding.h"

namespace pvw {

using platform::E_FAIL;
using platform::S_OK;
using platform::Status;

namespace {

// Lies in the component's module.
const char kHere = 0;

constexpr const char* kResourceLibrary = "PvwIOExtRes.dll";
constexpr std::size_t kMaxPath = 259;
constexpr const char* kDefinitionExtension = ".io";

constexpr std::uint32_t kBindMode = 1;

constexpr std::size_t kGroupPixels = std::size_t{16} * 15;
constexpr Status kOutOfMemory = static_cast<Status>(0x8007000Eu);

// A host once for each control that has its target bound: instances at one host share the binding.
std::unordered_multiset<IQComponentHost*> g_bindingUsers;

bool AsksForRefresh(const platform::GUID& event) {
  return event == EVENT_MEMORY_CHANGED || event == EVENT_VIEW_REFRESH_1 || event == EVENT_VIEW_REFRESH_2 ||
         event == EVENT_VIEW_REFRESH_3;
}

// The pixels as the system has them in memory: blue, green, red, alpha. A picture of another size is cut, or
// filled up with zeros.
std::vector<std::uint8_t> BitmapBytes(std::uint32_t id) {
  std::vector<std::uint8_t> bytes(kGroupPixels * sizeof(std::uint32_t));
  const platform::PictureResource* const picture = platform::LoadBitmap(id);
  if (picture == nullptr) return bytes;
  const std::size_t count = std::min(kGroupPixels, picture->pixels.size());
  for (std::size_t i = 0; i < count; ++i) {
    for (unsigned byte = 0; byte < 4; ++byte) {
      bytes[i * 4 + byte] = static_cast<std::uint8_t>(picture->pixels[i] >> (8 * byte));
    }
  }
  return bytes;
}

Status GiveBytes(const std::vector<std::uint8_t>& bytes, platform::VARIANT* out) {
  platform::SAFEARRAY* const array = platform::SafeArrayCreateVector(platform::VT_VARIANT, bytes.size());
  if (array == nullptr) return kOutOfMemory;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    platform::VARIANT* const element = platform::SafeArrayVariantAt(array, i);
    element->vt = platform::VT_UI1;
    element->bVal = bytes[i];
  }
  out->vt = platform::VT_ARRAY | platform::VT_UI1;
  out->parray = array;
  return S_OK;
}

}  // namespace

CPvwIODataCtrl::Call::~Call() {
  if (--control.calls > 0) return;
  const std::unique_ptr<CPvwIODataCtrl> ended = std::move(control.itself);
}

CPvwIODataCtrl::~CPvwIODataCtrl() {
  // The target may have connected behind the end, in the rest of the call that the end came in.
  UnbindHost();
}

void CPvwIODataCtrl::End(std::unique_ptr<CPvwIODataCtrl> control) {
  CPvwIODataCtrl& ending = *control;
  const Call call(ending);
  ending.itself = std::move(control);
  if (ending.host != nullptr || ending.change == Change::kConnect) ending.Disconnect(1);
  ending.UnbindHost();
}

Status CPvwIODataCtrl::QueryInterface(const platform::GUID* iid, void** out) {
  *out = nullptr;
  if (*iid == IID_IUnknown || *iid == IID_IQRegistryClient) {
    *out = static_cast<IQRegistryClient*>(this);
  } else if (*iid == IID_IQComponent || *iid == CLSID_PvwIO) {
    *out = static_cast<IQComponent*>(this);
  } else if (*iid == IID_IQErrorReporter) {
    *out = static_cast<IQErrorReporter*>(this);
  } else if (*iid == IID_IQSteppingClient) {
    *out = static_cast<IQSteppingClient*>(this);
  } else if (*iid == IID_IQTestComponentGroup) {
    *out = static_cast<IQTestComponentGroup*>(this);
  }
  return *out != nullptr ? S_OK : platform::E_NOINTERFACE;
}

// Connect and disconnect ----------------------------------------------------------------------------------

Status CPvwIODataCtrl::Connect(IQComponentHost* component_host, std::int16_t flag) {
  if (flag == 0) return CPvwDebugDataCtrl::Connect(component_host, flag);
  if (change != Change::kNone) return E_FAIL;
  const Call call(*this);
  if (host != nullptr) Disconnect(flag);
  if (itself != nullptr) return E_FAIL;
  Status status = E_FAIL;
  try {
    const Changing connecting(*this, Change::kConnect);
    status = ConnectAnew(component_host, flag);
  } catch (...) {
    // A wrong debugger library throws its way out through the host.
    if (std::exchange(disconnectDue, false)) Disconnect(flag);
    throw;
  }
  if (!std::exchange(disconnectDue, false)) return status;
  Disconnect(flag);
  return E_FAIL;
}

Status CPvwIODataCtrl::ConnectAnew(IQComponentHost* component_host, std::int16_t flag) {
  connectHost = component_host;
  if (!LoadResources()) return E_FAIL;
  if (component_host != nullptr) {
    component_host->AddClient(&IID_IQSteppingClient, static_cast<IQSteppingClient*>(this));
  }
  return CPvwDebugDataCtrl::Connect(component_host, flag);
}

bool CPvwIODataCtrl::LoadResources() {
  const CModuleState state;
  resources.reset();
  const auto module_path = platform::GetModuleFileName(&kHere);
  if (!module_path || module_path->size() > kMaxPath) {
    platform::MessageBox(
        "Cannot obtain module. File name missing.\n"
        "Please read User Guide to create/install a new version.",
        platform::MB_ICONSTOP);
    platform::MessageBox("Application will now exit.");
    return false;
  }
  std::string error;
  resources =
      LoadResourceLibrary(JoinPath(LowerCaseText(GetDirectoryOf(*module_path)), kResourceLibrary), error);
  if (resources == nullptr) platform::MessageBox(error);
  return resources != nullptr;
}

Status CPvwIODataCtrl::Disconnect(std::int16_t flag) {
  if (flag == 0) return CPvwDebugDataCtrl::Disconnect(flag);
  if (change == Change::kDisconnect) return E_FAIL;
  if (change == Change::kConnect) {
    disconnectDue = true;
    return S_OK;
  }
  const Call call(*this);
  const Changing disconnecting(*this, Change::kDisconnect);
  if (connectHost != nullptr) {
    connectHost->RemoveClient(&IID_IQSteppingClient, static_cast<IQSteppingClient*>(this));
    connectHost = nullptr;
  }
  {
    const CModuleState state;
    resources.reset();
  }
  return CPvwDebugDataCtrl::Disconnect(flag);
}

void CPvwIODataCtrl::OnConnected() {
  if (uiRegistrar == nullptr || registrarHost != host) {
    uiRegistrar = std::make_unique<CUiRegistrar>(host);
    registrarHost = host;
  }
  if (boundHost != host) UnbindHost();
  view = std::make_unique<CPvwIODataCommandSink>(&ioFile, &ioData, host, uiRegistrar.get());
  view->CreateSink();
  testClient = std::make_unique<CTestClientIO>(host, static_cast<IQTestComponentGroup*>(this), view.get(),
                                               DefaultDefinitionFile());
}

std::string CPvwIODataCtrl::DefaultDefinitionFile() const {
  const CHostPtr<IQDeviceInfo> device(host, IID_IQDeviceInfo);
  platform::ScopedBstr given;
  if (device && platform::Failed(device->GetDefaultIOPath(given.Receive()))) given.Receive();
  std::string path = given.Text();
  if (!path.ends_with(kDefinitionExtension)) path += kDefinitionExtension;
  return path;
}

void CPvwIODataCtrl::OnDisconnected() {
  if (view != nullptr) {
    view->DestroySink();
    view.reset();
  }
  testClient.reset();
  if (ioFile.IsOpen()) ioFile.Close();
  // The next connect reads the file anew.
  ioData.DeleteModules();
  ioData.DeleteSelection();
}

IQComponentHost* CPvwIODataCtrl::LeaveBinding() {
  IQComponentHost* const left = std::exchange(boundHost, nullptr);
  if (left != nullptr) g_bindingUsers.erase(g_bindingUsers.find(left));
  return left;
}

void CPvwIODataCtrl::UnbindHost() {
  IQComponentHost* const left = LeaveBinding();
  if (left != nullptr && !g_bindingUsers.contains(left)) UnbindDebuggerFunctions(left);
}

// News of the target --------------------------------------------------------------------------------------

Status CPvwIODataCtrl::OnStep() {
  const Call call(*this);
  return CSteppingClient::OnStep();
}

Status CPvwIODataCtrl::OnStepEnd() {
  const Call call(*this);
  return CSteppingClient::OnStepEnd();
}

Status CPvwIODataCtrl::OnEvent(const QEventRecord* event) {
  const Call call(*this);
  if (AsksForRefresh(event->id)) {
    // The end of the step makes up for it.
    if (!stepInProgress) RefreshView();
  } else if (event->id == EVENT_TARGET_CONNECTED && host != nullptr) {
    LeaveBinding();
    g_bindingUsers.insert(host);
    boundHost = host;
    BindDebuggerFunctions(host, kBindMode);
    SetCurrentDebugHost(host);
  } else if (event->id == EVENT_TARGET_DISCONNECTED && host != nullptr) {
    LeaveBinding();
    UnbindDebuggerFunctions(host);
  }
  return CPvwDebugDataCtrl::OnEvent(event);
}

void CPvwIODataCtrl::RefreshView() {
  if (view == nullptr || !view->IsViewOpen() || view->IsRefreshLocked()) return;
  const Watch<CPvwIODataCommandSink> watch(view.get());
  // A failed read is silent: the panes show what the records hold.
  static_cast<void>(ioData.ReadValues(debugger));
  if (!watch.Stands()) return;
  view->SetTargetUpdate(true);
  view->UpdatePanes();
  if (watch.Stands()) view->SetTargetUpdate(false);
}

// The group in the host's test framework ------------------------------------------------------------------

Status CPvwIODataCtrl::GetGroupName(platform::BSTR* name) {
  *name = platform::NewBstr("CPU");
  return S_OK;
}

Status CPvwIODataCtrl::GetGroupBitmaps(platform::VARIANT* first, platform::VARIANT* second) {
  const CModuleState state;
  const std::vector<std::uint8_t> bytes = BitmapBytes(IDB_TEST_GROUP);
  const Status status = GiveBytes(bytes, first);
  return platform::Failed(status) ? status : GiveBytes(bytes, second);
}

}  // namespace pvw
