// A host that closes the view, loads another file, or disconnects in the midst of what a pane is doing.

#include "platform/gui/controls.h"
#include "platform/gui/dialog.h"
#include "platform/gui/list_edit.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

using platform::CDialog;
namespace user = platform::user;

// With a fault to tell of in every kind of place.
constexpr std::string_view kFaulty =
    "[Modules]\nFileVersion=2\nModule1=PORT\nModule2=BAD\nModule3=EMPTY\n"
    "[PORT]\nreg0=P0\nreg1=P1\n[P0]\nid=PDATA 0xFF0010 B A H BITS\n[BITS]\nbit0=LOW 1\n"
    "[P1]\nid=PDIR 0xFF0011 B A H NONE\n"
    "[BAD]\ndep=GONE 0 1\nreg0=B0\n[B0]\nid=B1 0xFF0012 X Q Z\n[EMPTY]\n";

class InterruptedTest : public PaneStage {
 protected:
  // Does `act` at the event of that number: a line that the user sees, or a call of the target. False when
  // there was none of that number.
  bool Run(const std::function<void()>& operation, const std::function<void()>& act, int number) {
    int left = number;
    std::function<void()> event = [&] {
      if (left >= 0 && left-- == 0) act();
    };
    // A dialog that has opened takes its answer.
    std::function<void()> line = [&] {
      meanwhile = line;
      if (!shown.ends_with("dialog: Select IO Register\n")) event();
    };
    meanwhile = line;
    for (const char* call : {"ReadDirect", "WriteBlock", "FireEvent", "AddCommand"})
      host.during[call] = event;
    operation();
    host.during.clear();
    meanwhile = {};
    display.DropAnswers();
    return left < 0;
  }
  void CloseView() { ClosePane(0), ClosePane(1); }
  void Disconnect() {
    CloseView();
    if (file.IsOpen()) file.Close();
    data.DeleteModules(), data.DeleteSelection();
  }
  void Load() { Pane(0).LoadIOFile(frame.path, 0); }
  void Edit() {
    if (!Tree(0).EditCell(Tree(0).GetSelectedItem(), 2)) return;
    Tree(0).GetListEdit()->SetText("4b");
    Tree(0).EndEdit();
  }
  // Either with PORT open in the first pane and all of it selected, or with no module read.
  void Begin(bool read) {
    OpenView(read ? "{PORT?{PDATA?{LOW?}PDIR?}BAD?}" : "");
    display.Give(platform::CancelAnswer{});
    if (!read) return;
    Open(0, "PORT");
    Tree(0).SelectItem(Row(0, "PORT/PDATA"));
  }
  // Behind the closing of all its rows a module doesn't count as open, but for one with a fault.
  void ExpectNoCountLeft() {
    for (const auto& pane : panes) {
      if (pane == nullptr) continue;
      auto& tree = *static_cast<CTreeGridCtrl*>(platform::CWnd::FromHandle(pane->GetTreeWindow()));
      if (tree.GetItemText(tree.GetRootItem(), 0) == "PORT") {
        tree.Expand(tree.GetRootItem(), platform::TVE_COLLAPSE);
      }
    }
    EXPECT_FALSE(data.GetModuleCount() != 0 && Record("PORT").IsExpanded());
  }
};

TEST_F(InterruptedTest, NothingIsTouchedThatHasGone) {
  frame.path = dir.Write("device.io", kFaulty);
  host.recorder_active = true;
  const std::map<std::string, std::function<void()>> kOperations = {
      {"a row is opened", [this] { Close(0, "PORT"), Open(0, "PORT"); }},
      {"a module with a fault is opened", [this] { Open(0, "BAD"); }},
      {"a module without registers is opened", [this] { Open(0, "EMPTY"); }},
      {"the rows are searched",
       [this] {
         display.DropAnswers();
         display.Give(platform::DialogAnswer{{[](CDialog& dialog) {
           user::TypeText("zzz");
           user::PressOk(dialog);
         }}});
         Pane(0).RouteCommand(32820);
       }},
      {"registers are picked", [this] { Pane(0).RouteCommand(32819); }},
      {"a file is loaded", [this] { Load(); }},
      {"the values are refreshed", [this] { Pane(0).RouteCommand(32817); }},
      {"the second pane is rebuilt", [this] { Pane(1).RebuildTree(); }},
      {"a cell is edited", [this] { Edit(); }},
      {"the dialog edits", [this] {
         display.DropAnswers();
         display.Give(platform::DialogAnswer{{[](CDialog& dialog) {
           user::TypeText("5");
           user::PressOk(dialog);
         }}});
         platform::SetFocus(Pane(0).GetTreeWindow());
         user::PressKey(platform::VK_RETURN);
       }}};
  const std::map<std::string, std::function<void()>> kActs = {
      {"closes the view", [this] { CloseView(); }},
      {"closes a pane", [this] { ClosePane(1); }},
      {"disconnects", [this] { Disconnect(); }},
      {"loads",
       [this] {
         if (panes[0] != nullptr) Load();
       }},
      {"rebuilds",
       [this] {
         if (panes[1] != nullptr) Pane(1).RebuildTree();
       }},
      {"opens the row itself", [this] {
         if (panes[0] != nullptr && Tree(0).GetRootItem() != 0)
           Tree(0).Expand(Tree(0).GetRootItem(), platform::TVE_EXPAND);
       }}};
  for (const auto& [what, operation] : kOperations) {
    for (const auto& [how, act] : kActs) {
      for (int number = 0, read = 1; read >= 0; ++number) {
        SCOPED_TRACE("the host " + how + " at event " + std::to_string(number) + " while " + what);
        Begin(read != 0);
        if (!Run(operation, act, number)) number = -1, --read;
        ExpectNoCountLeft();
        Disconnect();
      }
    }
  }
}

TEST_F(InterruptedTest, PickingRegistersEndsCancelledWhenTheirRecordsGo) {
  const auto select = [&](std::size_t pane, std::function<void(CDialog&)> step) {
    display.Give(platform::DialogAnswer{{std::move(step)}});
    EXPECT_TRUE(Pane(pane).RouteCommand(32819));
  };
  OpenView("{PORT?}");
  select(1, [&](CDialog&) { Load(); });
  EXPECT_TRUE(Record("PORT").IsSelected());
  select(1, [&](CDialog&) { ClosePane(1); });
  select(0, [&](CDialog&) { ClosePane(0), data.DeleteModules(); });

  // In the midst of the reading of the file.
  frame.path = dir.Write("device.io", kFaulty);
  OpenView();
  meanwhile = [&] { ClosePane(0); };
  EXPECT_TRUE(Pane(0).RouteCommand(32819));
  EXPECT_THAT(shown, testing::HasSubstr("message [stop]"));
}

TEST_F(InterruptedTest, AViewThatClosesUnderTheFileDialogWritesNothing) {
  OpenView();
  display.Give(platform::FileAnswer{dir.Path("rows.txt")});
  meanwhile = [&] { ClosePane(0); };
  Pane(0).RouteCommand(32774);
  EXPECT_FALSE(std::filesystem::exists(dir.Native("rows.txt")));
}

}  // namespace
}  // namespace pvw::test
