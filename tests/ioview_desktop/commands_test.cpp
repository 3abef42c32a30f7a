// Each command that the desktop shows, given by mouse or key, with what it does at the host.

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qabstractbutton.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qdialogbuttonbox.h>
#include <QtWidgets/qfiledialog.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qlistwidget.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qmessagebox.h>
#include <QtWidgets/qpushbutton.h>
#include <QtWidgets/qstatusbar.h>
#include <QtWidgets/qtabbar.h>
#include <QtWidgets/qtoolbar.h>

#include "platform/gui/list_edit.h"
#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

constexpr std::uint32_t kRefresh = 32817, kLock = 32826;

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
  EXPECT_EQ(PaneBar().actions()[1]->statusTip(), "Lock Refresh IO View");
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

TEST_F(Commands, ThePanesCommandsRunByMenuToolbarAndContextMenu) {
  OpenRow("PORT");
  Poke(0xFF0041, 0x11);
  ASSERT_TRUE(Click(PaneBar(), kRefresh));
  EXPECT_EQ(Value("PORT/PDATA"), "11");

  ASSERT_TRUE(Menu("Register|Lock Refresh"));
  EXPECT_TRUE(Instance::StateOf(kLock, Component().Pane(PaneIndex::kAll)->GetHandle()).checked);
  EXPECT_TRUE(PaneBar().actions()[1]->isChecked()) << "the button follows the menu";
  Poke(0xFF0041, 0x12);
  Key(Qt::Key_F11);
  EXPECT_EQ(Value("PORT/PDATA"), "11");

  InNextPopup([](QMenu& menu) {
    EXPECT_EQ(Entries(menu),
              QStringList({"Refresh", "Lock Refresh", "-", "Load IO File...", "Select IO Register...", "-",
                           "Print", "Save To File...", "-", "Find...", "(Find Next)", "-", "Toolbar display",
                           "Customize toolbar...", "-", "Allow Docking", "Hide"}));
    EXPECT_TRUE(menu.actions()[1]->isChecked());
    EXPECT_TRUE(Pick(menu, "Lock Refresh"));
  });
  ClickRow("PORT", Qt::RightButton);
  EXPECT_TRUE(Answered());
  EXPECT_EQ(Value("PORT/PDATA"), "12") << "the lock's end reads";

  ASSERT_TRUE(Menu("Register|Toolbar display"));
  EXPECT_FALSE(PaneBar().isVisible());
  EXPECT_FALSE(Menu("Register|Customize toolbar..."));
  ASSERT_TRUE(Menu("Register|Toolbar display"));
  EXPECT_TRUE(PaneBar().isVisible());

  ASSERT_TRUE(Menu("Register|Allow Docking"));
  EXPECT_TRUE(Window().ViewFrame()->isFloating());
  EXPECT_TRUE(Window().centralWidget()->isVisible());
  EXPECT_EQ(Component().View()->dock_state, DockWindow::kFloating);
  Window().ViewFrame()->setFloating(false);
  EXPECT_EQ(Component().View()->dock_state, DockWindow::kDocked) << "the user's own docking counts";
}

TEST_F(Commands, RegisteredKeysWorkAheadOfTheFocusButNotInAnEdit) {
  ClickRow("PORT");
  InNextDialog([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Find");
    QTest::keyClicks(QApplication::focusWidget(), "FF0062");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  Key(Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(Answered());
  EXPECT_EQ(Grid().GetSelectedItem(), Row("TIMER/TCOUNT"));
  EXPECT_TRUE(Until([&] { return PaneBar().actions()[7]->isEnabled(); })) << "Find Next follows by itself";
  InNextDialog([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });  // no more of them
  Key(Qt::Key_F3);
  EXPECT_TRUE(Answered());

  OpenRow("PORT");
  ASSERT_TRUE(Grid().EditCell(Row("PORT/PDATA"), 2));
  Key(Qt::Key_F, Qt::ControlModifier);
  Key(Qt::Key_I, Qt::ControlModifier);
  EXPECT_TRUE(Grid().IsEditing());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  Key(Qt::Key_Escape);
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

  // The frame's toolbar of the main window has the same command.
  ASSERT_TRUE(Menu("Register|Hide"));
  auto* cpu = Window().findChild<QToolBar*>("{WK_TB00000011_CPU}");
  ASSERT_NE(cpu, nullptr);
  EXPECT_EQ(cpu->windowTitle(), "Cpu");
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
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.directory().path().toStdString(), workspace.Native().string());
    files.findChild<QLineEdit*>("fileNameEdit")->setText("lumen2.io");
    QAbstractButton* open = files.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    QTest::mouseClick(open, Qt::LeftButton);
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

}  // namespace
}  // namespace ioview::test
