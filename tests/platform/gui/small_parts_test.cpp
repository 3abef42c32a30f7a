// The parts of the window layer that stand alone: pictures, keys, and where input goes.

#include <gmock/gmock.h>

#include "platform/gui/accelerators.h"
#include "platform/gui/graphics.h"
#include "platform/gui/messages.h"
#include "platform/gui/mnemonic.h"
#include "platform/gui/window.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"

namespace platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ImageListTest, PicturesAreCutFromTheStripAndTheMaskIsTransparent) {
  const std::uint32_t strip[] = {0xFF000001, 0xFF000002, 0xFFFF0000, 0xFF000004,   //
                                 0xFF000005, 0xFFFF0000, 0xFF000007, 0xFF000008};  // two of 2 by 2
  CImageList images;
  images.Create(2, 2, 2, strip, 0x0000FF);  // red
  EXPECT_THAT(images.GetImage(0), ElementsAre(0xFF000001, 0xFF000002, 0xFF000005, 0));
  EXPECT_THAT(images.GetImage(1), ElementsAre(0, 0xFF000004, 0xFF000007, 0xFF000008));
  EXPECT_THAT(images.GetImage(2), IsEmpty());
  EXPECT_THAT(images.GetImage(-1), IsEmpty());
  images.Create(2, 3, 2, strip, 0);
  EXPECT_EQ(images.GetCount(), 0) << "a strip that is too short";
}

TEST(AcceleratorTest, AKeyIsACommandWithExactlyItsModifiers) {
  const AcceleratorKey keys[] = {{kAccelControl, 'F', 39507}, {0, VK_F3, 39512}};
  const auto translate = [&](UINT message, UINT key, UINT modifiers) {
    return TranslateAccelerator(keys, {0, message, key, 0, nullptr, modifiers});
  };
  EXPECT_EQ(translate(WM_KEYDOWN, 'F', MK_CONTROL), 39507u);
  EXPECT_EQ(translate(WM_KEYDOWN, VK_F3, 0), 39512u);
  EXPECT_EQ(translate(WM_KEYDOWN, 'F', 0), std::nullopt);
  EXPECT_EQ(translate(WM_KEYDOWN, 'F', MK_CONTROL | MK_SHIFT), std::nullopt);
  EXPECT_EQ(translate(WM_KEYUP, 'F', MK_CONTROL), std::nullopt);
}

TEST(MnemonicTest, TheLetterBehindTheAmpersand) {
  struct Row {
    const char* text;
    UINT key;
  };
  const Row rows[] = {{"&New value:", 'N'}, {"Browse&...", 0}, {"F&ind:", 'I'},    {"Save && &close", 'C'},
                      {"a &1", '1'},        {"plain", 0},      {"at the end&", 0}, {"&&", 0}};
  for (const Row& row : rows) EXPECT_EQ(FindMnemonic(row.text), row.key) << row.text;
}

TEST(InputTest, AnyWindowKnowsWhereItHappenedAndUnclaimedKeysAreTheHosts) {
  struct CAsking : CWnd {
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_LBUTTONDOWN) above = GetMessagePos(*GetParent());
      if (msg.message == WM_CONTEXTMENU) menu = ParamPoint(msg.lParam);
      return CWnd::WindowProc(msg);
    }
    POINT above, menu;
  } holder, pane;
  HeadlessDisplay display(HeadlessDisplay::Unanswered::Fail);
  SetDisplay(&display);
  holder.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {10, 20, 90, 90}});
  pane.Create({.rect = {3, 4, 60, 60}, .parent = holder.GetHandle()});
  user::Click(pane, {1, 2});
  EXPECT_EQ(pane.above, (POINT{4, 6}));
  EXPECT_EQ(GetMessagePos(pane), (POINT{0, 0})) << "outside of any message";
  user::RightClick(pane, {1, 2});
  EXPECT_EQ(holder.menu, (POINT{4, 6})) << "a context menu is asked of the parents, in their coordinates";

  SetFocus(0);
  EXPECT_FALSE(gui::Input({0, WM_KEYDOWN, VK_F3}));
  {
    const gui::ModalScope modal(0);
    EXPECT_TRUE(gui::Input({0, WM_KEYDOWN, VK_F3})) << "but not behind a dialog";
  }
  holder.DestroyWindow();
  SetDisplay(nullptr);
}

}  // namespace
}  // namespace platform
