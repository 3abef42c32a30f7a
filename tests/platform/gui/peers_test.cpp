// What windows tell their widgets, and widgets their windows, on a display that writes it down.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <map>

#include "platform/gui/controls.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"

namespace platform {
namespace {

using testing::ElementsAre;

std::vector<std::string> g_log;
std::vector<std::string> Log() {
  return std::exchange(g_log, {});
}

class LoggingPeer final : public Peer {
 public:
  explicit LoggingPeer(CWnd& owner) : Peer(owner), m_name(std::to_string(owner.GetId())) {}
  void Update(Part part) override {
    const char* names[] = {"text",      "rect",  "shown",    "enabled", "focus",
                           "selection", "items", "position", "scroll",  "paint"};
    std::string line = m_name + " " + names[static_cast<int>(part)];
    if (part == Part::Text) line += " " + window->GetText();
    if (part == Part::Focus) line += GetFocus() == window->GetHandle() ? " has" : " lost";
    g_log.push_back(line);
  }
  // Like a widget: it takes the letters that are typed, and reports what became of them.
  bool Default(const MSG& msg) override {
    if (msg.message != WM_CHAR) return false;
    g_log.push_back(m_name + " default");
    const std::string text = window->GetText() + static_cast<char>(msg.wParam);
    static_cast<CEdit*>(window)->PeerEdited(text, text.size(), text.size());
    return true;
  }
  void Close() override { g_log.push_back(m_name + " close"); }

 private:
  std::string m_name;
};

class PeerDisplay final : public HeadlessDisplay {
 public:
  PeerDisplay() : HeadlessDisplay(Unanswered::Fail) {}
  Peer* CreatePeer(CWnd& window) override {
    g_log.push_back("peer for " + std::to_string(window.GetId()));
    return &m_peers.emplace_back(window);
  }
  void StopTimer(HWND window, UINT id) override {
    g_log.push_back("stop timer " + std::to_string(id));
    HeadlessDisplay::StopTimer(window, id);
  }

 private:
  std::list<LoggingPeer> m_peers;
};

class PeersTest : public testing::Test {
 protected:
  PeersTest() {
    SetDisplay(&display);
    main.Create({WS_POPUP | WS_VISIBLE, 0, {0, 0, 100, 100}, 0, 1});
    edit.Create({.rect = {0, 0, 50, 20}, .parent = main.GetHandle(), .id = 2});
  }
  ~PeersTest() override {
    main.DestroyWindow();
    SetDisplay(nullptr);
    Log();
  }
  PeerDisplay display;
  CWnd main;
  CEdit edit;
};

TEST_F(PeersTest, AWidgetHearsWhichPartToRead) {
  EXPECT_THAT(Log(), ElementsAre("peer for 1", "peer for 2"));
  edit.SetText("ab");
  edit.SetSel(1, 1);
  edit.MoveWindow({0, 0, 60, 20});
  edit.ShowWindow(false);
  edit.ShowWindow(false);
  edit.EnableWindow(false);
  edit.EnableWindow(true);
  edit.ShowWindow(true);
  edit.Invalidate();
  EXPECT_THAT(Log(), ElementsAre("2 text ab", "2 selection", "2 selection", "2 rect", "2 shown", "2 enabled",
                                 "2 enabled", "2 shown", "2 paint"));
  SetFocus(edit.GetHandle());
  SetFocus(0);
  EXPECT_THAT(Log(), ElementsAre("2 focus has", "2 focus lost"));
}

TEST_F(PeersTest, AWidgetsOwnHandlingComesFirstButOnlyForInputOfTheUser) {
  SetFocus(edit.GetHandle());
  Log();
  int event = 0;
  gui::Input({0, WM_CHAR, 'x', 0, &event});
  EXPECT_EQ(edit.GetText(), "x");
  EXPECT_THAT(Log(), ElementsAre("2 default", "2 text x", "2 selection"));
  // A key that the program sends has no event behind it.
  edit.Send(WM_CHAR, 'y');
  EXPECT_EQ(edit.GetText(), "xy");
  EXPECT_THAT(Log(), ElementsAre("2 text xy", "2 selection"));
}

TEST_F(PeersTest, AKeyThatIsForNoneOfOursIsLeftToTheHost) {
  EXPECT_FALSE(gui::Input({0, WM_KEYDOWN, VK_F3}));
  const gui::ModalScope modal(0);
  EXPECT_TRUE(gui::Input({0, WM_KEYDOWN, VK_F3}));
}

TEST_F(PeersTest, WidgetsCloseAfterTheirChildrenAndTimersStopWithTheirWindow) {
  SetTimer(edit.GetHandle(), 7, 10);
  CEdit late;
  ASSERT_TRUE(late.SubclassDlgItem(2, main)) << "the widget goes over with it";
  EXPECT_EQ(edit.GetPeer(), nullptr);
  Log();
  late.SetText("z");
  EXPECT_THAT(Log(), ElementsAre("2 text z", "2 selection"));
  main.DestroyWindow();
  EXPECT_THAT(Log(), ElementsAre("stop timer 7", "2 close", "1 close"));
}

TEST_F(PeersTest, AWindowLivesOnWithoutItsWidgetAndIsAsLargeAsTheHostSays) {
  struct CSized : CWnd {
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_SIZE) sizes.push_back(ParamPoint(msg.lParam));
      return CWnd::WindowProc(msg);
    }
    std::vector<POINT> sizes;
  } pane;
  pane.Create({.parent = main.GetHandle(), .id = 3});
  Log();
  pane.PeerMoved({6, 6, 46, 36});
  EXPECT_THAT(Log(), ElementsAre()) << "the widget is there already";
  pane.MoveWindow({6, 6, 47, 36});
  EXPECT_THAT(pane.sizes, ElementsAre(POINT{40, 30}, POINT{41, 30}));
  pane.PeerGone();
  Log();
  pane.MoveWindow({0, 0, 1, 1});
  pane.DestroyWindow();
  EXPECT_THAT(Log(), ElementsAre());
}

TEST_F(PeersTest, TheMessageKnowsWhereItHappenedFromAnyWindow) {
  struct CAsking : CWnd {
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_LBUTTONDOWN) click = GetMessagePos(*this), above = GetMessagePos(*GetParent());
      if (msg.message == WM_CONTEXTMENU) menu = ParamPoint(msg.lParam);
      return CWnd::WindowProc(msg);
    }
    POINT click, above, menu;
  } holder, pane;
  holder.Create({.rect = {10, 20, 90, 90}, .parent = main.GetHandle()});
  pane.Create({.rect = {3, 4, 60, 60}, .parent = holder.GetHandle()});
  user::Click(pane, {1, 2});
  EXPECT_EQ(pane.click, (POINT{1, 2}));
  EXPECT_EQ(pane.above, (POINT{4, 6}));
  EXPECT_EQ(GetMessagePos(pane), (POINT{0, 0})) << "outside of any message";
  user::RightClick(pane, {1, 2});
  EXPECT_EQ(holder.menu, (POINT{4, 6})) << "a context menu is asked of the parents, in their coordinates";
  holder.DestroyWindow();
}

}  // namespace
}  // namespace platform
