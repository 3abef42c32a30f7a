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
#include <QtWidgets/qpushbutton.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/app.h"
#include "platform/base/paths.h"
#include "platform/gui/common_dialogs.h"
#include "platform/gui/controls.h"
#include "platform/gui/menu.h"
#include "platform/qt/convert.h"
#include "platform/qt/qt_printer.h"
#include "tests/platform/qt/qt_user.h"

namespace platform {
namespace {

class Main : public CWnd {
 public:
  LRESULT WindowProc(const MSG& msg) override {
    if (msg.message == WM_COMMAND && msg.lParam == 0) commands.push_back(static_cast<UINT>(msg.wParam));
    if (msg.message == WM_SIZE) size = ParamPoint(msg.lParam);
    return CWnd::WindowProc(msg);
  }
  std::vector<UINT> commands;
  POINT size;
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
  std::vector<PopupMenuItem> items(4);
  items[0] = {"&Expand", 32801};
  items[2] = {"&Lock", 32802, true};
  items[3] = {"Columns", 0, false, true, {{"Address", 32803, false, false}, {"Value", 32804, true}}};
  const auto open = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
  std::string seen;
  Later([&] {
    EXPECT_EQ(GetFocus(), edit.GetHandle()) << "the focus stays where it is";
    for (const QAction* action : open()->actions()) {
      seen += action->isSeparator() ? "-;" : qt::FromQt(action->text()) + (action->isChecked() ? " x;" : ";");
    }
    EXPECT_FALSE(open()->actions()[3]->menu()->actions()[0]->isEnabled());
    QTest::keyClick(open(), Qt::Key_Down);
    QTest::keyClick(open(), Qt::Key_Down);
    QTest::keyClick(open(), Qt::Key_Return);
  });
  TrackPopupMenu(main, items, {20, 20});
  EXPECT_EQ(seen, "&Expand;-;&Lock x;Columns;");
  EXPECT_THAT(main.commands, testing::ElementsAre(32802u));
  Later([&] { QTest::keyClick(open(), Qt::Key_Escape); });
  TrackPopupMenu(main, items, {20, 20});
  EXPECT_THAT(main.commands, testing::SizeIs(1));
}

TEST_F(QtDisplayTest, AFileDialogGivesADrivePathWithItsExtensionOrNothing) {
  const QTemporaryDir scratch;
  const std::string directory = FromNativePath(scratch.path().toStdString()).value();
  FileDialogRequest request;
  request.save = true;
  request.default_extension = "txt";
  request.filter = "Text File (*.txt)|*.txt|All Files (*.*)|*.*||";
  request.directory = directory;
  request.name = "dump";
  QStringList filters;
  const auto end = [&](bool accept) {
    Later([&filters, accept] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      filters = dialog->nameFilters();
      QTest::keyClick(dialog, accept ? Qt::Key_Return : Qt::Key_Escape);
    });
  };
  end(true);
  EXPECT_EQ(RunFileDialog(request), directory + "\\dump.txt");
  EXPECT_EQ(filters, QStringList({"Text File (*.txt)", "All Files (*.*)"}));
  end(false);
  EXPECT_EQ(RunFileDialog(request), std::nullopt);
  user::Settle();
  EXPECT_EQ(QApplication::focusWidget(), QtDisplay::WidgetOf(edit)) << "and the focus is back";
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
  for (int page = 0; page < 2; ++page) {
    printer->StartPage();
    printer->TextOut({100, 200}, "PORT");
    printer->EndPage();
  }
  printer->EndDocument();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_NE(file.readAll().indexOf("/Count 2"), -1);

  Later([] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  EXPECT_EQ(RunPrintDialog(), nullptr);
}

TEST_F(QtDisplayTest, ATimerRunsOnInALoopThatItsOwnHandlerRuns) {
  struct Ticking : CWnd {
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_TIMER && ++ticks == 1) MessageBox("Once");
      return CWnd::WindowProc(msg);
    }
    int ticks = 0;
  } ticking;
  ticking.Create({.parent = main.GetHandle()});
  SetTimer(ticking.GetHandle(), 1, 10);
  QTimer::singleShot(120, qApp, [&] {
    EXPECT_GT(ticking.ticks, 3);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
  });
  user::Wait(200);
  EXPECT_GT(ticking.ticks, 3);
  ticking.DestroyWindow();
}

TEST_F(QtDisplayTest, AFailureInAnEventGoesNoFurther) {
  struct Failing : CWnd {
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_LBUTTONDOWN) throw std::runtime_error("no row");
      return CWnd::WindowProc(msg);
    }
  } failing;
  failing.Create({.rect = {0, 50, 50, 90}, .parent = main.GetHandle()});
  user::Click(failing, {5, 5});
  user::Type("a");
  EXPECT_EQ(edit.GetText(), "a") << "and input goes on";
  failing.DestroyWindow();
}

