// Peers of the windows that draw themselves: plain windows, dialogs, and grids with their scroll bars.
#pragma once

#include "platform/qt/widget_peer.h"

class QFrame;
class QScrollBar;

namespace platform {
class SECTreeCtrl;
}

namespace platform::qt {

class AreaPeer : public WidgetPeer {
 public:
  // `parent` null: a window of its own.
  AreaPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowPart(Part part) override;
};

class DialogPeer final : public WidgetPeer {
 public:
  DialogPeer(CWnd& owner, QWidget* behind);
  void Close() override;

 protected:
  void ShowRect() override;
  void ShowPart(Part part) override;
  bool OnOther(QWidget& receiver, QEvent& event) override;

 private:
  QPointer<QWidget> m_active_before;
};

// The client area is what the frame and the scroll bars leave.
class GridPeer final : public WidgetPeer {
 public:
  GridPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowRect() override;
  void ShowPart(Part part) override;
  bool OnOther(QWidget& receiver, QEvent& event) override;

 private:
  SECTreeCtrl& Grid() const;
  void SyncLater();
  void LayOut();
  void SyncBars();

  QFrame* m_frame;
  QScrollBar* m_across;
  QScrollBar* m_down;
  POINT m_at;  // of the frame, in the parent
  bool m_made = false;
  bool m_sync_waits = false;
};

// The active window, else the one that is to be: the modal one on top, the program's main window. Null when
// there is none.
QWidget* ActiveWindow();
// Gives the activation back to `before` when nobody has it after a modal thing has closed.
void ActivateAgain(QWidget* before);

}  // namespace platform::qt
