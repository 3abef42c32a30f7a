#include "ioview/desktop/logical_colours.h"

#include <QtGui/qpalette.h>
#include <QtWidgets/qapplication.h>

namespace ioview {

QColor ColourOfIndex(int index, ColourUse use) {
  const bool text = use == ColourUse::kText;
  const QPalette palette = QApplication::palette();
  if (index == kSystemColour) return palette.color(text ? QPalette::Text : QPalette::Base);
  if (index == kHighlightColour) {
    return palette.color(text ? QPalette::HighlightedText : QPalette::Highlight);
  }
  if (index < 0 || index >= static_cast<int>(kLogicalColours.size())) return Qt::white;
  return QColor::fromRgb(kLogicalColours[static_cast<std::size_t>(index)].rgb);
}

}  // namespace ioview
