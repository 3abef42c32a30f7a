// The widgets of one window: its input goes to the layer first, and what the layer leaves goes on to them.
#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtWidgets/qwidget.h>

#include "platform/gui/display.h"
#include "platform/gui/window.h"

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace platform::qt {

// Whether the widget is one of the display's, or inside of one.
bool IsOurs(const QWidget* widget);
void MarkAsOurs(QWidget& widget);

class WidgetPeer : public QObject, public Peer {
 public:
  explicit WidgetPeer(CWnd& owner) : Peer(owner) {}

  // The widget that stands for the whole window, and the one whose coordinates are the client area's; null
  // once they are gone.
  QWidget* Outer() const { return m_outer; }
  QWidget* Inner() const { return m_inner; }

  void Update(Part part) override;
  bool Default(const MSG& msg) override;
  void Close() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

  // Takes the widgets and shows the window as it is. Both belong to the widget of the parent window.
  void Adopt(QWidget* outer, QWidget* inner);
  // Input to this widget is input to the window too.
  void Watch(QWidget* widget);
  // The host lays the widget out, not the layer.
  bool IsHosted() const;

  virtual void ShowRect();
  virtual void ShowPart(Part) {}
  // Whether the widget has a use for the event of this message.
  virtual bool Takes(const MSG&) const { return false; }
  // An event that isn't input; true: it is done with.
  virtual bool OnOther(QWidget& receiver, QEvent& event);
  virtual void OnPressLost() {}
  // Further buttons, and Qt's own context menu, are the widget's.
  virtual bool HasOwnMenu() const { return false; }

 private:
  bool OnEvent(QWidget& receiver, QEvent& event);
  bool OnMouse(QWidget& receiver, QMouseEvent& event);
  bool OnWheel(QWidget& receiver, QWheelEvent& event);
  bool OnKeyPress(QWidget& receiver, QKeyEvent& event);
  bool OnKeyRelease(QWidget& receiver, QKeyEvent& event);
  bool OnShortcutOverride(QKeyEvent& event) const;
  bool OnContextMenu(QWidget& receiver, QContextMenuEvent& event);
  void ShowFocus();

  QPointer<QWidget> m_outer;
  QPointer<QWidget> m_inner;
  int m_wheel_rest = 0;  // hundred-and-twentieths of a line
};

}  // namespace platform::qt
