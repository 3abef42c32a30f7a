// Each command that the desktop shows, given by mouse or key, with what it does at the host. Behind them the
// Test menu: registers are chosen, captured into a file, and held against the target.

#include <QtWidgets/qabstractbutton.h>
#include <QtWidgets/qfiledialog.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qplaintextedit.h>
#include <QtWidgets/qstatusbar.h>
#include <QtWidgets/qtabbar.h>

#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Commands : public DesktopStage {
 protected:
  Commands() { Start(); }
  bool IsRunning() { return Host().session.IsTargetRunning() == platform::S_OK; }
};

TEST_F(Commands, TheViewOpensOnTheFileWithMenusToolbarsAndTabs) {
  EXPECT_EQ(Window().size(), QSize(1000, 680));
  EXPECT_EQ(Grid().GetItemText(Grid().GetRootItem(), 0), "CLOCK");
  EXPECT_EQ(Window().ViewFrame()->windowTitle(), "IO");
  EXPECT_FALSE(Window().centralWidget()->isVisible()) << "the dock fills the window";
  EXPECT_GT(platform::QtDisplay::WidgetOf(Grid())->height(), 400);
  const auto* tabs = Window().ViewFrame()->findChild<QTabBar*>();
  EXPECT_EQ(tabs->tabText(0), "All Register");
  EXPECT_EQ(tabs->tabText(1), "Selected Register");
  EXPECT_TRUE(tabs->isVisible());
  EXPECT_GE(tabs->height(), tabs->fontMetrics().height());

  std::vector<std::uint32_t> commands;
  for (const QAction* action : PaneBar().actions()) {
    EXPECT_FALSE(action->icon().isNull()) << action->toolTip().toStdString();
    commands.push_back(action->data().toUInt());
  }
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{32817, 32826, 32773, 32771, 32774, 32819, 32820, 32821}));
  EXPECT_EQ(PaneBar().actions()[1]->toolTip(), "LockRefresh");

  InNextPopup([](QMenu& menu) {
    EXPECT_EQ(Entries(menu),
              QStringList({"Refresh", "Lock Refresh", "-", "Load IO File...", "Select IO Register...", "-",
                           "Print", "Save To File...", "-", "Find...", "(Find Next)", "-", "Toolbar display",
                           "Customize toolbar...", "-", "Allow Docking", "Hide"}));
    EXPECT_TRUE(menu.actions()[12]->isChecked() && !menu.actions()[1]->isChecked());
    menu.close();
  });
  ClickRow("PORT", Qt::RightButton);
}

TEST_F(Commands, TheDebugMenuDrivesTheTarget) {
  OpenRow("PORT");
  Poke(0xFF0041, 0x11);
  ASSERT_TRUE(Menu("Debug|Step"));
  EXPECT_EQ(Value("PORT/PDATA"), "11");
  EXPECT_TRUE(ShowsRed());
  Key(Qt::Key_F11);
  EXPECT_FALSE(ShowsRed()) << "nothing has changed at this stop";
  Poke(0xFF0041, 0x12);
  Key(Qt::Key_F11, Qt::ShiftModifier);
  EXPECT_EQ(Value("PORT/PDATA"), "12");
  EXPECT_TRUE(ShowsRed());

  Key(Qt::Key_F5);
  EXPECT_TRUE(IsRunning());
  ASSERT_FALSE(Menu("Debug|Step"));
  ASSERT_FALSE(Menu("Register|Select IO Register..."));
  Poke(0xFF0041, 0x13);
  ASSERT_TRUE(Menu("Debug|Stop"));
  EXPECT_FALSE(IsRunning());
  EXPECT_EQ(Value("PORT/PDATA"), "13");

  ASSERT_TRUE(Menu("Debug|Disconnect"));
  Poke(0xFF0041, 0x14);
  EXPECT_FALSE(Menu("Debug|Step") || Menu("Debug|Run"));
  ASSERT_TRUE(Menu("Register|Refresh"));
  EXPECT_EQ(Value("PORT/PDATA"), "13") << "there is nothing to read from";
  ASSERT_TRUE(Menu("Debug|Connect"));
  ASSERT_TRUE(Menu("Register|Refresh"));
  EXPECT_EQ(Value("PORT/PDATA"), "14");

  ASSERT_TRUE(Menu("Debug|Target Memory Moves"));
  Key(Qt::Key_F11);
  EXPECT_EQ(Value("PORT/PDATA"), "28") << "the lamps go round";
}

