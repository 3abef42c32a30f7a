#include "platform/qt/qt_display.h"

#include <QtCore/qeventloop.h>
#include <QtCore/qtimer.h>
#include <QtGui/qevent.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qpalette.h>
#include <QtGui/qwindow.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qlayout.h>
#include <QtWidgets/qwhatsthis.h>
#include <QtWidgets/qwidget.h>

#include <algorithm>

#include "platform/gui/window.h"
#include "platform/qt/area_peers.h"
#include "platform/qt/control_peers.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace platform {

namespace {

QWidget* Container(const std::function<QWidget*(const CWnd&)>& find, const CWnd& window) {
  if (const CWnd* parent = window.GetParent()) return QtDisplay::WidgetOf(*parent);
  return find && window.GetKind() != WindowKind::Dialog ? find(window) : nullptr;
}

qt::WidgetPeer* MakePeer(CWnd& window, QWidget* parent) {
  switch (window.GetKind()) {
    case WindowKind::Plain:
      return new qt::AreaPeer(window, parent);
    case WindowKind::Grid:
      return new qt::GridPeer(window, parent);
    case WindowKind::Dialog: {
      const CWnd* owner = CWnd::FromHandle(window.GetOwner());
      return new qt::DialogPeer(window, owner != nullptr ? QtDisplay::WidgetOf(*owner) : nullptr);
    }
    case WindowKind::Edit:
      return new qt::EditPeer(window, parent);
    case WindowKind::Button:
    case WindowKind::CheckBox:
      return new qt::ButtonPeer(window, parent);
    case WindowKind::ComboBox:
      return new qt::ComboPeer(window, parent);
    case WindowKind::Static:
      return new qt::LabelPeer(window, parent);
    case WindowKind::Progress:
      return new qt::ProgressPeer(window, parent);
  }
  return nullptr;
}

}  // namespace

QtDisplay::QtDisplay() {
  QObject::connect(qApp, &QApplication::focusChanged, &m_here, [this] { LookAtFocusLater(); });
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &m_here, [this] { LookAtFocusLater(); });
  QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &m_here, [this] { LookAtFocusLater(); });
}

QtDisplay::~QtDisplay() {
  // Widgets that were to be freed later.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget* QtDisplay::WidgetOf(const CWnd& window) {
  const auto* peer = dynamic_cast<const qt::WidgetPeer*>(window.GetPeer());
  return peer != nullptr ? peer->Inner() : nullptr;
}

Peer* QtDisplay::CreatePeer(CWnd& window) {
  QWidget* parent = Container(m_container, window);
  // Whose parent has lost its widget has no picture either.
  if (window.GetParent() != nullptr && parent == nullptr) return nullptr;
  qt::WidgetPeer* peer = MakePeer(window, parent);
  if (window.GetParent() == nullptr && parent != nullptr && parent->layout() != nullptr) {
    parent->layout()->addWidget(peer->Outer());
  }
  return peer;
}

// Loops --------------------------------------------------------------------------------------------------

void QtDisplay::RunUntil(const std::function<void()>& opened, const bool& done) {
  QEventLoop loop;
  // Also when `opened` throws; the next outer loop may have been told to end meanwhile.
  struct Entry {
    Entry(QtDisplay& its_display, Loop entered) : display(its_display) { display.m_loops.push_back(entered); }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    ~Entry() {
      display.m_loops.pop_back();
      display.LoopEnded();
    }
    QtDisplay& display;
  };
  const Entry entry(*this, {&loop, &done});
  opened();
  // What was posted before is served by this loop from now on.
  Wake();
  if (!done) loop.exec();
}

void QtDisplay::RunLoop(CWnd&, const std::function<void()>& opened, const bool& done) {
  RunUntil(opened, done);
}

void QtDisplay::LoopEnded() {
  if (!m_loops.empty() && *m_loops.back().done) m_loops.back().loop->quit();
}

