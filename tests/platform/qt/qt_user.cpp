#include "tests/platform/qt/qt_user.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qelapsedtimer.h>
#include <QtGui/qevent.h>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <gtest/gtest.h>

#include <map>

#include "platform/gui/window.h"
#include "platform/qt/convert.h"

namespace platform::user {

namespace {

// Qt wants its application before the first widget, and until after the last.
class Application final : public testing::Environment {
 public:
  void SetUp() override {
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    m_application = std::make_unique<QApplication>(count, arguments);
    QApplication::setStyle("fusion");
    QApplication::setDoubleClickInterval(50);
  }
  void TearDown() override { m_application.reset(); }

 private:
  std::unique_ptr<QApplication> m_application;
};
[[maybe_unused]] const testing::Environment* const g_application =
    testing::AddGlobalTestEnvironment(new Application);

Qt::KeyboardModifiers QtModifiers(UINT modifiers) {
  return ((modifiers & MK_SHIFT) != 0 ? Qt::ShiftModifier : Qt::NoModifier) |
         ((modifiers & MK_CONTROL) != 0 ? Qt::ControlModifier : Qt::NoModifier) |
         ((modifiers & MK_ALT) != 0 ? Qt::AltModifier : Qt::NoModifier);
}

Qt::Key QtKey(UINT key) {
  static const std::map<UINT, Qt::Key> keys = {
      {VK_BACK, Qt::Key_Backspace}, {VK_TAB, Qt::Key_Tab}, {VK_RETURN, Qt::Key_Return},
      {VK_ESCAPE, Qt::Key_Escape},  {VK_END, Qt::Key_End}, {VK_HOME, Qt::Key_Home},
      {VK_LEFT, Qt::Key_Left},      {VK_UP, Qt::Key_Up},   {VK_DOWN, Qt::Key_Down},
      {VK_DELETE, Qt::Key_Delete},  {VK_F1, Qt::Key_F1}};
  const auto found = keys.find(key);
  return found != keys.end() ? found->second : static_cast<Qt::Key>(key);
}

void SendKey(QTest::KeyAction action, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) return;
  // By itself: Shift and Control are held, not pressed.
  QTest::simulateEvent(focus, action == QTest::Press, key, modifiers, text, false);
  Settle();
}

QWidget* WidgetAt(CWnd& window) {
  QWidget* widget = QtDisplay::WidgetOf(window);
  EXPECT_NE(widget, nullptr);
  return widget;
}

}  // namespace

void Settle() {
  for (int i = 0; i < 4; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
  }
}

void Wait(UINT milliseconds) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  Settle();
}

void Press(CWnd& window, POINT at, bool right) {
  QTest::mousePress(WidgetAt(window), right ? Qt::RightButton : Qt::LeftButton, {}, QPoint(at.x, at.y));
  Settle();
}

void Release(CWnd& window, POINT at, bool right) {
  QTest::mouseRelease(WidgetAt(window), right ? Qt::RightButton : Qt::LeftButton, {}, QPoint(at.x, at.y));
  Settle();
}

void Click(CWnd& window, POINT at, bool right) {
  Press(window, at, right);
  if (window.Exists()) Release(window, at, right);
}

void Drag(CWnd& window, POINT from, POINT to) {
  Press(window, from);
  QWidget* widget = WidgetAt(window);
  const QPointF where(to.x, to.y);
  QMouseEvent move(QEvent::MouseMove, where, widget->mapToGlobal(where), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(widget, &move);
  Release(window, to);
}

void Wheel(CWnd& window, POINT at, int lines) {
  QWidget* widget = WidgetAt(window);
  const QPointF where(at.x, at.y);
  const int turned = lines * QWheelEvent::DefaultDeltasPerStep / QApplication::wheelScrollLines();
  QWheelEvent wheel(where, widget->mapToGlobal(where), {}, QPoint(0, turned), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(widget, &wheel);
  Settle();
}

void KeyDown(UINT key, UINT modifiers) {
  SendKey(QTest::Press, QtKey(key), {}, QtModifiers(modifiers));
}

void KeyUp(UINT key, UINT modifiers) {
  SendKey(QTest::Release, QtKey(key), {}, QtModifiers(modifiers));
}

void Key(UINT key, UINT modifiers) {
  KeyDown(key, modifiers);
  KeyUp(key, modifiers);
}

void Type(std::string_view text) {
  for (const QChar c : qt::ToQt(text)) {
    const auto key = static_cast<Qt::Key>(c.toUpper().unicode());
    const Qt::KeyboardModifiers modifiers = c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    for (const auto action : {QTest::Press, QTest::Release}) SendKey(action, key, QString(c), modifiers);
  }
}

}  // namespace platform::user
