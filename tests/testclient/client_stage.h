// The test client of a host whose target is connected, with a frame of plain values and a device of three
// registers, on a display without a screen.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/ids.h"
#include "platform/headless/headless_display.h"
#include "target/debugger_binding.h"
#include "testclient/test_client_io.h"
#include "tests/support/fake_host.h"
#include "tests/support/temp_dir.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {

class ClientStage : public testing::Test {
 protected:
  ClientStage() {
    platform::SetDisplay(&display);
    BindDebuggerFunctions(&host, 1);
    frame.path = dir.Write("device.io", kFile);
    frame.write_time = platform::GetLastWriteTime(frame.path).value();
    client = std::make_unique<CTestClientIO>(&host, nullptr, &frame, dir.Path("default.io"));
  }
  ~ClientStage() override {
    client.reset();
    UnbindDebuggerFunctions(&host);
    platform::SetDisplay(nullptr);
  }

  static constexpr std::string_view kFile =
      "[Modules]\nFileVersion=3\nBaseAddress=FF0000\nModule1=PORT\n[PORT]\nreg0=P0\nreg1=P1\nreg2=T0\n"
      "[P0]\nname=PDATA\nreladdr=FF0001\n[P1]\nname=PCTRL\nreladdr=FF0010\nsize=16\n"
      "[T0]\nname=TCNT\nreladdr=FF0020\nsize=32\n";

  // Selects registers as a text does that holds nothing else of them.
  void Select(const std::vector<std::string>& names) {
    std::string text = "1.0&device&0&0";
    for (const std::string& name : names) text += '&' + name + " a 1 0";
    client->SetTestData(platform::ScopedBstr(text).Get());
  }
  std::string Captured() {
    platform::ScopedBstr text;
    EXPECT_EQ(client->GetTestData(text.Receive()), 0);
    return text.Text();
  }
  // Whether records were made since the last call.
  bool HasRead() {
    const bool read = !host.Asked("GetService IQNumberFormat").empty();
    host.ClearTranscript();
    return read;
  }

  std::function<void()> meanwhile;  // happens once, while the user sees the next line
  std::vector<std::string> shown;
  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Fail,
                                    [this](const std::string& line) {
                                      shown.push_back(line);
                                      if (meanwhile) std::exchange(meanwhile, {})();
                                    },
                                    [](const std::string& text) { ADD_FAILURE() << text; }};
  TempDir dir;
  FakeHost host;
  FakeFrame frame;
  std::unique_ptr<CTestClientIO> client;
};

}  // namespace pvw::test
