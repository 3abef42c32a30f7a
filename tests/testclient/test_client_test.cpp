// From which file the client captures, its dialog's list, and what happens when host or user do something
// else meanwhile.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/files.h"
#include "platform/gui/dialog.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/headless/user.h"
#include "target/debugger_binding.h"
#include "testclient/test_client_io.h"
#include "tests/support/scopes.h"
#include "tests/view/pane_stage.h"

namespace pvw {
namespace {

using platform::CDialog;
using platform::DialogAnswer;

// A host whose target is connected, with a frame of plain values and a device of three registers, on a
// display without a screen.
class TestClient : public testing::Test {
 protected:
  TestClient() {
    platform::SetDisplay(&display);
    BindDebuggerFunctions(&host, 1);
    frame.path = dir.Write("device.io", kFile);
    frame.write_time = platform::GetLastWriteTime(frame.path).value();
    client = std::make_unique<CTestClientIO>(&host, nullptr, &frame, dir.Path("default.io"));
  }
  ~TestClient() override {
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
  test::TempDir dir;
  test::FakeHost host;
  test::FakeFrame frame;
  std::unique_ptr<CTestClientIO> client;
};

TEST_F(TestClient, ReadsTheFileAnewOnlyWhenTheFrameKnowsAnotherPathOrTime) {
  Select({"PDATA"});
  HasRead();
  const auto capture = [&](const std::string& text) {
    EXPECT_THAT(Captured(), testing::EndsWith(text));
    return HasRead();
  };
  EXPECT_FALSE(capture("1&PDATA H'00FF0001 1 1"));

  dir.Write("device.io", "[Modules]\nModule1=P\n[P]\nPDATA=10 B A\n");
  frame.write_time = 1;
  for (int times = 0; times < 2; ++times) EXPECT_TRUE(capture("1&PDATA H'00000010 1 10"));
  frame.write_time = platform::GetLastWriteTime(frame.path).value();
  EXPECT_FALSE(capture("1&PDATA H'00000010 1 10"));
  dir.Delete("device.io");
  EXPECT_FALSE(capture("1&PDATA H'00000010 1 10")) << "a file that has gone has no time";
  frame.path = dir.Write("other.io", kFile);
  frame.write_time = platform::GetLastWriteTime(frame.path).value();
  EXPECT_TRUE(capture("1&PDATA H'00FF0001 1 1"));
  frame.path = dir.Path() + "\\OTHER.io";
  EXPECT_TRUE(capture("1&PDATA H'00FF0001 1 1")) << "the path compares exactly";
}

TEST_F(TestClient, TakesANameOnceAndTheLaterFormsOfItsOperations) {
  const platform::ScopedBstr chosen("1.0&x&0&3&TCNT a 1 0&PDATA a 1 0&TCNT a 1 0");
  std::uint32_t result = 77;
  EXPECT_EQ(client->SetTestDataChecked(chosen.Get(), &result), 0);
  EXPECT_EQ(result, 0u);
  const platform::ScopedBstr before(Captured());
  EXPECT_EQ(before.Text(), "1.0&device&0&2&TCNT H'00FF0020 4 20212223&PDATA H'00FF0001 1 1");
  host.Poke(0xFF0001, {0xA5});
  const platform::ScopedBstr after(Captured());
  platform::ScopedBstr summary[2], detail[2];
  EXPECT_EQ(client->CompareWithTarget2(before.Get(), 5, summary[0].Receive(), detail[0].Receive(), &result) +
                client->CompareTexts2(before.Get(), 5, after.Get(), 5, summary[1].Receive(),
                                      detail[1].Receive(), &result),
            0);
  EXPECT_EQ(result, 1u);
  for (const int i : {0, 1})
    EXPECT_EQ(summary[i].Text() + " / " + detail[i].Text(), "0 0 PDATA / 1 3 PDATA 01 A5");
}

TEST_F(TestClient, ItsDialogSortsByWholeCharactersAndKeepsTheSelectedRow) {
  // One byte B1 stands before any character of two.
  const test::CodePage page(932);
  frame.path =
      dir.Write("page.io", "[Modules]\nModule1=M\n[M]\n\x82\xA0=1 B A\n\xB1=1 B A\n\x81\x40=1 B A\n");
  display.Give(DialogAnswer{{[](CDialog& dialog) {
    auto& list = dynamic_cast<platform::SECTreeCtrl&>(*dialog.GetDlgItem(13002));
    const auto rows = [&] {
      std::string names;
      for (std::size_t i = 0; i < list.GetRowCount(); ++i) {
        const platform::HTREEITEM row = list.GetItemAtRow(i);
        names += list.GetItemText(row, 0) + (row == list.GetSelectedItem() ? "< " : " ");
      }
      return names;
    };
    list.SelectItem(list.GetItemAtRow(0));
    EXPECT_EQ(rows(), "\xB1< \x81\x40 \x82\xA0 ");
    for (int click = 0; click < 2; ++click) {
      platform::user::Click(list, {50, list.GetHeaderHeight() / 2});
    }
    EXPECT_EQ(rows(), "\x82\xA0 \x81\x40 \xB1< ");
    platform::user::PressCancel(dialog);
  }}});
  EXPECT_EQ(client->EditDetails(), 0);
}

TEST_F(TestClient, OutlivesWhatTheHostDoesMeanwhile) {
  // The target's read hands over another text.
  Select({"PDATA", "PCTRL"});
  host.during["ReadDirect"] = [&] { Select({"TCNT"}); };
  EXPECT_THAT(Captured(), testing::StartsWith("1.0&device&0&2&PDATA"));
  host.during.clear();
  EXPECT_THAT(Captured(), testing::StartsWith("1.0&device&0&1&TCNT"));

  // The instance goes while the user is asked for a file, and while a faulty one is told of.
  frame.path = dir.Path("gone.io");
  display.Give(DialogAnswer{{[&](CDialog& dialog) {
    EXPECT_EQ(Captured(), "1.0&gone&0&0") << "nothing while the file is being chosen";
    client.reset();
    dialog.EndDialog(platform::IDOK);
  }}});
  const platform::ScopedBstr text("1.0&device&0&1&PDATA a 1 0");
  platform::ScopedBstr summary, detail;
  std::uint32_t status = 77;
  EXPECT_EQ(client->CompareWithTarget2(text.Get(), 5, summary.Receive(), detail.Receive(), &status), 0);
  EXPECT_EQ(status, 0u);
  EXPECT_TRUE(summary.Get() == nullptr && detail.Get() == nullptr);
  EXPECT_EQ(frame.path, dir.Path("gone.io"));

  client = std::make_unique<CTestClientIO>(&host, nullptr, &frame, std::string());
  frame.path =
      dir.Write("device.io", "[Modules]\nFileVersion=2\nModule1=M\n[M]\nreg0=R\nreg1=S\n[S]\nid=S 0x10\n");
  meanwhile = [&] { client.reset(); };
  EXPECT_EQ(client->EditDetails(), 0);
  EXPECT_EQ(client, nullptr);
}

}  // namespace
}  // namespace pvw
