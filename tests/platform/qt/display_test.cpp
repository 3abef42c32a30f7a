// What the display itself shows, and how windows live in the widgets of a host.

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qtimer.h>
#include <QtGui/qaction.h>
#include <QtPrintSupport/qprinter.h>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qfiledialog.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qmenu.h>
#include <gtest/gtest.h>

#include "platform/base/app.h"
#include "platform/base/paths.h"
#include "platform/gui/common_dialogs.h"
#include "platform/gui/controls.h"
#include "platform/gui/menu.h"
#include "platform/qt/qt_printer.h"
#include "tests/platform/qt/qt_user.h"

namespace platform {
namespace {

class Main : public CWnd {
 public:
  LRESULT WindowProc(const MSG& msg) override {
    if (msg.message == WM_COMMAND && msg.lParam == 0) commands.push_back(static_cast<UINT>(msg.wParam));
    if (msg.message == WM_RBUTTONDOWN) throw std::runtime_error("no row");
    return CWnd::WindowProc(msg);
  }
  std::vector<UINT> commands;
};

class QtDisplayTest : public testing::Test {
 protected:
  QtDisplayTest() {
    SetDisplay(&display);
    display.SetNativeDialogs(false);
    main.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {0, 0, 300, 200}});
    edit.Create({.rect = {5, 5, 200, 29}, .parent = main.GetHandle(), .id = 1});
    SetMainWindow(main.GetHandle());
    QtDisplay::WidgetOf(main)->activateWindow();
    SetFocus(edit.GetHandle());
    user::Settle();
  }
  ~QtDisplayTest() override {
    main.DestroyWindow();
    SetMainWindow(0);
    user::Settle();
    SetDisplay(nullptr);
  }
  static void Later(std::function<void()> then) { QTimer::singleShot(20, qApp, std::move(then)); }

  QtDisplay display;
  Main main;
  CEdit edit;
};

TEST_F(QtDisplayTest, AMenuShowsWhatIsCheckedAndDisabledAndSendsWhatIsPicked) {
  std::vector<PopupMenuItem> items(3);
  items[0] = {"Columns", 0, false, true, {{"Address", 32803, false, false}}};
  items[2] = {"&Lock", 32802, true};
  const auto open = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
  Later([&] {
    EXPECT_EQ(GetFocus(), edit.GetHandle()) << "the focus stays where it is";
    const QList<QAction*> actions = open()->actions();
    ASSERT_EQ(actions.size(), 3);
    EXPECT_FALSE(actions[0]->menu()->actions()[0]->isEnabled());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->text(), "&Lock");
    EXPECT_TRUE(actions[2]->isChecked() && !actions[0]->isChecked());
    QTest::keyClick(open(), Qt::Key_Up);
    QTest::keyClick(open(), Qt::Key_Return);
  });
  TrackPopupMenu(main, items, {20, 20});
  EXPECT_EQ(main.commands, std::vector<UINT>{32802});
}

TEST_F(QtDisplayTest, AFileDialogGivesADrivePathWithItsExtensionOrNothing) {
  const QTemporaryDir scratch;
  const std::string directory = FromNativePath(scratch.path().toStdString()).value();
  const FileDialogRequest request{.save = true,
                                  .default_extension = "txt",
                                  .filter = "Text File (*.txt)|*.txt|All Files (*.*)|*.*||",
                                  .directory = directory,
                                  .name = "dump"};
  const auto run = [&](Qt::Key key) {
    Later([key] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->nameFilters(), QStringList({"Text File (*.txt)", "All Files (*.*)"}));
      QTest::keyClick(dialog, key);
    });
    return RunFileDialog(request);
  };
  EXPECT_EQ(run(Qt::Key_Return), directory + "\\dump.txt");
  EXPECT_EQ(run(Qt::Key_Escape), std::nullopt);
}

TEST_F(QtDisplayTest, PagesGoToThePrinter) {
  const QTemporaryDir scratch;
  const QString path = scratch.filePath("pages.pdf");
  const auto on = [](const QString& file) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(file);
    return std::make_unique<qt::QtPrinter>(std::move(printer));
  };
  EXPECT_FALSE(on("/nonexistent/pages.pdf")->StartDocument("IO"));
  const auto printer = on(path);
  ASSERT_TRUE(printer->StartDocument("IO"));
  for (int page = 0; page < 2; ++page) printer->StartPage(), printer->EndPage();
  printer->EndDocument();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_NE(file.readAll().indexOf("/Count 2"), -1);

  Later([] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  EXPECT_EQ(RunPrintDialog(), nullptr);
}

TEST_F(QtDisplayTest, AFailureInAnEventGoesNoFurther) {
  user::Click(main, {5, 100}, true);
  user::Type("a");
  EXPECT_EQ(edit.GetText(), "a") << "and input goes on";
}

// A host with an edit and a button of its own beside ours.
class QtHost : public QtDisplayTest {
 protected:
  QtHost() {
    auto* layout = new QVBoxLayout(&*host);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(foreign = new QLineEdit);
    display.SetContainer([this](const CWnd&) { return &*host; });
    pane.Create({.style = WS_CHILD | WS_VISIBLE, .rect = {0, 0, 10, 10}});
    inside.Create({.rect = {5, 5, 100, 29}, .parent = pane.GetHandle(), .id = 1});
    host->resize(300, 200);
    host->show();
    host->activateWindow();
    user::Settle();
  }
  ~QtHost() override { pane.DestroyWindow(); }

  std::unique_ptr<QWidget> host = std::make_unique<QWidget>();
  QLineEdit* foreign = nullptr;
  Main pane;
  CEdit inside;
};

TEST_F(QtHost, AClickBringsTheUserBackAndMenuKeysStayTheHosts) {
  SetFocus(inside.GetHandle());
  user::Settle();
  QTest::mouseClick(foreign, Qt::LeftButton);
  user::Settle();
  EXPECT_EQ(GetFocus(), 0u);
  user::Click(inside, {3, 3});
  EXPECT_EQ(QApplication::focusWidget(), QtDisplay::WidgetOf(inside));

  int saved = 0;
  QAction save;
  save.setShortcuts({QKeySequence("Ctrl+S"), QKeySequence("F5"), QKeySequence("S")});
  QObject::connect(&save, &QAction::triggered, [&] { ++saved; });
  host->addAction(&save);
  user::Key('S', MK_CONTROL);
  QTest::keyClick(QtDisplay::WidgetOf(inside), Qt::Key_F5);
  user::Type("s");
  EXPECT_EQ(saved, 2);
  EXPECT_EQ(inside.GetText(), "s") << "a plain key is ours";
}

TEST_F(QtHost, TheHostLaysAWindowOutAndMayDeleteThePicture) {
  host->resize(400, 250);
  user::Settle();
  EXPECT_EQ(pane.GetRect().Width(), 400);
  pane.MoveWindow({0, 0, 20, 20});
  EXPECT_EQ(QtDisplay::WidgetOf(pane)->width(), 400) << "the host's layout wins";

  host.reset();
  user::Settle();
  EXPECT_EQ(QtDisplay::WidgetOf(pane), nullptr);
  inside.SetText("F");
  EXPECT_EQ(inside.GetText(), "F") << "the window lives on";
  CEdit late;
  EXPECT_TRUE(late.Create({.parent = pane.GetHandle()}));
  late.DestroyWindow();
}

}  // namespace
}  // namespace platform