TEST_F(Commands, TheUserClosesHidesAndOpensTheView) {
  // The frame's own button.
  auto* close = Window().ViewFrame()->findChild<QAbstractButton*>("qt_dockwidget_closebutton");
  ASSERT_NE(close, nullptr);
  QTest::mouseClick(close, Qt::LeftButton);
  Settle();
  EXPECT_EQ(Component().View(), nullptr);
  EXPECT_EQ(Window().ViewFrame(), nullptr);
  EXPECT_TRUE(Window().centralWidget()->isVisible());
  EXPECT_FALSE(Menu("Register|Refresh"));

  Key(Qt::Key_I, Qt::ControlModifier);
  ASSERT_NE(Component().View(), nullptr);
  EXPECT_TRUE(Window().ViewFrame()->isVisible());
  ASSERT_EQ(Component().View()->Pages().size(), 2u);
  EXPECT_FALSE(Menu("View|CPU|IO")) << "it is open";

  // Hiding keeps the panes.
  const platform::HWND pane = Component().Pane(PaneIndex::kAll)->GetHandle();
  ASSERT_TRUE(Menu("Register|Hide"));
  EXPECT_FALSE(Window().ViewFrame()->isVisible());
  ASSERT_TRUE(Menu("View|CPU|IO"));
  EXPECT_TRUE(Window().ViewFrame()->isVisible());
  ASSERT_TRUE(Menu("View|Windows|IO"));
  EXPECT_FALSE(Component().View()->is_shown);
  ASSERT_TRUE(Menu("View|Windows|IO"));
  EXPECT_TRUE(Component().View()->is_shown);
  EXPECT_EQ(Component().Pane(PaneIndex::kAll)->GetHandle(), pane);

  // The toolbar of the main window has the same command.
  ASSERT_TRUE(Menu("Register|Hide"));
  auto* cpu = Window().findChild<QToolBar*>("{WK_TB00000011_CPU}");
  ASSERT_NE(cpu, nullptr);
  ASSERT_TRUE(Click(*cpu, kOpenViewCommand));
  EXPECT_TRUE(Component().View()->is_shown);
  ASSERT_TRUE(Menu("View|Windows|Cpu"));
  EXPECT_FALSE(cpu->isVisible());
}

TEST_F(Commands, TabsAndTheirKeyChangeThePageAndTakeTheCommandsAlong) {
  auto* tabs = Window().ViewFrame()->findChild<QTabBar*>();
  QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
  Settle();
  EXPECT_EQ(Component().View()->ActivePage(), 1u);
  EXPECT_EQ(platform::GetFocus(), Grid(PaneIndex::kSelected).GetHandle());
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(Component().View()->ActivePage(), 0u);
  EXPECT_EQ(tabs->currentIndex(), 0);
  ASSERT_TRUE(Menu("View|Next Page"));
  EXPECT_EQ(tabs->currentIndex(), 1);
}

TEST_F(Commands, AnotherDefinitionIsOpenedByTheFileMenuEvenWhenTheViewIsClosed) {
  Component().CloseView();
  Settle();
  InNextDialog([this](QWidget& dialog) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(),
              workspace.Native().string());
    NameFile(dialog, "lumen2.io");
  });
  ASSERT_TRUE(Menu("File|Open I/O Definition..."));
  ASSERT_NE(Component().View(), nullptr);
  OpenRow("CLOCK");
  EXPECT_NE(Row("CLOCK/DEVICEID"), 0u) << "a register that the first file lacks";
}

