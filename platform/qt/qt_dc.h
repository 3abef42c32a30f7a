// A device context on a painter: a widget, a picture or a printed page.
#pragma once

#include "platform/gui/graphics.h"

class QColor;
class QPainter;

namespace platform::qt {

class QtDC final : public CDC {
 public:
  // The painter, not owned, is active and stays so for as long as this.
  QtDC(QPainter& painter, const RECT& clip) : m_painter(painter), m_clip(clip) {}

  RECT GetClip() const override { return m_clip; }
  void Fill(const RECT& rect, COLORREF colour) override;
  void Text(const RECT& rect, std::string_view text, COLORREF colour, const LOGFONT& font,
            TextAlign align) override;
  void Dots(POINT from, POINT to) override;
  void Image(POINT at, const CImageList& images, int index) override;
  void ExpandBox(const RECT& rect, bool open) override;
  void CheckBox(const RECT& rect, bool on) override;
  void Header(const RECT& rect, std::string_view text, const LOGFONT& font) override;
  void FocusRect(const RECT& rect) override;

 private:
  void Frame(const RECT& rect, const QColor& line, const QColor& inside);

  QPainter& m_painter;
  const RECT m_clip;
};

}  // namespace platform::qt
