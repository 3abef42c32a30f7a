// Between the layer's values and Qt's.
#pragma once

#include <QtCore/qrect.h>
#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/gui/graphics.h"

class QKeyEvent;

namespace platform::qt {

QString ToQt(std::string_view text);
std::string FromQt(const QString& text);
// Positions in a text: bytes of the code page here, UTF-16 units there.
int ToQtPosition(std::string_view text, std::size_t position);
std::size_t FromQtPosition(const QString& text, qsizetype position);

inline QRect ToQt(const RECT& rect) {
  return {rect.left, rect.top, rect.Width(), rect.Height()};
}
inline RECT FromQt(const QRect& rect) {
  return {rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()};
}
QColor ColourOf(COLORREF colour);
COLORREF ColourOf(const QColor& colour);

// The font of the record, 1 to 400 pixels high; the last few are kept.
const QFont& FontOf(const LOGFONT& font);

// VK_ code of the key; 0 for one that the layer doesn't know.
UINT KeyOf(const QKeyEvent& event);
// MK_ bits.
UINT ModifiersOf(Qt::KeyboardModifiers modifiers);
// The code points that the key types; none for Enter, Escape, Tab, Backspace and keys with Control or Alt.
std::u32string TypedBy(const QKeyEvent& event);

}  // namespace platform::qt
