#include "frame/controls/tree_print.h"

#include "platform/base/text.h"

namespace pvw {

namespace {

constexpr int kLinesOfPage = 67;
constexpr int kLinePitch = 100;  // device units, a sixth of an inch

void PrintLine(platform::Printer& printer, int line, std::string_view text) {
  printer.TextOut({0, line * kLinePitch}, text.substr(0, platform::PreviousChar(text, text.size())));
}

}  // namespace

void PrintPages(platform::Printer& printer, std::string_view text, std::string_view titles,
                std::string_view rule) {
  printer.StartPage();
  int lines = 0;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
    if (line.ends_with('\r')) line.remove_suffix(1);
    PrintLine(printer, lines++, line);
    if (lines < kLinesOfPage) continue;
    printer.EndPage();
    printer.StartPage();
    PrintLine(printer, 0, titles);
    PrintLine(printer, 1, rule);
    lines = 2;
  }
  printer.EndPage();
}

}  // namespace pvw
