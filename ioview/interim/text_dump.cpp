#include "ioview/interim/text_dump.h"

#include "platform/base/text.h"

namespace ioview::interim {

std::string FitColumn(std::string_view text, std::size_t width, bool may_cut) {
  std::size_t columns = 0;
  std::size_t last = 0;  // where the last character starts
  for (std::size_t i = 0; i < text.size(); i += platform::CharBytes(text, i)) {
    columns += platform::CharColumns(text, i);
    last = i;
  }
  std::string fitted(text);
  if (columns <= width) {
    fitted.append(width - columns, ' ');
  } else if (may_cut) {
    const std::size_t room = width - platform::CharColumns(text, last);
    std::size_t end = 0;
    std::size_t used = 0;
    while (used + platform::CharColumns(text, end) <= room) {
      used += platform::CharColumns(text, end);
      end += platform::CharBytes(text, end);
    }
    fitted.erase(end, last - end);
    fitted.insert(end, room - used, ' ');
  }
  return fitted;
}

void AppendHeader(std::string& out, const std::array<std::string, kColumns>& titles) {
  for (std::size_t i = 0; i < kColumns; ++i) out += FitColumn(titles[i], kColumnWidths[i], false);
  out += '\n';
  out.append(kRuleWidth, '-');
  out += '\n';
}

void AppendRow(std::string& out, const RowText& row) {
  const bool below_top = row.level > 0;
  // Two characters a level, of which only those within the column can show.
  std::string tree;
  for (std::size_t level = 0; level < row.level && tree.size() < kColumnWidths[0]; ++level) tree += " |";
  tree += !row.has_children ? " |--- " : row.open ? "[-]-- " : "[+]-- ";
  tree += row.cells[0];
  out += FitColumn(tree, kColumnWidths[0], below_top);
  for (std::size_t i = 1; i < kColumns; ++i) out += FitColumn(row.cells[i], kColumnWidths[i], below_top);
  out += '\n';
}

}  // namespace ioview::interim
