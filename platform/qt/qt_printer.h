// Prints on a Qt printer, which may be a PDF file.
#pragma once

#include <memory>

#include "platform/gui/graphics.h"

class QPainter;
class QPrinter;

namespace platform::qt {

class QtPrinter final : public Printer {
 public:
  // Nothing of it has been printed yet.
  explicit QtPrinter(std::unique_ptr<QPrinter> printer);
  ~QtPrinter() override;

  // False when the printer or file can't be had.
  bool StartDocument(std::string_view name) override;
  void StartPage() override;
  void TextOut(POINT at, std::string_view text) override;
  void EndPage() override {}
  void EndDocument() override;

 private:
  std::unique_ptr<QPrinter> m_printer;
  std::unique_ptr<QPainter> m_painter;
  bool m_first_page = true;
};

}  // namespace platform::qt