TEST_F(QtDisplayTest, TheInsideOfAnEditIsTheWidgets) {
  auto* line = qobject_cast<QLineEdit*>(QtDisplay::WidgetOf(edit));
  user::Type("PORT");
  QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit.GetText(), "");
  edit.SetText("x\xC3\xA4y");
  line->setCursorPosition(2);
  EXPECT_EQ(edit.GetSelStart(), 3u) << "bytes here, characters there";
  edit.SetSel(1, 3);
  EXPECT_EQ(line->selectedText(), QString::fromUtf8("\xC3\xA4"));
  user::Type("b");
  EXPECT_EQ(edit.GetText(), "xby");
  EXPECT_EQ(edit.GetSelEnd(), 2u);
}

TEST_F(QtDisplayTest, AComboBoxIsPickedFromItsListAndLeftWithoutAPick) {
  CComboBox combo;
  combo.Create({.rect = {5, 40, 200, 64}, .parent = main.GetHandle(), .id = 2});
  for (const char* text : {"100", "200", "300"}) combo.AddString(text);
  SetFocus(combo.GetHandle());
  user::Settle();
  user::Type("200");
  SetFocus(edit.GetHandle());
  user::Settle();
  EXPECT_EQ(combo.GetCurSel(), -1) << "who types a name and leaves picks nothing";
  SetFocus(combo.GetHandle());
  user::Settle();
  combo.SetCurSel(0);
  user::Key(VK_DOWN);
  EXPECT_EQ(combo.GetCurSel(), 1);
  EXPECT_EQ(combo.GetText(), "200");
  combo.DestroyWindow();
}

TEST_F(QtDisplayTest, ControlsOfFourteenUnitsCutNoText) {
  CButton button;
  CComboBox combo;
  const int height = (14 * GetDisplay()->TextExtent({}, "X").cy + 4) / 8;
  button.Create({.rect = {0, 0, 90, height}, .parent = main.GetHandle(), .text = "Cancel"});
  combo.Create({.rect = {0, 0, 90, height}, .parent = main.GetHandle()});
  for (const CWnd* control :
       {static_cast<CWnd*>(&button), static_cast<CWnd*>(&combo), static_cast<CWnd*>(&edit)}) {
    EXPECT_LE(QtDisplay::WidgetOf(*control)->minimumSizeHint().height(), height);
  }
  button.DestroyWindow();
  combo.DestroyWindow();
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

TEST_F(QtHost, TheHostLaysAWindowOutAndTheWindowHearsOfIt) {
  EXPECT_EQ(pane.GetRect().Width(), 300);
  host->resize(400, 250);
  user::Settle();
  EXPECT_EQ(pane.size.x, 400);
  pane.MoveWindow({0, 0, 20, 20});
  EXPECT_EQ(QtDisplay::WidgetOf(pane)->width(), 400) << "the host's layout wins";
}

TEST_F(QtHost, AClickBringsTheUserBackFromAnEditOfTheHost) {
  SetFocus(inside.GetHandle());
  user::Settle();
  QTest::mouseClick(foreign, Qt::LeftButton);
  user::Settle();
  EXPECT_EQ(GetFocus(), 0u);
  QTest::keyClick(foreign, Qt::Key_X);
  EXPECT_EQ(foreign->text(), "x");
  user::Click(inside, {3, 3});
  EXPECT_EQ(GetFocus(), inside.GetHandle());
  EXPECT_EQ(QApplication::focusWidget(), QtDisplay::WidgetOf(inside));
}

TEST_F(QtHost, ItsMenuKeysStayTheHosts) {
  int saved = 0;
  auto* save = new QAction(&*host);
  save->setShortcuts({QKeySequence("Ctrl+S"), QKeySequence("F5"), QKeySequence("S")});
  QObject::connect(save, &QAction::triggered, &*host, [&] { ++saved; });
  host->addAction(save);
  user::Click(inside, {3, 3});
  user::Key('S', MK_CONTROL);
  QTest::keyClick(QtDisplay::WidgetOf(inside), Qt::Key_F5);
  EXPECT_EQ(saved, 2);
  user::Type("s");
  EXPECT_EQ(saved, 2) << "a plain key is ours";
  EXPECT_EQ(inside.GetText(), "s");
}

TEST_F(QtHost, AWindowLivesOnWithoutThePictureThatTheHostDeleted) {
  host.reset();
  user::Settle();
  EXPECT_TRUE(pane.Exists());
  EXPECT_EQ(QtDisplay::WidgetOf(pane), nullptr);
  inside.SetText("F");
  EXPECT_EQ(inside.GetText(), "F");
  CEdit late;
  EXPECT_TRUE(late.Create({.parent = pane.GetHandle()}));
  late.DestroyWindow();
}

}  // namespace
}  // namespace platform
