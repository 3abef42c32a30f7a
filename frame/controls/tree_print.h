// Sends the lines of a text dump to a printer.
#pragma once

#include <string_view>

#include "platform/gui/graphics.h"

namespace pvw {

// Prints the lines of `text`, whose ends are LF or CR LF, onto pages of 67 lines in a document that has been
// started. The first page has its heading in the text; each later one begins with `titles` and `rule`. Every
// line is printed without its last character, which in a dump is padding. A page that is full is followed by
// another, if only with the heading.
void PrintPages(platform::Printer& printer, std::string_view text, std::string_view titles,
                std::string_view rule);

}  // namespace pvw
