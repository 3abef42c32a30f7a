#include "platform/qt/widget_peer.h"

#include <QtCore/qvariant.h>
#include <QtGui/qevent.h>
#include <QtWidgets/qapplication.h>

#include <utility>

#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace platform::qt {

namespace {

constexpr char kOurs[] = "pvw_window";

// An event while the layer looks at it. The widget gets it once, however often it is asked for.
struct Handling {
  Handling(QEvent& the_event, QWidget& the_receiver)
      : event(&the_event), receiver(&the_receiver), outer(std::exchange(current, this)) {}
  Handling(const Handling&) = delete;
  Handling& operator=(const Handling&) = delete;
  ~Handling() { current = outer; }

  static Handling* Of(const void* native) {
    Handling* handling = current;
    while (handling != nullptr && handling->event != native) handling = handling->outer;
    return handling;
  }

  QEvent* const event;
  const QPointer<QWidget> receiver;
  bool given = false;
  bool taken = false;

 private:
  static Handling* current;
  Handling* const outer;
};
Handling* Handling::current = nullptr;

UINT MessageOf(const QMouseEvent& event) {
  const bool left = event.button() == Qt::LeftButton;
  if (event.type() == QEvent::MouseMove) return WM_MOUSEMOVE;
  if (!left && event.button() != Qt::RightButton) return 0;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      return left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN;
    case QEvent::MouseButtonDblClick:
      return left ? WM_LBUTTONDBLCLK : WM_RBUTTONDOWN;
    default:
      return left ? WM_LBUTTONUP : WM_RBUTTONUP;
  }
}

bool IsInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool IsOurs(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
    if (widget->property(kOurs).isValid()) return true;
  }
  return false;
}

void MarkAsOurs(QWidget& widget) {
  widget.setProperty(kOurs, true);
}

void WidgetPeer::Adopt(QWidget* outer, QWidget* inner) {
  m_outer = outer;
  m_inner = inner;
  MarkAsOurs(*outer);
  Watch(inner);
  if (outer != inner) Watch(outer);
  connect(outer, &QObject::destroyed, this, [this] {
    if (CWnd* gone = std::exchange(window, nullptr)) gone->PeerGone();
    deleteLater();
  });
  for (const Part part : {Part::Rect, Part::Enabled, Part::Items, Part::Text, Part::Position, Part::Selection,
                          Part::Scroll, Part::Shown}) {
    Update(part);
  }
}

void WidgetPeer::Watch(QWidget* widget) {
  widget->setFocusPolicy(Qt::NoFocus);
  widget->installEventFilter(this);
}

bool WidgetPeer::IsHosted() const {
  return window->GetParent() == nullptr && m_outer != nullptr && !m_outer->isWindow();
}

void WidgetPeer::Update(Part part) {
  if (window == nullptr || m_outer == nullptr) return;
  switch (part) {
    case Part::Rect:
      ShowRect();
      break;
    case Part::Shown:
      ShowPart(part);
      m_outer->setVisible(window->IsVisible());
      break;
    case Part::Enabled:
      m_outer->setEnabled(window->IsEnabled());
      break;
    case Part::Focus:
      ShowFocus();
      break;
    case Part::Paint:
      m_inner->update();
      break;
    default:
      ShowPart(part);
      break;
  }
}

void WidgetPeer::ShowRect() {
  if (!IsHosted()) m_outer->setGeometry(ToQt(window->GetRect()));
}

void WidgetPeer::ShowFocus() {
  if (GetFocus() == window->GetHandle()) {
    m_inner->setFocus(Qt::OtherFocusReason);
  } else if (m_inner->hasFocus()) {
    m_inner->clearFocus();
  }
}

void WidgetPeer::Close() {
  window = nullptr;
  if (m_outer == nullptr) return;
  m_outer->disconnect(this);
  m_outer->hide();
  m_outer->deleteLater();
  deleteLater();
}

bool WidgetPeer::Default(const MSG& msg) {
  Handling* handling = Handling::Of(msg.native);
  if (handling == nullptr || m_inner == nullptr) return false;
  if (handling->given) return handling->taken;
  const bool key = msg.message == WM_KEYDOWN || msg.message == WM_KEYUP || msg.message == WM_CHAR;
  QWidget* receiver = key ? m_inner.data() : handling->receiver.data();
  if (receiver == nullptr || !Takes(msg)) return false;
  handling->given = true;
  handling->event->accept();
  static_cast<QObject*>(receiver)->event(handling->event);
  handling->taken = handling->event->isAccepted();
  return handling->taken;
}

bool WidgetPeer::eventFilter(QObject* object, QEvent* event) {
  if (window == nullptr) return IsInput(*event);
  bool done = false;
  Guarded([&] { done = OnEvent(*static_cast<QWidget*>(object), *event); });
  return done;
}

