#include "platform/qt/picture.h"

#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtGui/qpalette.h>
#include <QtGui/qpixmap.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qwidget.h>

#include "platform/gui/controls.h"
#include "platform/qt/convert.h"
#include "platform/qt/qt_dc.h"
#include "platform/qt/widget_peer.h"

namespace platform {

namespace {

// A control has no drawing of its own.
void DrawControl(QPainter& painter, CWnd& window) {
  const QPalette palette = QApplication::palette();
  const QRect rect = qt::ToQt(window.GetClientRect());
  QRect text = rect;
  switch (window.GetKind()) {
    case WindowKind::Edit:
    case WindowKind::ComboBox:
      painter.fillRect(rect, palette.color(QPalette::Mid));
      painter.fillRect(rect.adjusted(1, 1, -1, -1), palette.color(QPalette::Base));
      text.adjust(4, 0, -4, 0);
      break;
    case WindowKind::Button:
      painter.fillRect(rect, palette.color(QPalette::Mid));
      painter.fillRect(rect.adjusted(1, 1, -1, -1), palette.color(QPalette::Button));
      break;
    case WindowKind::CheckBox: {
      constexpr int kBox = 13;
      const int top = (rect.height() - kBox) / 2;
      qt::QtDC(painter, window.GetClientRect())
          .CheckBox({0, top, kBox, top + kBox}, static_cast<CCheckBox&>(window).GetCheck());
      text.adjust(kBox + 5, 0, 0, 0);
      break;
    }
    case WindowKind::Progress: {
      const auto& progress = static_cast<CProgress&>(window);
      QRect done = rect;
      done.setWidth(
          static_cast<int>(qint64{rect.width()} * progress.GetPos() / std::max(progress.GetRange(), 1)));
      painter.fillRect(rect, palette.color(QPalette::Base));
      painter.fillRect(done, palette.color(QPalette::Highlight));
      return;
    }
    default:
      break;
  }
  const int across = window.GetKind() == WindowKind::Button ? Qt::AlignHCenter : Qt::AlignLeft;
  painter.setFont(qt::FontOf({}));
  painter.setPen(palette.color(QPalette::Text));
  painter.drawText(text, across | Qt::AlignVCenter | Qt::TextShowMnemonic, qt::ToQt(window.GetText()));
}

void Draw(QPainter& painter, CWnd& window) {
  const RECT area = window.GetClientRect();
  painter.setClipRect(qt::ToQt(area), Qt::IntersectClip);
  const WindowKind kind = window.GetKind();
  if (kind == WindowKind::Plain || kind == WindowKind::Dialog || kind == WindowKind::Grid) {
    qt::QtDC dc(painter, area);
    window.Paint(dc, area);
  } else {
    DrawControl(painter, window);
  }
  for (CWnd* child : window.GetChildren()) {
    if (!child->IsVisible() || child->GetRect().IsEmpty()) continue;
    painter.save();
    painter.translate(child->GetRect().left, child->GetRect().top);
    Draw(painter, *child);
    painter.restore();
  }
}

}  // namespace

bool SavePicture(CWnd& window, const std::string& native_path) {
  const QString path = QString::fromStdString(native_path);
  if (const auto* peer = dynamic_cast<qt::WidgetPeer*>(window.GetPeer())) {
    return peer->Outer() != nullptr && peer->Outer()->grab().save(path, "PNG");
  }
  const RECT area = window.GetClientRect();
  if (area.IsEmpty()) return false;
  QImage image(area.Width(), area.Height(), QImage::Format_RGB32);
  if (image.isNull()) return false;
  image.fill(QApplication::palette().color(QPalette::Window));
  QPainter painter(&image);
  Draw(painter, window);
  painter.end();
  return image.save(path, "PNG");
}

}  // namespace platform
