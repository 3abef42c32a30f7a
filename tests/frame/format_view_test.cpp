// What the host's format dialog gets and sets: one font, and two kinds of text of which it is offered one.

#include <gtest/gtest.h>

#include <limits>

#include "frame/ui_debug_command_sink.h"
#include "host/ids.h"

namespace pvw {
namespace {

using platform::ScopedBstr;

class View final : public CUiDebugCommandSink {
 public:
  View() : CUiDebugCommandSink(nullptr, nullptr) {}
  ~View() override { DestroySink(); }
  platform::LRESULT WindowProc(const platform::MSG& msg) override {
    if (msg.message == platform::WM_SETFONT && msg.wParam != 0) {
      shown = *reinterpret_cast<const platform::CFont*>(msg.lParam);
    }
    return CUiDebugCommandSink::WindowProc(msg);
  }
  void LoseFont() { m_font.Delete(); }
  platform::CFont shown;
};

// The host's side: numbers that an operation leaves alone read -7.
class FormatViewTest : public testing::Test {
 protected:
  std::string Colours(const char* item) {
    std::int32_t fg = -7;
    std::int32_t bk = -7;
    const ScopedBstr name(item);
    EXPECT_EQ(client.GetItemColours(name.Get(), &fg, &bk), 0);
    return std::to_string(fg) + " on " + std::to_string(bk);
  }
  std::string Current() {
    std::int32_t fg = -7;
    std::int32_t bk = -7;
    EXPECT_EQ(client.GetCurrentItemColours(0, &fg, &bk), 0);
    return std::to_string(fg) + " on " + std::to_string(bk);
  }
  std::string Font() {
    ScopedBstr face;
    std::int32_t size = -7;
    const platform::Status status = client.GetFont(face.Receive(), &size);
    return std::to_string(status) + ": " + face.Text() + " " + std::to_string(size);
  }

  View view;
  IQFormatViewClient2& client = view;
};

TEST_F(FormatViewTest, OffersTheTextAloneAsAListOfVariants) {
  platform::ScopedVariant items;
  platform::VARIANT* list = items.Receive();
  ASSERT_EQ(client.GetFormatItems(list), 0);
  EXPECT_EQ(list->vt, 8200);
  ASSERT_EQ(platform::SafeArrayGetCount(list->parray), 1u);
  const platform::VARIANT* item = platform::SafeArrayVariantAt(list->parray, 0);
  ASSERT_NE(item, nullptr) << "not a list of plain strings";
  EXPECT_EQ(item->vt, platform::VT_BSTR);
  EXPECT_EQ(platform::BstrText(item->bstrVal), "Text");
}

TEST_F(FormatViewTest, KeepsColoursByTheExactNameOfTheItem) {
  EXPECT_EQ(Colours("Text"), "17 on 17");
  EXPECT_EQ(Colours("Selected Text"), "18 on 18") << "answered for, though not offered";
  EXPECT_EQ(Colours("text"), "-7 on -7");
  EXPECT_EQ(Current(), "-7 on -7") << "no item is current yet";

  struct Row {
    const char* item;
    const char *text, *selected, *current;
  };
  for (const Row& row :
       {Row{"Text", "3 on 4", "18 on 18", "3 on 4"}, Row{"Selected Text", "17 on 17", "3 on 4", "3 on 4"},
        Row{"text", "17 on 17", "18 on 18", "-7 on -7"}, Row{"", "17 on 17", "18 on 18", "-7 on -7"}}) {
    client.SetTextColours(17, 17);
    client.SetSelectedTextColours(18, 18);
    EXPECT_EQ(Current(), "18 on 18") << "the short forms name their item";
    const ScopedBstr name(row.item);
    EXPECT_EQ(client.SetItemColours(name.Get(), 3, 4), 0);
    EXPECT_EQ(Colours("Text"), row.text) << row.item;
    EXPECT_EQ(Colours("Selected Text"), row.selected) << row.item;
    EXPECT_EQ(Current(), row.current) << row.item;
  }
}

TEST_F(FormatViewTest, AFontReplacesTheOneBeforeAndGoesToTheWindow) {
  EXPECT_EQ(Font(), "0: Courier New 11");
  const ScopedBstr face("Fixed");
  EXPECT_EQ(client.SetFont(face.Get(), 20), 0) << "before there is a window";
  EXPECT_EQ(Font(), "0: Fixed 20");

  ASSERT_TRUE(view.CreateSink());
  EXPECT_EQ(client.SetDefaultFont(face.Get(), -14), 0);
  EXPECT_EQ(Font(), "0: Fixed 14");
  EXPECT_EQ(view.shown.Get(), (platform::LOGFONT{-14, 0, 0, "Fixed"})) << "no width from the font before";
  EXPECT_EQ(client.SetFont(nullptr, std::numeric_limits<std::int32_t>::min()), 0);
  EXPECT_EQ(Font(), "0:  -2147483648");
  view.LoseFont();
  EXPECT_EQ(Font(), "1:  -7");
}

TEST_F(FormatViewTest, AnswersForItsOwnFaces) {
  for (const platform::GUID& id : {IID_IUnknown, IID_IQFormatViewClient, IID_IQFormatViewClient2}) {
    void* face = nullptr;
    EXPECT_EQ(client.QueryInterface(&id, &face), 0);
    EXPECT_EQ(face, &client) << platform::GuidText(id);
  }
  void* face = this;
  EXPECT_EQ(client.QueryInterface(&IID_IQIOServer, &face), platform::E_NOINTERFACE);
  EXPECT_EQ(face, nullptr);
}

}  // namespace
}  // namespace pvw
