#include "platform/headless/recording_dc.h"

#include <cstdio>

namespace platform {

namespace {

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\n') {
      quoted += "\\n";
      continue;
    }
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

}  // namespace

void RecordingDC::Add(const char* kind, const RECT& rect, const COLORREF* colour,
                      const std::string_view* text) {
  if (rect.Intersect(m_clip).IsEmpty()) return;
  std::string line = kind;
  line += ' ' + std::to_string(rect.left) + ',' + std::to_string(rect.top) + ',' +
          std::to_string(rect.right) + ',' + std::to_string(rect.bottom);
  if (colour != nullptr) {
    char digits[16];
    std::snprintf(digits, sizeof digits, " %06X", *colour & 0xFFFFFF);
    line += digits;
  }
  if (text != nullptr) line += ' ' + Quoted(*text);
  m_lines.push_back(std::move(line));
}

void RecordingDC::Fill(const RECT& rect, COLORREF colour) {
  Add("fill", rect, &colour, nullptr);
}

void RecordingDC::Text(const RECT& rect, std::string_view text, COLORREF colour, const LOGFONT&, TextAlign) {
  Add("text", rect, &colour, &text);
}

void RecordingDC::Dots(POINT from, POINT to) {
  const bool across = from.y == to.y;
  Add("dots", {from.x, from.y, across ? to.x : from.x + 1, across ? from.y + 1 : to.y}, nullptr, nullptr);
}

void RecordingDC::Image(POINT at, const CImageList& images, int index) {
  const std::string number = std::to_string(index);
  const std::string_view text = number;
  Add("image", {at.x, at.y, at.x + images.GetWidth(), at.y + images.GetHeight()}, nullptr, &text);
}

void RecordingDC::ExpandBox(const RECT& rect, bool open) {
  const std::string_view text = open ? "-" : "+";
  Add("box", rect, nullptr, &text);
}

void RecordingDC::CheckBox(const RECT& rect, bool on) {
  const std::string_view text = on ? "x" : "o";
  Add("check", rect, nullptr, &text);
}

void RecordingDC::Header(const RECT& rect, std::string_view text, const LOGFONT&) {
  Add("header", rect, nullptr, &text);
}

void RecordingDC::FocusRect(const RECT& rect) {
  Add("focus", rect, nullptr, nullptr);
}

}  // namespace platform
