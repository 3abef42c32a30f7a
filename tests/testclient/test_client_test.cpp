// What the test framework gets from the client: captures and comparisons, from which file, and what happens
// when host or user do something else meanwhile.

#include "platform/base/files.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/testclient/client_stage.h"

namespace pvw {
namespace {

using platform::CancelAnswer;
using platform::CDialog;
using platform::DialogAnswer;
using testing::ElementsAre;
using testing::IsEmpty;

class TestClient : public test::ClientStage {};

TEST_F(TestClient, CapturesWhatTheValueColumnShowsInTheOrderOfTheText) {
  host.device_base = 0x1000;  // which moves the view's tree alone
  host.Poke(0xFF0020, {0, 0, 1, 0x2C});
  Select({"TCNT", "NONE", "LOW", "PORT", "pdata", "PCTRL", "T\\&R", "PDATA", "TCNT"});
  EXPECT_EQ(Captured(),
            "1.0&device&0&4&TCNT H'00FF0020 5 300&PCTRL H'00FF0010 2 1011&T\\&R H'00FF0003 4 11&"
            "PDATA H'00FF0001 1 1")
      << "the digits of a decimal or binary value, and nothing for bit fields, modules and other names";

  host.Poke(0xFF0001, {0x77});
  host.FailAll("ReadDirect");
  EXPECT_THAT(Captured(), testing::EndsWith("PDATA H'00FF0001 1 1")) << "the last value that was read";
  host.Lack(IID_IQDebugger);
  host.FailNone();
  EXPECT_THAT(Captured(), testing::EndsWith("PDATA H'00FF0001 1 1"));

  Select({});
  frame.path = "$(CONFIGDIR)\\gone.io";
  EXPECT_EQ(Captured(), "1.0&gone&0&0") << "without registers no file is asked for";
}

TEST_F(TestClient, ComparesWithTheTargetAndOneTextWithAnother) {
  Select({"PDATA", "PCTRL"});
  const std::string then = Captured();
  EXPECT_EQ(Compared(then), "0");
  host.Poke(0xFF0001, {0xA5});
  EXPECT_EQ(Compared(then), "1: 0 0 PDATA / 1 3 PDATA 01 A5");
  EXPECT_EQ(Compared(then, Captured()), "1: 0 0 PDATA / 1 3 PDATA 01 A5");
  EXPECT_EQ(Compared(then + "&GONE a 1 0"), "2: 0 0 PDATA, GONE / 1 3 PDATA 01 A5&1 0 GONE Dest");
  EXPECT_EQ(Compared("1.0&d&1&1&A a 1 1", "1.0&d&0&1&A b 1 1"), "0") << "the first text's flag";
  EXPECT_EQ(Compared("1.0&d", "1.0&d&0&1&A b 1 1"), "2: 0 0 A / 1 0 A Src");
  EXPECT_EQ(Captured(), "1.0&device&1&0") << "the flag stays while a text has none";
  EXPECT_THAT(shown, IsEmpty());
}

TEST_F(TestClient, ReadsTheFileAnewOnlyWhenTheFrameKnowsAnotherPathOrTime) {
  Select({"PDATA"});
  HasRead();
  const auto capture = [&](const std::string& text) {
    EXPECT_THAT(Captured(), testing::EndsWith(text));
    return HasRead();
  };
  EXPECT_FALSE(capture("1&PDATA H'00FF0001 1 1"));

  dir.Write("device.io", "[Modules]\nModule1=P\n[P]\nPDATA=10 B A\n[Q]\nOTHER=1 B A");
  frame.write_time = 1;
  EXPECT_TRUE(capture("1&PDATA H'00000010 1 10"));
  EXPECT_TRUE(capture("1&PDATA H'00000010 1 10")) << "for as long as the frame knows another time";
  frame.write_time = platform::GetLastWriteTime(frame.path).value();
  EXPECT_FALSE(capture("1&PDATA H'00000010 1 10"));
  dir.Delete("device.io");
  EXPECT_FALSE(capture("1&PDATA H'00000010 1 10")) << "a file that has gone has no time";
  frame.path = dir.Write("other.io", kFile);
  EXPECT_TRUE(capture("1&PDATA H'00FF0001 1 1"));
  frame.write_time = platform::GetLastWriteTime(frame.path).value();
  frame.path = dir.Path() + "\\OTHER.io";
  EXPECT_TRUE(capture("1&PDATA H'00FF0001 1 1")) << "the path compares exactly";
}

TEST_F(TestClient, TakesTheDefaultFileAndElseAsksForOne) {
  dir.Write("default.io", kFile);
  frame.path.clear();
  Select({"PDATA"});
  EXPECT_EQ(frame.path, dir.Path("default.io"));
  EXPECT_FALSE(frame.dirty);

  // Cancelled: twice, for the text and for the capture.
  frame.path = dir.Path("gone.io");
  const std::string text = "1.0&gone&0&1&PDATA a 1 0";
  display.Give(CancelAnswer{});
  display.Give(CancelAnswer{});
  EXPECT_EQ(Compared(text), "2: 0 0 PDATA / 1 0 PDATA Dest");
  EXPECT_THAT(shown, ElementsAre("dialog: Set I/O File", "dialog: Set I/O File"));
  EXPECT_FALSE(frame.dirty);

  host.paths.configuration_directory = dir.Path();
  frame.save_path = true;
  display.Give(DialogAnswer{{[&](CDialog& dialog) {
    EXPECT_EQ(dialog.GetDlgItem(9001)->GetText(), dir.Path("gone.io"));
    dialog.GetDlgItem(9001)->SetText("$(CONFIGDIR)\\default.io");
    static_cast<platform::CCheckBox*>(dialog.GetDlgItem(13001))->Clicked();
    platform::user::PressOk(dialog);
  }}});
  Select({"PDATA"});
  EXPECT_EQ(frame.path, "$(CONFIGDIR)\\default.io");
  EXPECT_TRUE(frame.dirty);
  EXPECT_FALSE(frame.save_path);
  EXPECT_EQ(Captured(), "1.0&default&0&1&PDATA H'00FF0001 1 1") << "the expanded path was opened";
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
  EXPECT_EQ(Compared("1.0&device&0&1&PDATA a 1 0"), "0");
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