bool WidgetPeer::OnEvent(QWidget& receiver, QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return OnMouse(receiver, static_cast<QMouseEvent&>(event));
    case QEvent::Wheel:
      return OnWheel(receiver, static_cast<QWheelEvent&>(event));
    case QEvent::KeyPress:
      return OnKeyPress(receiver, static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
      return OnKeyRelease(receiver, static_cast<QKeyEvent&>(event));
    case QEvent::ShortcutOverride:
      return OnShortcutOverride(static_cast<QKeyEvent&>(event));
    case QEvent::ContextMenu:
      return OnContextMenu(receiver, static_cast<QContextMenuEvent&>(event));
    case QEvent::QueryWhatsThis:
      event.accept();
      return true;
    case QEvent::WhatsThis: {
      const HELPINFO info{HELPINFO_WINDOW, window->GetId(), window->GetHandle()};
      window->Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
      return true;
    }
    default:
      return OnOther(receiver, event);
  }
}

bool WidgetPeer::OnOther(QWidget& receiver, QEvent& event) {
  if (&receiver != m_outer) return false;
  if (event.type() == QEvent::Resize && (IsHosted() || m_outer->isWindow())) {
    const RECT& rect = window->GetRect();
    const QSize size = static_cast<QResizeEvent&>(event).size();
    window->PeerMoved({rect.left, rect.top, rect.left + size.width(), rect.top + size.height()});
  } else if (event.type() == QEvent::Close && m_outer->isWindow()) {
    const HWND handle = window->GetHandle();
    window->Send(WM_CLOSE);
    event.setAccepted(!IsWindow(handle));
    return true;
  }
  return false;
}

bool WidgetPeer::OnMouse(QWidget& receiver, QMouseEvent& event) {
  const UINT message = MessageOf(event);
  if (message == 0) return !HasOwnMenu();
  const QPoint at = receiver.mapTo(m_inner, event.position().toPoint());
  const bool press = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
  // Widgets take no focus by themselves, so a press may be all that tells of the user's return.
  if (press) gui::Activate(true);
  if (window == nullptr) return true;
  MSG msg{window->GetHandle(),          message, 0,
          PointParam({at.x(), at.y()}), &event,  ModifiersOf(event.modifiers())};
  const Handling handling(event, receiver);
  const bool taken = gui::Input(msg);
  if (event.type() == QEvent::MouseButtonRelease && !handling.given) OnPressLost();
  if (message == WM_RBUTTONUP && !taken && !HasOwnMenu()) {
    msg.message = WM_CONTEXTMENU;
    gui::Input(msg);
  }
  event.accept();
  return true;
}

bool WidgetPeer::OnWheel(QWidget& receiver, QWheelEvent& event) {
  const int turned = event.angleDelta().y();
  if ((turned < 0) != (m_wheel_rest < 0)) m_wheel_rest = 0;
  m_wheel_rest += turned * QApplication::wheelScrollLines();
  const int lines = m_wheel_rest / QWheelEvent::DefaultDeltasPerStep;
  m_wheel_rest %= QWheelEvent::DefaultDeltasPerStep;
  if (lines != 0) {
    const QPoint at = receiver.mapTo(m_inner, event.position().toPoint());
    const Handling handling(event, receiver);
    gui::Input({window->GetHandle(), WM_MOUSEWHEEL, static_cast<WPARAM>(std::intptr_t{lines}),
                PointParam({at.x(), at.y()}), &event, ModifiersOf(event.modifiers())});
  }
  event.accept();
  return true;
}

bool WidgetPeer::OnKeyPress(QWidget& receiver, QKeyEvent& event) {
  const UINT modifiers = ModifiersOf(event.modifiers());
  const bool for_host = GetFocus() == 0;
  const Handling handling(event, receiver);
  const bool taken = gui::Input({0, WM_KEYDOWN, KeyOf(event), 0, &event, modifiers});
  if (for_host) return taken;
  if (!taken) {
    for (const char32_t c : TypedBy(event)) gui::Input({0, WM_CHAR, c, 0, &event, modifiers});
  }
  // A widget that ignored it would pass it on to its parent, which would hand it over again.
  event.accept();
  return true;
}

bool WidgetPeer::OnKeyRelease(QWidget& receiver, QKeyEvent& event) {
  if (event.isAutoRepeat()) return true;
  const bool for_host = GetFocus() == 0;
  const Handling handling(event, receiver);
  const bool taken = gui::Input({0, WM_KEYUP, KeyOf(event), 0, &event, ModifiersOf(event.modifiers())});
  if (for_host) return taken;
  event.accept();
  return true;
}

// Plain keys are ours, and Alt in dialogs; the rest of the menu's keys stays the host's.
bool WidgetPeer::OnShortcutOverride(QKeyEvent& event) const {
  const UINT modifiers = ModifiersOf(event.modifiers());
  const bool function_key = event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35;
  const bool plain = (modifiers & (MK_CONTROL | MK_ALT)) == 0 && !function_key;
  const bool in_dialog = window->GetTopLevelParent()->GetKind() == WindowKind::Dialog;
  if (GetFocus() == 0 || (!plain && !(in_dialog && modifiers == MK_ALT))) return false;
  event.accept();
  return true;
}

bool WidgetPeer::OnContextMenu(QWidget& receiver, QContextMenuEvent& event) {
  if (HasOwnMenu()) return false;
  // The mouse's was made of the button already.
  if (event.reason() == QContextMenuEvent::Mouse) return true;
  const QPoint at = receiver.mapTo(m_inner, event.pos());
  gui::Input({window->GetHandle(), WM_CONTEXTMENU, 0, PointParam({at.x(), at.y()}), &event, 0});
  event.accept();
  return true;
}

}  // namespace platform::qt
