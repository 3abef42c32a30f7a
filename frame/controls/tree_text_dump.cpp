#include "frame/controls/tree_text_dump.h"

#include <cstdint>

#include "platform/base/text.h"

namespace pvw {

namespace {

constexpr float kLineWidth = 85.0f;

// The start of `text` and its last character in `width` columns, which it is longer than; a blank stands
// where only half a character fits.
void AppendCut(std::string& out, std::string_view text, std::size_t last, std::size_t width) {
  const std::size_t last_columns = platform::CharColumns(text, last);
  if (last_columns > width) {
    out.append(width, ' ');
    return;
  }
  const std::size_t room = width - last_columns;
  std::size_t end = 0;
  std::size_t used = 0;
  while (used + platform::CharColumns(text, end) <= room) {
    used += platform::CharColumns(text, end);
    end += platform::CharBytes(text, end);
  }
  out += text.substr(0, end);
  out.append(room - used, ' ');
  out += text.substr(last);
}

void AppendCell(std::string& out, std::string_view text, std::size_t width, bool may_cut) {
  std::size_t columns = 0;
  std::size_t last = 0;  // where the last character starts
  for (std::size_t i = 0; i < text.size(); i += platform::CharBytes(text, i)) {
    columns += platform::CharColumns(text, i);
    last = i;
  }
  if (columns <= width) {
    out += text;
    out.append(width - columns, ' ');
  } else if (may_cut) {
    AppendCut(out, text, last, width);
  } else {
    out += text;
  }
}

}  // namespace

DumpHeader LayOutHeader(std::span<const DumpColumn> columns) {
  std::int64_t total = 0;
  for (const DumpColumn& column : columns) total += column.pixels;

  DumpHeader header;
  for (const DumpColumn& column : columns) {
    std::size_t width = 0;
    if (total > 0) {
      const float fraction = static_cast<float>(column.pixels) / static_cast<float>(total);
      width = static_cast<std::size_t>(fraction * kLineWidth);
    }
    header.widths.push_back(width);
    if (platform::ColumnCount(column.title) <= width) AppendCell(header.titles, column.title, width, false);
  }
  header.rule.assign(static_cast<std::size_t>(total), '-');
  return header;
}

void AppendRow(std::string& out, const DumpRow& row, std::span<const std::size_t> widths) {
  const std::size_t start = out.size();
  const bool below_top = row.level > 0;
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    if (i > 0) {
      AppendCell(out, row.cells[i], widths[i], below_top);
      continue;
    }
    std::string first;
    // Two characters a level, of which only those within the column can show.
    for (std::size_t level = 0; level < row.level && first.size() < widths[0]; ++level) first += " |";
    first += !row.has_children ? " |--- " : row.open ? "[-]-- " : "[+]-- ";
    first += row.cells[0];
    AppendCell(out, first, widths[0], below_top);
  }
  if (out.size() > start) out += '\n';
}

}  // namespace pvw
