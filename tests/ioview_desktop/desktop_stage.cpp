#include "tests/ioview_desktop/desktop_stage.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qpointer.h>
#include <QtCore/qtimer.h>
#include <QtGui/qaction.h>
#include <QtGui/qevent.h>
#include <QtGui/qimage.h>
#include <QtGui/qpixmap.h>
#include <QtWidgets/qmenubar.h>

#include <fstream>

#include "ioview/memory_file.h"
#include "ioview/script/row_path.h"

namespace ioview::test {

namespace {

constexpr qint64 kPatience = 10'000;  // milliseconds

class Application final : public testing::Environment {
 public:
  void SetUp() override {
    static int count = 1;
    static char name[] = "ioview";
    static char* arguments[] = {name, nullptr};
    application_ = std::make_unique<QApplication>(count, arguments);
    QApplication::setStyle("fusion");
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDoubleClickInterval(50);
  }
  void TearDown() override { application_.reset(); }

 private:
  std::unique_ptr<QApplication> application_;
};
[[maybe_unused]] const testing::Environment* const g_application =
    testing::AddGlobalTestEnvironment(new Application);

QAction* FindEntry(const QWidget& in, const QString& text) {
  for (QAction* const action : in.actions()) {
    if (action->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&')) == text) return action;
  }
  return nullptr;
}

}  // namespace

void Settle() {
  for (int i = 0; i < 4; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

bool Until(const std::function<bool()>& condition) {
  QElapsedTimer clock;
  clock.start();
  while (!condition()) {
    if (clock.elapsed() > kPatience) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }
  return true;
}

DesktopStage::DesktopStage() : settings_file((workspace.Native("user") / "settings.json").string()) {
  for (const char* const name : {"lumen3.io", "lumen2.io"}) {
    std::filesystem::copy_file(std::filesystem::path(SOURCE_DIR) / "examples" / name, workspace.Native(name));
  }
}

DesktopStage::~DesktopStage() {
  desktop.reset();
  Settle();
  EXPECT_TRUE(Answered()) << "a dialog that was to come didn't";
}

void DesktopStage::Start(const std::string& file) {
  desktop.reset();
  desktop = std::make_unique<Desktop>(
      library, Desktop::Places{workspace.Native(file).string(), workspace.Native().string(), settings_file});
  desktop->Display().SetNativeDialogs(false);
  LoadMemoryFile(Host().target, (std::filesystem::path(SOURCE_DIR) / "examples/lumen.mem").string());
  ASSERT_TRUE(desktop->Open(false));
  Settle();
}

void DesktopStage::Quit() {
  Window().close();
  Settle();
  desktop.reset();
}

// Rows --------------------------------------------------------------------------------------------------

platform::HTREEITEM DesktopStage::Row(const std::string& path, PaneIndex pane) {
  return FindRow(Grid(pane), SplitRowPath(path));
}

bool DesktopStage::ShowsRed() {
  const QImage image = platform::QtDisplay::WidgetOf(*Component().View())->grab().toImage();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == QColor(Qt::red)) return true;
    }
  }
  return false;
}

// Hands -------------------------------------------------------------------------------------------------

QString DesktopStage::Bare(QString text) {
  return text.section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&'));
}

QStringList DesktopStage::Entries(const QMenu& menu) {
  QStringList texts;
  for (const QAction* const action : menu.actions()) {
    const QString text = action->isSeparator() ? QStringLiteral("-") : Bare(action->text());
    texts += action->isEnabled() || action->isSeparator() ? text : '(' + text + ')';
  }
  return texts;
}

bool DesktopStage::Pick(QMenu& menu, const QString& text) {
  QAction* const entry = FindEntry(menu, text);
  if (entry == nullptr || !entry->isEnabled()) return false;
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(entry).center());
  return true;
}

bool DesktopStage::Menu(const QString& path) {
  const QStringList texts = path.split(QLatin1Char('|'));
  QMenuBar* const bar = Window().menuBar();
  QAction* const top = FindEntry(*bar, texts.front());
  if (top == nullptr || !top->isEnabled()) return false;
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(top).center());
  QMenu* menu = top->menu();
  EXPECT_TRUE(menu->isVisible());
  bool picked = true;
  for (qsizetype i = 1; i < texts.size() && picked; ++i) {
    QAction* const entry = FindEntry(*menu, texts[i]);
    picked = Pick(*menu, texts[i]);
    if (!picked || entry->menu() == nullptr) continue;
    menu = entry->menu();
    EXPECT_TRUE(Until([menu] { return menu->isVisible(); })) << "it opens after a moment";
  }
  while (QWidget* const open = QApplication::activePopupWidget()) open->close();
  // Nobody else gives the activation back where there is no window manager.
  Window().activateWindow();
  Settle();
  return picked;
}

