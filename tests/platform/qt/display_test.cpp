// What the display itself shows, the tree grid on it, and how windows live in the widgets of a host.

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qtimer.h>
#include <QtGui/qaction.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qimage.h>
#include <QtPrintSupport/qprinter.h>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qfiledialog.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qscrollbar.h>
#include <gtest/gtest.h>

#include "platform/base/app.h"
#include "platform/base/paths.h"
#include "platform/gui/common_dialogs.h"
#include "platform/gui/controls.h"
#include "platform/gui/list_edit.h"
#include "platform/gui/menu.h"
#include "platform/qt/picture.h"
#include "platform/qt/qt_printer.h"
#include "tests/platform/gui/tree_text.h"
#include "tests/platform/qt/qt_user.h"

namespace platform {
namespace {

// Notes what it is told.
class Main : public CWnd {
 public:
  LRESULT WindowProc(const MSG& msg) override {
    if (msg.message == WM_COMMAND && msg.lParam == 0) story += std::to_string(msg.wParam) + ";";
    if (msg.message == WM_RBUTTONDOWN) throw std::runtime_error("no row");
    if (msg.message == WM_CONTEXTMENU) story += "menu;";
    if (msg.message != WM_NOTIFY) return CWnd::WindowProc(msg);
    const UINT code = reinterpret_cast<const NMHDR*>(msg.lParam)->code;
    if (code == NM_CLICK) story += "click;";
    if (code == TVN_BEGINDRAG) story += "drag;";
    return 0;
  }
  std::string story;
};

class QtDisplayTest : public testing::Test {
 protected:
  QtDisplayTest() {
    SetDisplay(&display);
    display.SetNativeDialogs(false);
    main.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {0, 0, 600, 400}});
    edit.Create({.rect = {5, 5, 200, 29}, .parent = main.GetHandle(), .id = 1});
    SetMainWindow(main.GetHandle());
    QtDisplay::WidgetOf(main)->activateWindow();
    SetFocus(edit.GetHandle());
    user::Settle();
  }
  void TearDown() override { main.DestroyWindow(); }
  ~QtDisplayTest() override {
    SetMainWindow(0);
    user::Settle();
    SetDisplay(nullptr);
  }
  static void Later(std::function<void()> then) { QTimer::singleShot(20, qApp, std::move(then)); }

  QtDisplay display;
  Main main;
  CEdit edit;
};

TEST_F(QtDisplayTest, AMenuLeavesTheFocusAndSendsWhatIsPickedInASubmenu) {
  std::vector<PopupMenuItem> items(2);
  items[1] = {"&Columns", 0, false, true, {{"Address", 32803, false, false}, {"&Value", 32802, true}}};
  Later([&] {
    EXPECT_EQ(GetFocus(), edit.GetHandle());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const QList<QAction*> entries = menu->actions()[1]->menu()->actions();
    EXPECT_FALSE(entries[0]->isEnabled());
    EXPECT_TRUE(entries[1]->isChecked());
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_V}) {
      QTest::keyClick(QApplication::activePopupWidget(), key);
    }
  });
  TrackPopupMenu(main, items, {20, 20});
  EXPECT_EQ(main.story, "32802;");
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

class QtGrid : public QtDisplayTest {
 protected:
  QtGrid() {
    const std::vector<std::uint32_t> pixels(48 * 16, 0xFF5080D0);
    images.Create(16, 16, 3, pixels, 0xFFFFFF);
    grid.SetGridStyle(SECTreeCtrl::kFullRow);
    grid.SetTreeStyle(SECTreeCtrl::kHasButtons);
    grid.SetRowFont({0, 0, 90, "Courier New"});
    grid.SetImageList(&images);
    grid.Create({.ex_style = WS_EX_CLIENTEDGE, .rect = {0, 30, 560, 320}, .parent = main.GetHandle()});
    grid.SetHeaderShown(true);
    grid.SetColumnWidth(0, 200);
    grid.InsertColumn(1, "Address", TextAlign::Left, 110);
    grid.InsertColumn(2, "Value", TextAlign::Right, 90);
    FillTree(grid, "-PORT\n  -PDATA||1F\n    P7 to P4||1\n  PDIR||80\n", items);
    data = items["PDATA"];
    SetFocus(grid.GetHandle());
    user::Settle();
  }
  QScrollBar* Bar(Qt::Orientation way) const {
    for (QScrollBar* bar : QtDisplay::WidgetOf(grid)->parentWidget()->findChildren<QScrollBar*>()) {
      if (bar->orientation() == way) return bar;
    }
    return nullptr;
  }