TEST_F(Commands, AboutNamesTheComponentAndStatusTipsComeFromIt) {
  InNextDialog([](QWidget& box) {
    EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains("Generic PVW IO"));
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  ASSERT_TRUE(Menu("Help|About ioview"));
  QAction* const refresh = PaneBar().actions()[0];
  refresh->hover();
  refresh->showStatusText(PaneBar().widgetForAction(refresh));
  EXPECT_EQ(Window().statusBar()->currentMessage(), "Refresh IO View");
}

class TestMenu : public DesktopStage {
 protected:
  TestMenu() { Start(); }
  std::string Read(const char* name) { return ReadFile(workspace.Native(name)); }
  // In the dialog's list, which is sorted by name.
  void Choose(std::initializer_list<const char*> registers) {
    InNextDialog([&](QWidget&) {
      const auto& list =
          dynamic_cast<platform::SECTreeCtrl&>(*platform::CWnd::FromHandle(platform::GetFocus()));
      for (const std::string name : registers) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        for (std::size_t row = 1; row < list.GetRowCount(); ++row) {
          if (list.GetItemText(list.GetSelectedItem(), 0) == name) break;
          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
      }
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    ASSERT_TRUE(Menu("Test|Choose Registers..."));
    EXPECT_TRUE(Answered());
  }
  void Capture(const char* name) {
    InNextDialog([this, name](QWidget& dialog) { NameFile(dialog, name); });
    ASSERT_TRUE(Menu("Test|Capture..."));
    EXPECT_TRUE(Answered());
  }
  // What the result dialog says: its sentence, then its lines.
  std::vector<std::string> Compare(const char* name) {
    std::vector<std::string> said;
    InNextDialog([this, name, &said](QWidget& dialog) {
      InNextDialog([&said](QWidget& result) {
        const auto* const box = dynamic_cast<QMessageBox*>(&result);
        said.push_back(box != nullptr ? box->text().toStdString()
                                      : Bare(result.findChild<QLabel*>()->text()).toStdString());
        if (const auto* lines = result.findChild<QPlainTextEdit*>()) {
          for (const QString& line : lines->toPlainText().split('\n')) said.push_back(line.toStdString());
        }
        QTest::keyClick(&result, Qt::Key_Return);
      });
      NameFile(dialog, name);
    });
    EXPECT_TRUE(Menu("Test|Compare..."));
    EXPECT_TRUE(Until([this] { return Answered(); }));
    return said;
  }
};

TEST_F(TestMenu, WhatWasCapturedIsHeldAgainstTheTarget) {
  Choose({"PDATA", "TCTL"});
  Capture("before.txt");
  EXPECT_EQ(Read("before.txt"), "1.0&lumen3&0&2&PDATA H'00FF0041 1 cd&TCTL H'00FF0060 1 17\n");
  EXPECT_THAT(Compare("before.txt"), ElementsAre("No differences."));

  Poke(0xFF0041, 0x11);
  EXPECT_THAT(Compare("before.txt"), ElementsAre("One difference:", HasSubstr("PDATA")));
  Poke(0xFF0060, 0x22);
  EXPECT_THAT(Compare("before.txt"), ElementsAre("2 differences:", HasSubstr("PDATA"), HasSubstr("TCTL")));
}

TEST_F(TestMenu, WhatCantBeDoneIsToldOfAndChangesNothing) {
  std::string box;
  TakeBox(box);
  ASSERT_TRUE(Menu("Test|Capture..."));
  EXPECT_THAT(box, HasSubstr("no registers of this device are chosen"));

  workspace.Write("notes.txt", "no snapshot\n");
  EXPECT_THAT(Compare("notes.txt"), ElementsAre(HasSubstr("notes.txt: This is no snapshot")));
  EXPECT_THAT(Compare("none.txt"), ElementsAre(HasSubstr("none.txt")));

  Choose({"PDATA"});
  namespace fs = std::filesystem;
  const fs::path kept = workspace.Native("notes.txt");
  fs::permissions(kept, fs::perms::owner_read);
  InNextDialog([this, &box](QWidget& dialog) {
    InNextDialog([this, &box](QWidget& overwrite) {
      TakeBox(box);
      QTest::mouseClick(dynamic_cast<QMessageBox&>(overwrite).button(QMessageBox::Yes), Qt::LeftButton);
    });
    NameFile(dialog, "notes.txt");
  });
  ASSERT_TRUE(Menu("Test|Capture..."));
  ASSERT_TRUE(Until([this] { return Answered(); }));
  Settle();
  EXPECT_THAT(box, HasSubstr("notes.txt can't be written"));
  EXPECT_EQ(Read("notes.txt"), "no snapshot\n");
}

TEST_F(TestMenu, RegistersAreReadFromATargetThatStandsStill) {
  for (const char* const away : {"Run", "Disconnect"}) {
    ASSERT_TRUE(Menu(QStringLiteral("Debug|") + away));
    EXPECT_FALSE(Menu("Test|Capture...")) << away;
    EXPECT_FALSE(Menu("Test|Compare...")) << away;
    if (Menu("Debug|Stop")) continue;
  }
  Choose({"PDATA"});
}

}  // namespace
}  // namespace ioview::test
