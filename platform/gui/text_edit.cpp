#include "platform/gui/text_edit.h"

#include "platform/base/text.h"
#include "platform/gui/messages.h"

namespace platform::text_edit {

namespace {

Line Without(const Line& line, std::size_t start, std::size_t end) {
  Line result{line.text, {start, start}};
  result.text.erase(start, end - start);
  return result;
}

std::size_t Target(const Line& line, UINT key, bool extend) {
  const Selection& selection = line.selection;
  const bool collapse = selection.anchor != selection.caret && !extend;
  switch (key) {
    case VK_LEFT:
      return collapse ? selection.Start() : PreviousChar(line.text, selection.caret);
    case VK_RIGHT:
      return collapse ? selection.End() : selection.caret + CharBytes(line.text, selection.caret);
    case VK_HOME:
      return 0;
    default:
      return line.text.size();
  }
}

}  // namespace

std::size_t Snap(std::string_view text, std::size_t position) {
  std::size_t at = 0;
  while (at < text.size() && at + CharBytes(text, at) <= position) at += CharBytes(text, at);
  return at;
}

Line Insert(const Line& line, std::string_view inserted) {
  inserted = inserted.substr(0, inserted.find_first_of("\r\n"));
  Line result = Without(line, line.selection.Start(), line.selection.End());
  result.text.insert(result.selection.caret, inserted);
  result.selection.anchor = result.selection.caret += inserted.size();
  return result;
}

std::optional<Line> ApplyKey(const Line& line, UINT key, UINT modifiers) {
  if (modifiers & (MK_CONTROL | MK_ALT)) return std::nullopt;
  const Selection& selection = line.selection;
  const bool selected = selection.anchor != selection.caret;
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END: {
      const bool extend = (modifiers & MK_SHIFT) != 0;
      const std::size_t caret = Target(line, key, extend);
      return Line{line.text, {extend ? selection.anchor : caret, caret}};
    }
    case VK_BACK:
      if (selected) return Without(line, selection.Start(), selection.End());
      return Without(line, PreviousChar(line.text, selection.caret), selection.caret);
    case VK_DELETE:
      if (selected) return Without(line, selection.Start(), selection.End());
      return Without(line, selection.caret, selection.caret + CharBytes(line.text, selection.caret));
    default:
      return std::nullopt;
  }
}

std::string CharText(WPARAM code_point) {
  if (code_point < 0x10000) return FromWide(std::u16string(1, static_cast<char16_t>(code_point)));
  const auto bits = static_cast<std::uint32_t>(code_point) - 0x10000;
  return FromWide(std::u16string{static_cast<char16_t>(0xD800 + (bits >> 10 & 0x3FF)),
                                 static_cast<char16_t>(0xDC00 + (bits & 0x3FF))});
}

}  // namespace platform::text_edit