void QtDisplay::Wake() {
  if (m_wakes.exchange(true)) return;
  QMetaObject::invokeMethod(
      &m_here,
      [this] {
        m_wakes = false;
        qt::Guarded([] { gui::RunPending(); });
      },
      Qt::QueuedConnection);
}

// Focus --------------------------------------------------------------------------------------------------

void QtDisplay::LookAtFocusLater() {
  if (m_looks_at_focus) return;
  m_looks_at_focus = true;
  QMetaObject::invokeMethod(
      &m_here,
      [this] {
        m_looks_at_focus = false;
        qt::Guarded([this] { LookAtFocus(); });
      },
      Qt::QueuedConnection);
}

// While a window closes nobody has the focus and none is active: that says nothing.
void QtDisplay::LookAtFocus() const {
  if (QApplication::activePopupWidget() != nullptr) return;
  if (QApplication::applicationState() != Qt::ApplicationActive) {
    gui::Activate(false);
  } else if (const QWidget* focus = QApplication::focusWidget()) {
    gui::Activate(qt::IsOurs(focus));
  } else if (const QWidget* active = QApplication::activeWindow()) {
    gui::Activate(qt::IsOurs(active));
  }
}

// Timers -------------------------------------------------------------------------------------------------

void QtDisplay::StartTimer(HWND window, UINT id, UINT milliseconds) {
  StopTimer(window, id);
  const TimerKey key(window, id);
  const std::uint64_t number = m_next_timer++;
  auto* timer = new QTimer(&m_here);
  m_timers[key] = {timer, number, false};
  // A timer is silent in a loop that its own handler runs, so the message comes in a call of its own.
  QObject::connect(timer, &QTimer::timeout, &m_here, [this, key, number] {
    const auto state = m_timers.find(key);
    if (state == m_timers.end() || std::exchange(state->second.waits, true)) return;
    QMetaObject::invokeMethod(
        &m_here, [this, key, number] { OnTimer(key, number); }, Qt::QueuedConnection);
  });
  timer->start(static_cast<int>(std::clamp<UINT>(milliseconds, 1, 0x7FFFFFFF)));
}

void QtDisplay::OnTimer(TimerKey key, std::uint64_t number) {
  const auto timer = m_timers.find(key);
  if (timer == m_timers.end() || timer->second.number != number) return;
  timer->second.waits = false;
  qt::Guarded([&] { SendMessage(key.first, WM_TIMER, key.second); });
}

void QtDisplay::StopTimer(HWND window, UINT id) {
  const auto timer = m_timers.find({window, id});
  if (timer == m_timers.end()) return;
  timer->second.timer->stop();
  timer->second.timer->deleteLater();
  m_timers.erase(timer);
}

// Facts and small things ---------------------------------------------------------------------------------

UINT QtDisplay::DoubleClickTime() {
  return static_cast<UINT>(QApplication::doubleClickInterval());
}

SIZE QtDisplay::TextExtent(const LOGFONT& font, std::string_view text) {
  const QFontMetrics metrics(qt::FontOf(font));
  return {metrics.horizontalAdvance(qt::ToQt(text)), metrics.height()};
}

COLORREF QtDisplay::GetColour(SystemColour colour) {
  const QPalette palette = QApplication::palette();
  switch (colour) {
    case SystemColour::Window:
      return qt::ColourOf(palette.color(QPalette::Base));
    case SystemColour::WindowText:
      return qt::ColourOf(palette.color(QPalette::Text));
    case SystemColour::Highlight:
      return qt::ColourOf(palette.color(QPalette::Highlight));
    case SystemColour::HighlightText:
      return qt::ColourOf(palette.color(QPalette::HighlightedText));
    case SystemColour::Face:
      return qt::ColourOf(palette.color(QPalette::Button));
  }
  return 0;
}

void QtDisplay::SetWaitCursor(bool on) {
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void QtDisplay::Beep() {
  QApplication::beep();
}

void QtDisplay::ShowHelp(CWnd&) {
  QWhatsThis::enterWhatsThisMode();
}

}  // namespace platform
