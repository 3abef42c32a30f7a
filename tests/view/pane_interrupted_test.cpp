// A host that closes the view, loads another file, or disconnects in the midst of what a pane is doing.

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
    for (const char* call : {"ReadDirect", "WriteBlock", "FireEvent", "AddCommand", "ParseValue"})
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
  void Load() {
    if (panes[0] != nullptr) Pane(0).LoadIOFile(frame.path, 0);
  }
  void Rebuild() {
    if (panes[1] != nullptr) Pane(1).RebuildTree();
  }
  void Edit(const char* text, const std::function<void()>& end) {
    if (!Tree(0).EditCell(Tree(0).GetSelectedItem(), 2)) return;
    Tree(0).GetListEdit()->SetText(text);
    end();
  }
  // Types into the next dialog, and accepts it.
  void Answer(const char* text) {
    display.DropAnswers();
    display.Give(platform::DialogAnswer{{[text](CDialog& dialog) {
      user::TypeText(text);
      user::PressOk(dialog);
    }}});
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
      if (pane == nullptr || !pane->Exists()) continue;
      auto& tree = *static_cast<CTreeGridCtrl*>(platform::CWnd::FromHandle(pane->GetTreeWindow()));
      EXPECT_FALSE(tree.IsEditing());
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
  const auto enter = [] { user::PressKey(platform::VK_RETURN); };
  const auto click = [this] {
    user::Click(Tree(0), Tree(0).GetPartPoint(Row(0, "PORT"), platform::TVHT_ONITEMLABEL));
  };
  const auto leave = [this] { platform::SetFocus(dock->window->GetHandle()); };
  const std::map<std::string, std::function<void()>> kOperations = {
      {"a row is opened", [this] { Close(0, "PORT"), Open(0, "PORT"); }},
      {"a module with a fault is opened", [this] { Open(0, "BAD"); }},
      {"a module without registers is opened", [this] { Open(0, "EMPTY"); }},
      {"the rows are searched", [this] { Answer("zzz"), Pane(0).RouteCommand(32820); }},
      {"registers are picked", [this] { Pane(0).RouteCommand(32819); }},
      {"a file is loaded", [this] { Load(); }},
      {"the values are refreshed", [this] { Pane(0).RouteCommand(32817); }},
      {"the second pane is rebuilt", [this] { Rebuild(); }},
      {"Enter ends an edit", [&] { Edit("4b", enter); }},
      {"a click ends an edit", [&] { Edit("4b", click); }},
      {"the focus leaves an edit", [&] { Edit("4b", leave); }},
      {"Enter ends a bad text", [&] { Edit("xyz", enter); }},
      {"a click ends a bad text", [&] { Edit("xyz", click); }},
      {"a click ends a large value", [&] { Edit("100", click); }},
      {"the target refuses a value",
       [&] { host.FailNext("WriteBlock"), Edit("4b", click), host.FailNone(); }},
      {"the dialog edits", [this] {
         Answer("5");
         platform::SetFocus(Pane(0).GetTreeWindow());
         user::PressKey(platform::VK_RETURN);
       }}};
  const std::map<std::string, std::function<void()>> kActs = {
      {"closes the view", [this] { CloseView(); }},
      {"closes a pane", [this] { ClosePane(1); }},
      {"disconnects", [this] { Disconnect(); }},
      {"destroys the window", [this] { host.Ui().DestroyDock(dock->window->GetHandle()); }},
      {"loads", [this] { Load(); }},
      {"rebuilds", [this] { Rebuild(); }},
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

TEST_F(InterruptedTest, NothingIsWrittenWhenTheRecordLeavesTheTreeUnderItsDialog) {
  const std::string other = dir.Write("other.io", "[Modules]\n");
  for (const char* const path : {"PORT/PDATA", "PORT/PDATA/LOW", "PORT/PDIR"}) {
    // A selected one lives on as missing, the others are destroyed.
    for (const char* const selection : {"", "{PORT?{PDATA?{LOW?}PDIR?}}"}) {
      frame.path = dir.Write("device.io", kFaulty);
      OpenView(selection);
      Open(0, "PORT"), Open(0, "PORT/PDATA");
      Tree(0).SelectItem(Row(0, path));
      Answer("1");
      meanwhile = [&] { Pane(0).LoadIOFile(other, 0); };
      platform::SetFocus(Pane(0).GetTreeWindow());
      user::PressKey(platform::VK_RETURN);
      EXPECT_FALSE(meanwhile) << "there was a dialog";
      Disconnect();
    }
  }
  EXPECT_THAT(host.Asked("WriteBlock"), testing::IsEmpty());
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
