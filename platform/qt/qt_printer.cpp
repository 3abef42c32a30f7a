#include "platform/qt/qt_printer.h"

#include <QtGui/qfontmetrics.h>
#include <QtGui/qpainter.h>
#include <QtPrintSupport/qprinter.h>

#include "platform/qt/convert.h"

namespace platform::qt {

namespace {

constexpr int kUnits = 600;  // an inch
constexpr int kPoints = 10;  // columns line up, and a line fits into a sixth of an inch

}  // namespace

QtPrinter::QtPrinter(std::unique_ptr<QPrinter> printer) : m_printer(std::move(printer)) {
  m_printer->setResolution(kUnits);
}

QtPrinter::~QtPrinter() = default;

bool QtPrinter::StartDocument(std::string_view name) {
  m_printer->setDocName(ToQt(name));
  m_painter = std::make_unique<QPainter>();
  m_first_page = true;
  if (!m_painter->begin(m_printer.get())) {
    m_painter.reset();
    return false;
  }
  QFont font(QStringLiteral("Courier New"), kPoints);
  font.setStyleHint(QFont::Monospace);
  m_painter->setFont(font);
  return true;
}

void QtPrinter::StartPage() {
  if (m_painter != nullptr && !m_first_page) m_printer->newPage();
  m_first_page = false;
}

void QtPrinter::TextOut(POINT at, std::string_view text) {
  if (m_painter == nullptr) return;
  m_painter->drawText(at.x, at.y + m_painter->fontMetrics().ascent(), ToQt(text));
}

void QtPrinter::EndDocument() {
  m_painter.reset();
}

}  // namespace platform::qt