bool DesktopStage::Click(QToolBar& bar, std::uint32_t command) {
  for (QAction* const action : bar.actions()) {
    if (action->data().toUInt() != command || !action->isEnabled()) continue;
    QTest::mouseClick(bar.widgetForAction(action), Qt::LeftButton);
    Settle();
    return true;
  }
  return false;
}

QToolBar& DesktopStage::PaneBar() {
  return *Window().ViewFrame()->findChild<QToolBar*>();
}

void DesktopStage::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* const focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &Window(), key, modifiers);
  Settle();
}

namespace {

QPoint MiddleOf(const platform::RECT& cell) {
  return {cell.left + cell.Width() / 2, cell.top + cell.Height() / 2};
}

}  // namespace

void DesktopStage::ClickRow(const std::string& path, Qt::MouseButton button, int column) {
  const QPoint at = MiddleOf(Grid().GetCellRect(Row(path), column));
  QTest::mouseClick(platform::QtDisplay::WidgetOf(Grid()), button, {}, at);
  Settle();
}

// As a screen sends it: the second press is another kind of event.
void DesktopStage::DoubleClickCell(const std::string& path, int column) {
  ClickRow(path, Qt::LeftButton, column);
  const QPoint at = MiddleOf(Grid().GetCellRect(Row(path), column));
  QWidget* const widget = platform::QtDisplay::WidgetOf(Grid());
  QMouseEvent press(QEvent::MouseButtonDblClick, at, widget->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                    {});
  QCoreApplication::sendEvent(widget, &press);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
  Settle();
}

void DesktopStage::Type(const QString& text) {
  for (const QChar c : text) {
    if (QWidget* const focus = QApplication::focusWidget()) QTest::keyClicks(focus, QString(c));
  }
}

void DesktopStage::NameFile(QWidget& dialog, const std::string& name) {
  auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (edit == nullptr) return;
  edit->setText(QString::fromStdString(workspace.Native(name).string()));
  QTest::keyClick(edit, Qt::Key_Return);
}

std::string DesktopStage::ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

int DesktopStage::Byte(std::uint32_t address) {
  std::uint8_t byte = 0;
  Host().target.Peek(address, {&byte, 1});
  return byte;
}

void DesktopStage::Press(QWidget& dialog, QDialogButtonBox::StandardButton button) {
  QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

void DesktopStage::TogglePrintButton() {
  InNextDialog([](QWidget& dialog) {
    auto* list = dialog.findChild<QListWidget*>();
    EXPECT_EQ(list->item(3)->text(), "Print");
    list->setCurrentRow(3);
    QTest::keyClick(list, Qt::Key_Space);
    Press(dialog, QDialogButtonBox::Ok);
  });
}

void DesktopStage::TakeBox(std::string& text) {
  InNextDialog([&text](QWidget& dialog) {
    const auto* const box = dynamic_cast<QMessageBox*>(&dialog);
    text = box != nullptr ? box->text().toStdString() : "no box";
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
}

void DesktopStage::WaitFor(std::function<bool()> look) {
  ++answers_;
  auto* const timer = new QTimer(&here_);
  QObject::connect(timer, &QTimer::timeout, timer,
                   [this, timer, look = std::move(look), left = 500]() mutable {
                     const bool done = look();
                     if (!done && --left > 0) return;
                     if (done) --answers_;
                     timer->stop();
                     timer->deleteLater();
                   });
  timer->start(10);
}

// A timer is silent in a loop that its own handler runs, so what the user does comes in a call of its own.
void DesktopStage::InNextDialog(std::function<void(QWidget&)> act) {
  WaitFor([act = std::move(act), below = QPointer<QWidget>(QApplication::activeModalWidget())] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog == below || !dialog->isVisible()) return false;
    QTimer::singleShot(0, dialog, [act, dialog] { act(*dialog); });
    return true;
  });
}

void DesktopStage::InNextPopup(std::function<void(QMenu&)> act) {
  WaitFor([act = std::move(act)] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return false;
    QTimer::singleShot(0, menu, [act, menu] { act(*menu); });
    return true;
  });
}

}  // namespace ioview::test
