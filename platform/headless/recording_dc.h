// A device context that writes down what is drawn, one operation a line: KIND L,T,R,B BBGGRR "TEXT".
//
// Kinds: fill, text, dots, image, box (expand box, "+" or "-"), check ("x" or "o"), header, focus. A part
// that an operation hasn't got is left out; the text of an image is its number. What lies outside the clip
// isn't listed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/graphics.h"

namespace platform {

class RecordingDC final : public CDC {
 public:
  explicit RecordingDC(const RECT& clip) : m_clip(clip) {}
  const std::vector<std::string>& GetLines() const { return m_lines; }

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
  void Add(const char* kind, const RECT& rect, const COLORREF* colour, const std::string_view* text);

  RECT m_clip;
  std::vector<std::string> m_lines;
};

}  // namespace platform
