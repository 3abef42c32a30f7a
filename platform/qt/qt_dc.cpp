#include "platform/qt/qt_dc.h"

#include <QtCore/qpoint.h>
#include <QtCore/qvarlengtharray.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtGui/qpalette.h>
#include <QtWidgets/qapplication.h>

#include <algorithm>

#include "platform/qt/convert.h"

namespace platform::qt {

namespace {

constexpr int kTitleLeft = 6;
constexpr int kTitleRight = 5;

// The colour between two, `part` in a hundred of the second.
QColor Between(const QColor& a, const QColor& b, int part) {
  const auto mix = [part](int from, int to) { return from + (to - from) * part / 100; };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// Of lines and boxes: they step back behind the text.
QColor LineColour() {
  const QPalette palette = QApplication::palette();
  return Between(palette.color(QPalette::Base), palette.color(QPalette::Text), 50);
}

}  // namespace

void QtDC::Fill(const RECT& rect, COLORREF colour) {
  m_painter.fillRect(ToQt(rect.Intersect(m_clip)), ColourOf(colour));
}

void QtDC::Text(const RECT& rect, std::string_view text, COLORREF colour, const LOGFONT& font,
                TextAlign align) {
  if (rect.Intersect(m_clip).IsEmpty()) return;
  const QFont& face = FontOf(font);
  const QFontMetrics metrics(face);
  QString shown = ToQt(text);
  if (metrics.horizontalAdvance(shown) > rect.Width()) {
    shown = metrics.elidedText(shown, Qt::ElideRight, rect.Width());
  }
  const Qt::Alignment across = align == TextAlign::Right    ? Qt::AlignRight
                               : align == TextAlign::Centre ? Qt::AlignHCenter
                                                            : Qt::AlignLeft;
  m_painter.setFont(face);
  m_painter.setPen(ColourOf(colour));
  m_painter.drawText(ToQt(rect), static_cast<int>(across | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

void QtDC::Dots(POINT from, POINT to) {
  constexpr int kStep = 2;
  const bool across = from.y == to.y;
  int at = across ? from.x : from.y;
  const int first = across ? m_clip.left : m_clip.top;
  const int end = std::min(across ? to.x : to.y, across ? m_clip.right : m_clip.bottom);
  if (at < first) at += (first - at + kStep - 1) / kStep * kStep;
  QVarLengthArray<QPoint, 64> dots;
  for (; at < end; at += kStep) dots.append(across ? QPoint(at, from.y) : QPoint(from.x, at));
  if (dots.isEmpty()) return;
  m_painter.setPen(LineColour());
  m_painter.drawPoints(dots.constData(), static_cast<int>(dots.size()));
}

void QtDC::Image(POINT at, const CImageList& images, int index) {
  const std::span<const std::uint32_t> pixels = images.GetImage(index);
  if (pixels.empty()) return;
  const QImage image(reinterpret_cast<const uchar*>(pixels.data()), images.GetWidth(), images.GetHeight(),
                     QImage::Format_ARGB32);
  m_painter.drawImage(QPoint(at.x, at.y), image);
}

void QtDC::Frame(const RECT& rect, const QColor& line, const QColor& inside) {
  m_painter.fillRect(ToQt(rect), line);
  m_painter.fillRect(ToQt(rect).adjusted(1, 1, -1, -1), inside);
}

void QtDC::ExpandBox(const RECT& rect, bool open) {
  if (rect.IsEmpty()) return;
  const QPalette palette = QApplication::palette();
  const QColor ink = palette.color(QPalette::Text);
  Frame(rect, LineColour(), palette.color(QPalette::Base));
  const QPoint middle(rect.left + rect.Width() / 2, rect.top + rect.Height() / 2);
  const int arm = std::min(rect.Width(), rect.Height()) / 2 - 2;
  if (arm < 1) return;
  m_painter.fillRect(middle.x() - arm, middle.y(), 2 * arm + 1, 1, ink);
  if (!open) m_painter.fillRect(middle.x(), middle.y() - arm, 1, 2 * arm + 1, ink);
}

void QtDC::CheckBox(const RECT& rect, bool on) {
  if (rect.IsEmpty()) return;
  const QPalette palette = QApplication::palette();
  Frame(rect, LineColour(), palette.color(QPalette::Base));
  if (!on) return;
  const double unit = std::min(rect.Width(), rect.Height()) / 13.0;
  const auto at = [&](double x, double y) { return QPointF(rect.left + x * unit, rect.top + y * unit); };
  const QPointF tick[] = {at(3, 6.5), at(5.5, 9), at(10, 3.5)};
  m_painter.setRenderHint(QPainter::Antialiasing, true);
  m_painter.setPen(QPen(palette.color(QPalette::Text), 1.8 * unit));
  m_painter.drawPolyline(tick, 3);
  m_painter.setRenderHint(QPainter::Antialiasing, false);
}

void QtDC::Header(const RECT& rect, std::string_view text, const LOGFONT& font) {
  if (rect.IsEmpty()) return;
  const QPalette palette = QApplication::palette();
  const QColor face = palette.color(QPalette::Button);
  const QColor edge = Between(face, palette.color(QPalette::ButtonText), 25);
  m_painter.fillRect(ToQt(rect), face);
  m_painter.fillRect(rect.left, rect.bottom - 1, rect.Width(), 1, edge);
  if (text.empty()) return;
  m_painter.fillRect(rect.right - 1, rect.top + 2, 1, rect.Height() - 4, edge);
  const RECT title{rect.left + kTitleLeft, rect.top, rect.right - kTitleRight, rect.bottom - 1};
  if (!title.IsEmpty()) {
    Text(title, text, ColourOf(palette.color(QPalette::ButtonText)), font, TextAlign::Left);
  }
}

void QtDC::FocusRect(const RECT& rect) {
  if (rect.IsEmpty()) return;
  Dots({rect.left, rect.top}, {rect.right, rect.top});
  Dots({rect.left, rect.bottom - 1}, {rect.right, rect.bottom - 1});
  Dots({rect.left, rect.top}, {rect.left, rect.bottom});
  Dots({rect.right - 1, rect.top}, {rect.right - 1, rect.bottom});
}

}  // namespace platform::qt
