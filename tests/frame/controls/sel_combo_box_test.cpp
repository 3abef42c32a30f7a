// A combo box with a history at the host.

#include "frame/controls/sel_combo_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/ids.h"
#include "platform/gui/display.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/support/fake_host.h"

namespace pvw::test {
namespace {

using testing::IsEmpty;

class SelComboBox : public testing::Test {
 protected:
  SelComboBox() {
    platform::SetDisplay(&display);
    parent.Create({});
    box.Create({platform::WS_CHILD | platform::WS_VISIBLE, 0, {0, 0, 100, 14}, parent.GetHandle(), 312});
  }
  ~SelComboBox() override {
    parent.DestroyWindow();
    platform::SetDisplay(nullptr);
  }

  void Save(const std::string& text) {
    box.SetText(text);
    box.SaveHistory();
  }
  std::string& Kept() { return host.session["ws prj cfg MRULABELS_DATAMANAGER_KEY"]; }
  std::string Selection() const {
    return box.GetCurrentText() + ' ' + std::to_string(box.GetSelStart()) + '-' +
           std::to_string(box.GetSelEnd());
  }

  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Fail};
  FakeHost host;
  platform::CWnd parent;
  CUiSelComboBox box{&host};
};

TEST_F(SelComboBox, LoadsIntoTheListAndPicksOnlyWhenAsked) {
  Kept() = "1F|0x2" + std::string(100000, '|');
  box.SetText("7");
  box.LoadHistory(false);
  EXPECT_EQ(box.GetStrings().size(), 20u) << "a text that somebody else stored is cut to what is kept";
  EXPECT_EQ(box.GetText(), "7");
  box.LoadHistory(true);
  EXPECT_EQ(box.GetText(), "1F");
  CUiSelComboBox windowless(&host);
  windowless.LoadHistory(true);
  EXPECT_THAT(windowless.GetStrings(), IsEmpty());
}

TEST_F(SelComboBox, WithoutAServiceOrWhenACallFailsNothingIsKeptAndNobodyIsTold) {
  Kept() = "old";
  const auto nothing_happens = [&] {
    Save("new");
    box.LoadHistory(false);
    return box.GetStrings().empty() && Kept() == "old" && host.Asked("SetSessionValue").empty();
  };
  for (const char* call : {"GetCurrentWorkspace", "GetCurrentProject", "GetCurrentConfiguration"}) {
    host.FailAll(call);
    EXPECT_TRUE(nothing_happens()) << call;
    host.FailNone();
  }
  for (const platform::GUID& service : {IID_IQWorkspaceInfo, IID_IQDataManager}) {
    host.Lack(service);
    EXPECT_TRUE(nothing_happens()) << platform::GuidText(service);
    host.Offer(service);
  }
  box.SetHost(nullptr);
  EXPECT_TRUE(nothing_happens());
}

TEST_F(SelComboBox, RecordsTextAndSelectionAsTheyChange) {
  box.SetText("abc");
  EXPECT_EQ(Selection(), "abc 0-3");
  platform::SetFocus(box.GetHandle());
  EXPECT_EQ(Selection(), "abc 0-0") << "what the edit has";
  platform::user::TypeText("xy");
  EXPECT_EQ(Selection(), "xyabc 2-2");
  platform::user::PressKey(platform::VK_END, platform::MK_SHIFT);
  EXPECT_EQ(Selection(), "xyabc 2-5") << "a key that only selects";
  box.SetEditSel(1, 4);
  platform::user::ClickControl(box);
  EXPECT_EQ(Selection(), "xyabc 1-4");
  box.AddString("picked");
  platform::user::PressKey(platform::VK_DOWN);
  EXPECT_EQ(Selection(), "picked 0-6");
  box.SaveHistory();
  EXPECT_EQ(Kept(), "picked");
}

}  // namespace
}  // namespace pvw::test
