// Prints to a text file: each output a line, a form feed between two pages.
#pragma once

#include <string>

#include "platform/gui/graphics.h"

namespace platform {

class TextPrinter final : public Printer {
 public:
  explicit TextPrinter(std::string native_path) : m_path(std::move(native_path)) {}
  // False when the file can't be written to.
  bool StartDocument(std::string_view name) override;
  void StartPage() override;
  void TextOut(POINT at, std::string_view text) override;
  void EndPage() override {}
  void EndDocument() override;

 private:
  std::string m_path;
  std::string m_pages;
  bool m_first_page = true;
};

}  // namespace platform
