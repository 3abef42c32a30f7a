// Values that a user edits in the view of the loaded component.

#include <gmock/gmock.h>

#include "host/events.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using testing::ElementsAre;
namespace user = platform::user;

class EditTest : public test::ConnectedTest {
 protected:
  EditTest() {
    world.host.during["FireEvent"] = [this] { instance.Fire(EVENT_MEMORY_CHANGED); };
  }
  void Open() {
    world.OpenView();
    world.Expand(0, 0);
    world.host.ClearTranscript();
  }
  // Enter on the first register, with these steps in the dialog.
  void EditFirst(std::function<void(platform::CDialog&)> step) {
    ASSERT_NE(world.Grid(0), nullptr);
    display.Give(platform::DialogAnswer{{std::move(step)}});
    world.Grid(0)->SelectItem(world.Grid(0)->GetItemAtRow(1));
    platform::SetFocus(world.Grid(0)->GetHandle());
    user::PressKey(platform::VK_RETURN);
  }
  std::vector<std::string> Told() {
    std::vector<std::string> told;
    for (const std::string& line : world.host.Transcript()) {
      if (line.starts_with("WriteBlock") || line.starts_with("FireEvent")) told.push_back(line);
    }
    world.host.ClearTranscript();
    return told;
  }
};

TEST_F(EditTest, TheDialogWritesAndTheEventItFiresComesBackAsARefresh) {
  Open();
  EditFirst([](platform::CDialog& dialog) {
    user::TypeText("5a");
    user::PressOk(dialog);
  });
  EXPECT_THAT(user, ElementsAre("dialog: Edit PDATA at H'00FF0000"));
  EXPECT_THAT(Told(), ElementsAre("WriteBlock 00FF0000-00FF0000 flag 0: 5A",
                                  "FireEvent {2289D0FB-1242-11D5-9690-00B0D0167C2F}"));
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 5A", "PDIR 01", "TIMER"));
  EXPECT_EQ(world.host.session["ws prj cfg MRULABELS_DATAMANAGER_KEY"], "5a");
}

TEST_F(EditTest, ADialogEndsWithTheConnectionToTheHostThatItAsks) {
  for (const bool destroy : {false, true}) {
    Open();
    const auto go = [&](platform::CDialog& dialog) {
      destroy ? instance.Destroy() : static_cast<void>(instance.Disconnect());
      EXPECT_FALSE(dialog.Exists());
    };
    EditFirst(go);
    EXPECT_THAT(Told(), testing::IsEmpty());
    if (destroy) break;
    instance.Connect(world.host);
    instance.Fire(EVENT_TARGET_CONNECTED);
    world.LoadSession();

    Open();
    display.Give(platform::DialogAnswer{{go}});
    platform::SendMessage(world.Pane(0), platform::WM_COMMAND, 32773);
    instance.Connect(world.host);
    instance.Fire(EVENT_TARGET_CONNECTED);
    world.LoadSession();
  }
  EXPECT_THAT(user, ElementsAre("dialog: Edit PDATA at H'00FF0000", "dialog: Set I/O File",
                                "dialog: Edit PDATA at H'00FF0000"));
}

}  // namespace
}  // namespace pvw
