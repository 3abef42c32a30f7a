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
  // Each service calls its own operation, so that a pointer in the wrong field shows.
  void CallEach() {
    std::uint8_t byte = 0x5A;
    debugSession->IsTargetRunning();
    targetMemory->ReadDirect(0x10, 0x10, 1, &byte);
    blockMemory->WriteBlock(0x20, 0x20, 0, 1, &byte);
  }
  IQDebugger* Debugger() const { return debugger; }
};

const std::vector<bool> kAll(8, true);
const std::vector<bool> kNone(8, false);

TEST(DebugInterfaces, AskForEightServicesInTheHostsOrder) {
  FakeHost host;
  OpenDebugInterfaces interfaces(&host);

  EXPECT_THAT(host.Transcript(),
              ElementsAre("GetService IQDebugSession", "GetService IQDebugExtra", "GetService IQDebugger",
                          "GetService IQTargetMemory", "GetService IQBlockMemory", "GetService IQBreakpoints",
                          "GetService IQCpuRegisters", "GetService IQDebugExtra2"));
  EXPECT_EQ(interfaces.Held(), kAll);
  EXPECT_EQ(interfaces.Debugger(), host.Debugger());

  host.ClearTranscript();
  interfaces.CallEach();
  EXPECT_THAT(host.Transcript(), ElementsAre("IsTargetRunning", "ReadDirect 00000010-00000010 width 1",
                                             "WriteBlock 00000020-00000020 flag 0: 10"));
}

TEST(DebugInterfaces, HoldNothingWithoutAHostAndAfterDetach) {
  FakeHost host;
  OpenDebugInterfaces interfaces;
  EXPECT_EQ(interfaces.Held(), kNone);
  interfaces.Attach(&host);
  interfaces.Attach(nullptr);
  EXPECT_EQ(interfaces.Held(), kAll);
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

TEST(HostPtr, HoldsAServiceThatIsGivenAndNullOtherwise) {
  FakeHost host;
  {
    const CHostPtr<IQAddressFormat> format(&host, IID_IQAddressFormat);
    ASSERT_TRUE(format);
    platform::ScopedBstr text;
    EXPECT_EQ(format->FormatAddress(0xFF0000, 0, 0xFFFFFFFF, 0, text.Receive()), platform::S_OK);
    EXPECT_EQ(text.Text(), "H'00FF0000");
  }
  host.GiveNull(IID_IQAddressFormat);
  EXPECT_FALSE(CHostPtr<IQAddressFormat>(&host, IID_IQAddressFormat));
  host.Lack(IID_IQAddressFormat);
  EXPECT_FALSE(CHostPtr<IQAddressFormat>(&host, IID_IQAddressFormat));
  EXPECT_FALSE(CHostPtr<IQAddressFormat>(nullptr, IID_IQAddressFormat));
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
