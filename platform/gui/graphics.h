// Fonts, image lists and device contexts. Stands in for the system's drawing calls: colour and font are
// arguments of each call, nothing is selected.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/types.h"

namespace platform {

// A font as it was asked for; all zero and no face: the display's dialog font.
struct LOGFONT {
  int height = 0;        // pixels; 0: by point_tenths
  int width = 0;         // average, pixels; 0: as the face has it
  int point_tenths = 0;  // tenths of a point; 0: by height
  std::string face;
  friend bool operator==(const LOGFONT&, const LOGFONT&) = default;
};

class CFont {
 public:
  void CreateFontIndirect(const LOGFONT& font) { m_font = font, m_exists = true; }
  void CreatePointFont(int tenths, std::string_view face) {
    m_font = {0, 0, tenths, std::string(face)};
    m_exists = true;
  }
  void Delete() { *this = CFont(); }
  bool Exists() const { return m_exists; }
  // The record; that of the dialog font while there is none.
  const LOGFONT& Get() const { return m_font; }

 private:
  LOGFONT m_font;
  bool m_exists = false;
};

// Pictures of one size, cut from a strip. A pixel is 0xAARRGGBB; one of the mask colour is transparent.
class CImageList {
 public:
  CImageList() = default;
  // `pixels` is a strip, row by row, of `count` pictures side by side.
  void Create(int width, int height, int count, std::span<const std::uint32_t> pixels, COLORREF mask);
  int GetCount() const { return m_count; }
  int GetWidth() const { return m_width; }
  int GetHeight() const { return m_height; }
  // The pixels of one picture, row by row.
  std::span<const std::uint32_t> GetImage(int index) const;

 private:
  int m_width = 0;
  int m_height = 0;
  int m_count = 0;
  std::vector<std::uint32_t> m_pixels;
};

enum class TextAlign : std::uint8_t { Left, Right, Centre };

// One surface that is drawn on: a screen, a picture, or a list of operations. Drawing outside the clip is
// lost.
class CDC {
 public:
  virtual ~CDC() = default;
  virtual RECT GetClip() const = 0;
  virtual void Fill(const RECT& rect, COLORREF colour) = 0;
  // One line, centred vertically; text that is too wide ends in dots. ANSI code page.
  virtual void Text(const RECT& rect, std::string_view text, COLORREF colour, const LOGFONT& font,
                    TextAlign align = TextAlign::Left) = 0;
  // A dotted line, horizontal or vertical, from the first point up to and without the last.
  virtual void Dots(POINT from, POINT to) = 0;
  virtual void Image(POINT at, const CImageList& images, int index) = 0;
  virtual void ExpandBox(const RECT& rect, bool open) = 0;
  virtual void CheckBox(const RECT& rect, bool on) = 0;
  virtual void Header(const RECT& rect, std::string_view text, const LOGFONT& font) = 0;
  virtual void FocusRect(const RECT& rect) = 0;
};

// A printer: 600 units an inch, text at its upper left corner in the printer's default font.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual bool StartDocument(std::string_view name) = 0;
  virtual void StartPage() = 0;
  virtual void TextOut(POINT at, std::string_view text) = 0;
  virtual void EndPage() = 0;
  virtual void EndDocument() = 0;
};

// Colours that the system owns.
enum class SystemColour : std::uint8_t { Window, WindowText, Highlight, HighlightText, Face };
COLORREF GetSysColour(SystemColour colour);

}  // namespace platform
