#include "platform/qt/area_peers.h"

#include <QtCore/qmetaobject.h>
#include <QtCore/qobject.h>
#include <QtGui/qevent.h>
#include <QtGui/qpainter.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qframe.h>
#include <QtWidgets/qscrollbar.h>

#include <algorithm>
#include <cstdint>

#include "platform/base/app.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"
#include "platform/qt/qt_dc.h"

namespace platform::qt {

namespace {

// Shows what its window draws.
class AreaWidget final : public QWidget {
 public:
  AreaWidget(WidgetPeer& peer, QWidget* parent, Qt::WindowFlags flags = {})
      : QWidget(parent, flags), m_peer(&peer) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    CWnd* window = m_peer != nullptr ? m_peer->window : nullptr;
    if (window == nullptr) return;
    QPainter painter(this);
    const RECT clip = FromQt(event->rect());
    Guarded([&] {
      QtDC dc(painter, clip);
      window->Paint(dc, clip);
    });
  }

 private:
  const QPointer<WidgetPeer> m_peer;
};

}  // namespace

// A dialog that has just closed counts as active until the next event.
QWidget* ActiveWindow() {
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active->isVisible()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const CWnd* main = CWnd::FromHandle(GetMainWindow());
  const auto* peer = main != nullptr ? dynamic_cast<const WidgetPeer*>(main->GetPeer()) : nullptr;
  return peer != nullptr && peer->Outer() != nullptr ? peer->Outer()->window() : nullptr;
}

void ActivateAgain(QWidget* before) {
  const QWidget* active = QApplication::activeWindow();
  if ((active != nullptr && active->isVisible()) ||
      QApplication::applicationState() != Qt::ApplicationActive) {
    return;
  }
  QWidget* modal = QApplication::activeModalWidget();
  if (QWidget* next = modal != nullptr ? modal : before) next->activateWindow();
}

// Plain windows ------------------------------------------------------------------------------------------

AreaPeer::AreaPeer(CWnd& owner, QWidget* parent) : WidgetPeer(owner) {
  auto* widget = new AreaWidget(*this, parent);
  Adopt(widget, widget);
}

void AreaPeer::ShowPart(Part part) {
  if (part == Part::Text && Outer()->isWindow()) Outer()->setWindowTitle(ToQt(window->GetText()));
}

// Dialogs ------------------------------------------------------------------------------------------------

DialogPeer::DialogPeer(CWnd& owner, QWidget* behind) : WidgetPeer(owner) {
  auto* widget = new AreaWidget(*this, behind != nullptr ? behind->window() : nullptr,
                                Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                    Qt::WindowCloseButtonHint | Qt::WindowContextHelpButtonHint);
  widget->setWindowModality(Qt::ApplicationModal);
  Adopt(widget, widget);
}

void DialogPeer::ShowRect() {
  Outer()->setFixedSize(window->GetRect().Width(), window->GetRect().Height());
}

void DialogPeer::ShowPart(Part part) {
  if (part == Part::Text) Outer()->setWindowTitle(ToQt(window->GetText()));
  if (part != Part::Shown || !window->IsVisible()) return;
  m_active_before = ActiveWindow();
  if (const QWidget* behind = Outer()->parentWidget()) {
    Outer()->move(behind->frameGeometry().center() - Outer()->rect().center());
  }
}

bool DialogPeer::OnOther(QWidget& receiver, QEvent& event) {
  if (&receiver != Outer() || event.type() != QEvent::Close) return false;
  // The dialog's answer is a flag of its own; its window goes when its loop has returned.
  event.ignore();
  window->Send(WM_CLOSE);
  return true;
}

void DialogPeer::Close() {
  WidgetPeer::Close();
  ActivateAgain(m_active_before);
}

// Grids --------------------------------------------------------------------------------------------------

