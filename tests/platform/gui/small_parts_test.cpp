// The parts of the window layer that stand alone: pictures and keys.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/gui/accelerators.h"
#include "platform/gui/graphics.h"
#include "platform/gui/messages.h"
#include "platform/gui/mnemonic.h"

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

}  // namespace
}  // namespace platform
