// What the host gets for an instance of the component, as far as any component of the family has it.
#pragma once

#include <memory>

#include "frame/io_data_command_sink.h"
#include "host/component_clients.h"
#include "host/format_services.h"

namespace pvw {

// One object with several faces. The operations of IQUnknown are the subclass's.
class CPvwDataCtrl : public IQRegistryClient, public IQComponent, public IQErrorReporter {
 public:
  CPvwDataCtrl() = default;
  CPvwDataCtrl(const CPvwDataCtrl&) = delete;
  CPvwDataCtrl& operator=(const CPvwDataCtrl&) = delete;
  virtual ~CPvwDataCtrl() = default;

  platform::Status Reserved4(std::uint32_t) override { return platform::S_OK; }

  platform::Status OnEvent(const QEventRecord*) override { return platform::S_OK; }
  // E_FAIL without a host. A service that the host lacks is missing afterwards, and that is no failure.
  platform::Status Connect(IQComponentHost* component_host, std::int16_t flag) override;
  platform::Status Reserved6(std::uint32_t) override { return platform::S_OK; }
  platform::Status Reserved7(std::uint32_t) override { return platform::S_OK; }
  // E_FAIL while not connected.
  platform::Status Disconnect(std::int16_t flag) override;

  // By the host's error service; E_FAIL without one.
  platform::Status GetErrorText(platform::Status status, platform::BSTR* text) override;

 protected:
  // At the end of a connect, and at a disconnect while the host is still known.
  virtual void OnConnected() {}
  virtual void OnDisconnected() {}

  // Not owned; null while not connected.
  IQComponentHost* host = nullptr;
  IQHostFrame* hostFrame = nullptr;
  IQErrorService* errorService = nullptr;
  IQHostCommon* hostCommon = nullptr;
  std::unique_ptr<CPvwIODataCommandSink> view;  // null when there is none
};

}  // namespace pvw
