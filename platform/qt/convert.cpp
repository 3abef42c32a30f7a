#include "platform/qt/convert.h"

#include <QtGui/qevent.h>
#include <QtGui/qfontmetrics.h>
#include <QtWidgets/qapplication.h>

#include <algorithm>
#include <deque>
#include <utility>

#include "platform/base/text.h"
#include "platform/gui/messages.h"

namespace platform::qt {

namespace {

constexpr int kLargest = 400;  // pixels; a font of a settings file can ask for any size
constexpr std::size_t kKeptFonts = 8;

QFont MakeFont(const LOGFONT& font) {
  QFont made = QApplication::font();
  if (!font.face.empty()) made.setFamily(ToQt(font.face));
  if (font.height < 0) {
    made.setPixelSize(std::min(-std::max(font.height, -kLargest), kLargest));
  } else if (font.height > 0) {
    // The height of a line, from which the em follows.
    const int height = std::min(font.height, kLargest);
    made.setPixelSize(height);
    const int line = QFontMetrics(made).height();
    if (line > height) made.setPixelSize(std::max(height * height / line, 1));
  } else if (font.point_tenths > 0) {
    made.setPointSizeF(std::min(font.point_tenths, kLargest * 7) / 10.0);
  }
  if (font.width > 0) {
    const int average = std::max(QFontMetrics(made).averageCharWidth(), 1);
    made.setStretch(std::clamp(std::min(font.width, kLargest) * 100 / average, 1, 4000));
  }
  return made;
}

}  // namespace

QString ToQt(std::string_view text) {
  return QString::fromStdU16String(ToWide(text));
}

std::string FromQt(const QString& text) {
  return FromWide(text.toStdU16String());
}

int ToQtPosition(std::string_view text, std::size_t position) {
  return static_cast<int>(ToWide(text.substr(0, position)).size());
}

std::size_t FromQtPosition(const QString& text, qsizetype position) {
  return FromQt(text.left(position)).size();
}

QColor ColourOf(COLORREF colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

COLORREF ColourOf(const QColor& colour) {
  return static_cast<COLORREF>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

const QFont& FontOf(const LOGFONT& font) {
  static std::deque<std::pair<LOGFONT, QFont>> kept;
  static QFont dialog_font;
  if (const QFont now = QApplication::font(); dialog_font != now) {
    kept.clear();
    dialog_font = now;
  }
  for (const auto& [record, made] : kept) {
    if (record == font) return made;
  }
  if (kept.size() == kKeptFonts) kept.pop_back();
  return kept.emplace_front(font, MakeFont(font)).second;
}

UINT KeyOf(const QKeyEvent& event) {
  static constexpr std::pair<int, UINT> kKeys[] = {
      {Qt::Key_Backspace, VK_BACK},  {Qt::Key_Tab, VK_TAB},       {Qt::Key_Backtab, VK_TAB},
      {Qt::Key_Return, VK_RETURN},   {Qt::Key_Enter, VK_RETURN},  {Qt::Key_Shift, VK_SHIFT},
      {Qt::Key_Control, VK_CONTROL}, {Qt::Key_Alt, VK_MENU},      {Qt::Key_Escape, VK_ESCAPE},
      {Qt::Key_Space, VK_SPACE},     {Qt::Key_PageUp, VK_PRIOR},  {Qt::Key_PageDown, VK_NEXT},
      {Qt::Key_End, VK_END},         {Qt::Key_Home, VK_HOME},     {Qt::Key_Left, VK_LEFT},
      {Qt::Key_Up, VK_UP},           {Qt::Key_Right, VK_RIGHT},   {Qt::Key_Down, VK_DOWN},
      {Qt::Key_Insert, VK_INSERT},   {Qt::Key_Delete, VK_DELETE}, {Qt::Key_Asterisk, VK_MULTIPLY},
      {Qt::Key_Plus, VK_ADD},        {Qt::Key_Minus, VK_SUBTRACT}};
  const int key = event.key();
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) {
    return static_cast<UINT>(key);
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return VK_F1 + static_cast<UINT>(key - Qt::Key_F1);
  const auto* found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                   [&](const std::pair<int, UINT>& known) { return known.first == key; });
  return found != std::end(kKeys) ? found->second : 0;
}

UINT ModifiersOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? MK_SHIFT : 0) | (modifiers & Qt::ControlModifier ? MK_CONTROL : 0) |
         (modifiers & Qt::AltModifier ? MK_ALT : 0);
}

std::u32string TypedBy(const QKeyEvent& event) {
  std::u32string typed;
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return typed;
  const std::u16string text = event.text().toStdU16String();
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size()) {
      c = 0x10000 + ((c & 0x3FF) << 10 | (text[++i] & 0x3FFu));
    }
    if (c >= 0x20 && c != 0x7F) typed += c;
  }
  return typed;
}

}  // namespace platform::qt