GridPeer::GridPeer(CWnd& owner, QWidget* parent)
    : WidgetPeer(owner),
      m_frame(new QFrame(parent)),
      m_across(new QScrollBar(Qt::Horizontal, m_frame)),
      m_down(new QScrollBar(Qt::Vertical, m_frame)) {
  if ((owner.GetExStyle() & WS_EX_CLIENTEDGE) != 0)
    m_frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  auto* view = new AreaWidget(*this, m_frame);
  view->setAttribute(Qt::WA_OpaquePaintEvent);
  for (QScrollBar* bar : {m_across, m_down}) {
    bar->setFocusPolicy(Qt::NoFocus);
    bar->hide();
    const UINT message = bar == m_down ? WM_VSCROLL : WM_HSCROLL;
    connect(bar, &QScrollBar::valueChanged, this, [this, message](int value) {
      Guarded([&] {
        if (window != nullptr) window->Send(message, static_cast<WPARAM>(value));
      });
    });
  }
  Adopt(m_frame, view);
  m_made = true;
}

SECTreeCtrl& GridPeer::Grid() const {
  return static_cast<SECTreeCtrl&>(*window);
}

void GridPeer::ShowRect() {
  if (!IsHosted()) {
    m_at = {window->GetRect().left, window->GetRect().top};
    m_frame->setGeometry(ToQt(window->GetRect()));
  }
  // The window hears of no size before it hears that it is made.
  if (m_made) {
    LayOut();
  } else {
    SyncLater();
  }
}

void GridPeer::ShowPart(Part part) {
  if (part == Part::Scroll) SyncLater();
}

bool GridPeer::OnOther(QWidget& receiver, QEvent& event) {
  if (&receiver == m_frame && event.type() == QEvent::Resize && IsHosted()) {
    SyncLater();
    return false;
  }
  return &receiver != m_frame ? false : event.type() == QEvent::Close && WidgetPeer::OnOther(receiver, event);
}

// Many rows may come and go before the bars are looked at.
void GridPeer::SyncLater() {
  if (m_sync_waits) return;
  m_sync_waits = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        m_sync_waits = false;
        Guarded([this] {
          if (window != nullptr && Outer() != nullptr) LayOut();
        });
      },
      Qt::QueuedConnection);
}

void GridPeer::LayOut() {
  const SECTreeCtrl& grid = Grid();
  const QRect room = m_frame->contentsRect();
  std::int64_t width = 0;
  if (grid.IsHeaderShown()) {
    for (int column = 0; column < grid.GetColumnCount(); ++column) width += grid.GetColumnWidth(column);
  }
  const std::int64_t height =
      grid.GetHeaderHeight() + static_cast<std::int64_t>(grid.GetRowCount()) * grid.GetLineHeight();
  const int thick = m_down->sizeHint().width();
  bool down = height > room.height();
  const bool across = width > room.width() - (down ? thick : 0);
  down = down || height > room.height() - (across ? thick : 0);
  const QRect view = room.adjusted(0, 0, down ? -thick : 0, across ? -thick : 0);
  Inner()->setGeometry(view);
  m_down->setGeometry(view.right() + 1, room.top(), thick, view.height());
  m_across->setGeometry(room.left(), view.bottom() + 1, view.width(), thick);
  m_down->setVisible(down);
  m_across->setVisible(across);
  const POINT at{m_at.x + view.x(), m_at.y + view.y()};
  window->PeerMoved({at.x, at.y, at.x + std::max(view.width(), 0), at.y + std::max(view.height(), 0)});
  if (window != nullptr) SyncBars();
}

void GridPeer::SyncBars() {
  const SECTreeCtrl& grid = Grid();
  const QSignalBlocker quiet_down(m_down);
  const QSignalBlocker quiet_across(m_across);
  m_down->setPageStep(grid.GetPageRows());
  m_down->setRange(0, grid.GetScrollMax(true));
  m_down->setValue(grid.GetScrollPos(true));
  m_across->setSingleStep(20);
  m_across->setPageStep(std::max(Inner()->width(), 1));
  m_across->setRange(0, grid.GetScrollMax(false));
  m_across->setValue(grid.GetScrollPos(false));
}

}  // namespace platform::qt
