#include "platform/headless/text_printer.h"

#include <fstream>

namespace platform {

bool TextPrinter::StartDocument(std::string_view) {
  m_pages.clear();
  m_first_page = true;
  return std::ofstream(m_path, std::ios::binary).good();
}

void TextPrinter::StartPage() {
  if (!m_first_page) m_pages += '\f';
  m_first_page = false;
}

void TextPrinter::TextOut(POINT, std::string_view text) {
  m_pages += text;
  m_pages += '\n';
}

void TextPrinter::EndDocument() {
  std::ofstream(m_path, std::ios::binary) << m_pages;
}

}  // namespace platform
