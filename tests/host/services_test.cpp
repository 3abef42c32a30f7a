// How the component gets at the services of a host, whole or lacking.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/debug_interfaces.h"
#include "host/host_ptr.h"
#include "tests/support/fake_host.h"

namespace pvw {
namespace {

using test::FakeHost;
using testing::ElementsAre;

class OpenDebugInterfaces : public CDebugInterfaces {
 public:
  using CDebugInterfaces::CDebugInterfaces;

  std::vector<bool> Held() const {
    return {debugSession != nullptr, debugExtra != nullptr,  debugger != nullptr,     breakpoints != nullptr,
            cpuRegisters != nullptr, debugExtra2 != nullptr, targetMemory != nullptr, blockMemory != nullptr};
  }
  IQDebugger* Debugger() const { return debugger; }
};

const std::vector<bool> kAll(8, true);
const std::vector<bool> kNone(8, false);

TEST(DebugInterfaces, AskForEightServicesInTheHostsOrderUntilDetached) {
  FakeHost host;
  OpenDebugInterfaces interfaces;
  EXPECT_EQ(interfaces.Held(), kNone);
  interfaces.Attach(&host);
  EXPECT_THAT(host.Transcript(),
              ElementsAre("GetService IQDebugSession", "GetService IQDebugExtra", "GetService IQDebugger",
                          "GetService IQTargetMemory", "GetService IQBlockMemory", "GetService IQBreakpoints",
                          "GetService IQCpuRegisters", "GetService IQDebugExtra2"));
  EXPECT_EQ(interfaces.Debugger(), host.Debugger());
  interfaces.Attach(nullptr);
  EXPECT_EQ(interfaces.Held(), kAll) << "a host that isn't there changes nothing";
  interfaces.Detach();
  EXPECT_EQ(interfaces.Held(), kNone);
}

TEST(DebugInterfaces, KeepAFieldThatTheHostLeavesAlone) {
  FakeHost host;
  host.Lack(IID_IQCpuRegisters);
  OpenDebugInterfaces interfaces(&host);
  host.Lack(IID_IQDebugger);
  host.GiveNull(IID_IQTargetMemory);
  interfaces.Attach(&host);
  EXPECT_EQ(interfaces.Held(), (std::vector<bool>{true, true, true, true, false, true, false, true}));
}

TEST(DebugInterfaces, TheTargetRunsWhenTheHostSaysSo) {
  FakeHost host;
  for (const platform::Status status : {platform::S_OK, 1, 0x7FFFFFFF, platform::E_FAIL, -1}) {
    host.target_running = status;
    EXPECT_EQ(OpenDebugInterfaces(&host).IsTargetRunning(), status >= 0) << status;
  }
  host.target_running = platform::S_OK;
  host.Lack(IID_IQDebugSession);
  EXPECT_FALSE(OpenDebugInterfaces(&host).IsTargetRunning());
}

TEST(RecorderPtr, SaysYesForTheStatusZeroAlone) {
  FakeHost host;
  EXPECT_FALSE(CRecorderPtr(&host).IsActive()) << "idle, which the host says with a success";
  host.recorder_active = true;
  EXPECT_TRUE(CRecorderPtr(&host).IsActive());
  host.FailNext("IsActive");
  EXPECT_FALSE(CRecorderPtr(&host).IsActive());
  host.FailNext("AddCommand", 1);
  EXPECT_FALSE(CRecorderPtr(&host).AddCommand("lost"));
  EXPECT_TRUE(CRecorderPtr(&host).AddCommand("memory_fill 0x10 0x10 0xA BYTE"));
  EXPECT_THAT(host.recorded, ElementsAre("memory_fill 0x10 0x10 0xA BYTE"));
  host.Lack(IID_IQCommandRecorder);
  EXPECT_FALSE(CRecorderPtr(&host).IsActive() || CRecorderPtr(&host).AddCommand("x"));
}

}  // namespace
}  // namespace pvw
