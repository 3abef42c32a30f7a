// The parts of the window layer that stand alone: pictures, menus, keys, text.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "platform/gui/accelerators.h"
#include "platform/gui/graphics.h"
#include "platform/gui/menu.h"
#include "platform/gui/mnemonic.h"
#include "platform/gui/text_edit.h"
#include "platform/gui/window.h"

namespace platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CodePage {
 public:
  explicit CodePage(unsigned page) : m_before(AnsiCodePage()) { SetAnsiCodePage(page); }
  CodePage(const CodePage&) = delete;
  CodePage& operator=(const CodePage&) = delete;
  ~CodePage() { SetAnsiCodePage(m_before); }

 private:
  unsigned m_before;
};

TEST(ImageListTest, PicturesAreCutFromTheStripAndTheMaskIsTransparent) {
  const std::uint32_t strip[] = {0xFF000001, 0xFF000002, 0xFFFF0000, 0xFF000004,   //
                                 0xFF000005, 0xFFFF0000, 0xFF000007, 0xFF000008};  // two of 2 by 2
  CImageList images;
  images.Create(2, 2, 2, strip, 0x0000FF);  // red
  EXPECT_EQ(images.GetCount(), 2);
  EXPECT_THAT(images.GetImage(0), ElementsAre(0xFF000001, 0xFF000002, 0xFF000005, 0));
  EXPECT_THAT(images.GetImage(1), ElementsAre(0, 0xFF000004, 0xFF000007, 0xFF000008));
  EXPECT_THAT(images.GetImage(2), IsEmpty());
  EXPECT_THAT(images.GetImage(-1), IsEmpty());
  images.Create(2, 3, 2, strip, 0);
  EXPECT_EQ(images.GetCount(), 0) << "a strip that is too short";
}

constexpr MenuItemResource kCpu[] = {{"&IO\tCtrl+I", 32770}};
constexpr MenuItemResource kView[] = {{"CPU", 0, kCpu, 1}, {}, {"K\xC3\xA4se", 32771}};
constexpr MenuResource kMenus[] = {{601, kView}};
constexpr std::uint16_t kWords[] = {1, 16, 15, 1, 32770};
constexpr ToolbarResource kToolbars[] = {{602, kWords}};
constexpr std::uint32_t kPixels[] = {1};
constexpr PictureResource kBitmaps[] = {{603, 1, 1, kPixels}};
const ResourceTables kTables{{}, {}, kMenus, kToolbars, {}, kBitmaps};
const ResourceRegistration kRegistration(kTables, ResourceRole::kComponent);

TEST(ResourcesTest, EachKindIsFoundByItsOwnIdsOnly) {
  ASSERT_NE(LoadMenu(601), nullptr);
  EXPECT_EQ(LoadMenu(602), nullptr);
  ASSERT_NE(LoadToolbar(602), nullptr);
  EXPECT_THAT(LoadToolbar(602)->words, ElementsAre(1, 16, 15, 1, 32770));
  ASSERT_NE(LoadBitmap(603), nullptr);
  EXPECT_EQ(LoadIcon(603), nullptr);
  EXPECT_EQ(LoadCursor(603), nullptr);
  EXPECT_EQ(LoadDialog(603), nullptr);
}

struct CCommands : CWnd {
  static const MessageTable kMessages;
  const MessageTable& GetMessageTable() const override { return kMessages; }
  void OnIo() {}
  void OnUpdateIo(CCmdUI& ui) { ui.SetCheck(true); }
};
const MessageTable CCommands::kMessages{
    &CWnd::kMessages, {OnCommand<&CCommands::OnIo>(32770), OnUpdate<&CCommands::OnUpdateIo>(32770)}};

TEST(MenuTest, AMenuComesFromItsResourceAndAsksTheWindowForItsStates) {
  const CodePage latin(1252);
  std::vector<PopupMenuItem> items = MenuItems(LoadMenu(601)->items);
  CCommands window;
  UpdateMenu(items, window);
  ASSERT_EQ(items.size(), 3u);
  EXPECT_EQ(items[0].text, "CPU");
  ASSERT_EQ(items[0].items.size(), 1u);
  EXPECT_EQ(items[0].items[0].text, "&IO\tCtrl+I");
  EXPECT_TRUE(items[0].items[0].checked);
  EXPECT_TRUE(items[0].items[0].enabled);
  EXPECT_TRUE(items[1].text.empty());
  EXPECT_EQ(items[2].text, "K\xE4se");
  EXPECT_FALSE(items[2].enabled) << "the window has no handler for it";
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

TEST(TextEditTest, KeysOnALineOfText) {
  using text_edit::Line;
  struct Row {
    const char* name;
    Line line;
    UINT key;
    UINT modifiers;
    std::optional<Line> result;
  };
  const Row rows[] = {
      {"left stops at the start", {"ab", {0, 0}}, VK_LEFT, 0, Line{"ab", {0, 0}}},
      {"right stops at the end", {"ab", {2, 2}}, VK_RIGHT, 0, Line{"ab", {2, 2}}},
      {"left goes to the start of a selection", {"abcd", {3, 1}}, VK_LEFT, 0, Line{"abcd", {1, 1}}},
      {"right to its end", {"abcd", {3, 1}}, VK_RIGHT, 0, Line{"abcd", {3, 3}}},
      {"shift keeps the anchor", {"abcd", {3, 1}}, VK_END, MK_SHIFT, Line{"abcd", {3, 4}}},
      {"back at the start does nothing", {"ab", {0, 0}}, VK_BACK, 0, Line{"ab", {0, 0}}},
      {"delete at the end does nothing", {"ab", {2, 2}}, VK_DELETE, 0, Line{"ab", {2, 2}}},
      {"back removes a selection", {"abcd", {1, 3}}, VK_BACK, 0, Line{"ad", {1, 1}}},
      {"delete removes a whole character",
       {"\x83\x5C"
        "b",
        {0, 0}},
       VK_DELETE,
       0,
       Line{"b", {0, 0}}},
      {"back takes no trail byte for a backslash", {"\x83\x5C", {2, 2}}, VK_BACK, 0, Line{"", {0, 0}}},
      {"a key with Control is another's", {"ab", {1, 1}}, VK_DELETE, MK_CONTROL, std::nullopt},
      {"an arrow up too", {"ab", {1, 1}}, VK_UP, 0, std::nullopt},
  };
  const CodePage japanese(932);
  for (const Row& row : rows) {
    EXPECT_EQ(text_edit::ApplyKey(row.line, row.key, row.modifiers), row.result) << row.name;
  }
  EXPECT_EQ(text_edit::CharText(0x30BD), "\x83\x5C");
}

}  // namespace
}  // namespace platform
