#include "component/pvw_data_ctrl.h"

#include "host/host_ptr.h"
#include "host/ids.h"

namespace pvw {

using platform::E_FAIL;
using platform::S_OK;
using platform::Status;

Status CPvwDataCtrl::Connect(IQComponentHost* component_host, std::int16_t flag) {
  if (component_host == nullptr) return E_FAIL;
  if (flag == 0) return S_OK;
  host = component_host;
  void* frame = nullptr;
  if (!platform::Failed(host->QueryInterface(&IID_IQHostFrame, &frame))) {
    hostFrame = static_cast<IQHostFrame*>(frame);
  }
  errorService = GetService<IQErrorService>(host, IID_IQErrorService);
  hostCommon = GetService<IQHostCommon>(host, IID_IQHostCommon);
  OnConnected();
  return S_OK;
}

Status CPvwDataCtrl::Disconnect(std::int16_t flag) {
  if (host == nullptr) return E_FAIL;
  if (flag == 0) return S_OK;
  OnDisconnected();
  host = nullptr;
  hostFrame = nullptr;
  errorService = nullptr;
  hostCommon = nullptr;
  return S_OK;
}

Status CPvwDataCtrl::GetErrorText(Status status, platform::BSTR* text) {
  return errorService != nullptr ? errorService->GetErrorText(status, text) : E_FAIL;
}

}  // namespace pvw