  CImageList images;
  SECTreeCtrl grid;
  ItemsByName items;
  HTREEITEM data = 0;
};

bool Shows(const QImage& image, const RECT& rect, const QColor& colour) {
  for (int y = rect.top; y < rect.bottom; ++y) {
    for (int x = rect.left; x < rect.right; ++x) {
      if (image.pixelColor(x, y) == colour) return true;
    }
  }
  return false;
}

TEST_F(QtGrid, APictureOfItShowsTheSelectionAndTheRowsImages) {
  grid.SelectItem(data);
  user::Settle();
  const QTemporaryDir scratch;
  const std::string path = scratch.filePath("grid.png").toStdString();
  ASSERT_TRUE(SavePicture(grid, path));
  EXPECT_FALSE(SavePicture(grid, "/nonexistent/grid.png"));
  const QImage image(QString::fromStdString(path));

  // The picture has the frame around the client area.
  const auto shows = [&](const RECT& r, const QColor& colour) {
    return Shows(image, {r.left + 1, r.top + 1, r.right, r.bottom}, colour);
  };
  EXPECT_TRUE(shows(grid.GetCellRect(data, 1), QApplication::palette().color(QPalette::Highlight)));
  EXPECT_TRUE(shows(grid.GetCellRect(items["PORT"], 0), QColor(0x50, 0x80, 0xD0))) << "the row's image";
}

TEST_F(QtGrid, EachHandOfTheUserReachesTheOwnerOrTheRows) {
  const auto middle = [&](HTREEITEM item) { return MiddleOf(grid.GetCellRect(item, 0)); };
  user::Click(grid, middle(data), true);
  user::Drag(grid, middle(items["PDIR"]), middle(items["PORT"]));
  EXPECT_EQ(main.story, "menu;click;drag;");

  grid.SelectItem(data);
  user::Type("-");
  EXPECT_FALSE(grid.IsExpanded(data));
  user::Type("+pd");
  EXPECT_TRUE(grid.IsExpanded(data));
  EXPECT_EQ(grid.GetSelectedItem(), items["PDIR"]) << "the letters go to the next that begins with them";
  user::Key(VK_TAB);
  EXPECT_EQ(GetFocus(), grid.GetHandle()) << "outside of a dialog Tab leads nowhere";

  ASSERT_TRUE(grid.EditCell(data, 2));
  EXPECT_EQ(QtDisplay::WidgetOf(*grid.GetListEdit())->fontInfo().family(), "Liberation Mono")
      << "the edit has the font of its cell";
}

TEST_F(QtGrid, ScrollBarsComeAndGoWithTheRowsAndTheColumns) {
  const auto bars = [&] {
    return std::pair(Bar(Qt::Horizontal)->isVisible(), Bar(Qt::Vertical)->isVisible());
  };
  const int width = grid.GetClientRect().Width();
  for (int i = 0; i < 200; ++i) grid.InsertItem("R", 1);
  user::Settle();
  ASSERT_EQ(bars(), std::pair(false, true));
  EXPECT_LT(grid.GetClientRect().Width(), width) << "the client area ends at the bar";
  Bar(Qt::Vertical)->setValue(7);
  user::Wheel(grid, {50, 50}, -3);
  EXPECT_EQ(grid.GetScrollPos(true), 10);
  grid.SetColumnWidth(1, 600);
  user::Settle();
  ASSERT_EQ(bars(), std::pair(true, true));
  EXPECT_EQ(Bar(Qt::Vertical)->value(), 10);
  grid.DeleteAllItems();
  grid.SetColumnWidth(1, 60);
  user::Settle();
  EXPECT_EQ(bars(), std::pair(false, false));
  EXPECT_EQ(grid.GetClientRect().Width(), width);
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
