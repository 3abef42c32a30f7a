#include "platform/headless/headless_display.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/base/text.h"
#include "platform/gui/dialog.h"
#include "platform/gui/post_queue.h"
#include "platform/headless/text_metrics.h"
#include "platform/headless/text_printer.h"
#include "platform/headless/user.h"

namespace platform {

namespace {

// A dialog that its timers haven't ended by then never ends.
constexpr std::uint64_t kPatience = 3'600'000;  // virtual milliseconds

// What was posted comes while something modal shows.
void RunPosted() {
  while (post_queue::RunPosted()) {
  }
}

bool HasExtension(std::string_view path) {
  const std::size_t slash = FindLastChar(path, '\\');
  const std::string_view leaf = slash == std::string_view::npos ? path : path.substr(slash + 1);
  return FindChar(leaf, '.') != std::string_view::npos;
}

}  // namespace

std::string MessageLine(const MessageBoxRequest& request) {
  std::string line = "message";
  if ((request.type & MB_ICONEXCLAMATION) == MB_ICONEXCLAMATION) {
    line += " [exclamation]";
  } else if (request.type & MB_ICONSTOP) {
    line += " [stop]";
  }
  if (!request.caption.empty()) line += " \"" + request.caption + '"';
  line += ": ";
  for (const char c : request.text) {
    if (c == '\n') {
      line += "\\n";
    } else {
      line += c;
    }
  }
  return line;
}

HeadlessDisplay::HeadlessDisplay(Unanswered unanswered, std::function<void(const std::string&)> line,
                                 std::function<void(const std::string&)> failure)
    : m_unanswered(unanswered), m_line(std::move(line)), m_failure(std::move(failure)) {}

Peer* HeadlessDisplay::CreatePeer(CWnd&) {
  return nullptr;
}

void HeadlessDisplay::Line(const std::string& line) const {
  if (m_line) m_line(line);
}

void HeadlessDisplay::Fail(const std::string& text) const {
  if (m_failure) m_failure(text);
}

// Nothing when it is to be cancelled, which has been said then.
template <typename Wanted>
std::optional<Wanted> HeadlessDisplay::Take(const std::string& what) {
  if (m_answers.empty()) {
    Line("(cancelled)");
    if (m_unanswered == Unanswered::Fail) Fail("no answer is left for: " + what);
    return std::nullopt;
  }
  const Answer answer = std::move(m_answers.front());
  m_answers.pop_front();
  if (const Wanted* wanted = std::get_if<Wanted>(&answer)) return *wanted;
  if (!std::holds_alternative<CancelAnswer>(answer)) {
    Line("(cancelled)");
    Fail("the next answer is of another kind than: " + what);
  }
  return std::nullopt;
}

// Nothing when the dialog has been told to cancel.
std::optional<DialogAnswer> HeadlessDisplay::TakeForDialog(CDialog& dialog) {
  const auto& by_themselves = m_run_by_themselves;
  const bool by_itself =
      std::find(by_themselves.begin(), by_themselves.end(), dialog.GetTemplateId()) != by_themselves.end();
  if (by_itself) {
    const DialogAnswer* next = m_answers.empty() ? nullptr : std::get_if<DialogAnswer>(&m_answers.front());
    if (next == nullptr || !next->runs_by_itself) return DialogAnswer{{}, true};
  }
  const bool told = !m_answers.empty() && std::holds_alternative<CancelAnswer>(m_answers.front());
  std::optional<DialogAnswer> answer = Take<DialogAnswer>("dialog: " + dialog.GetText());
  if (answer && answer->runs_by_itself && !by_itself) {
    Line("(cancelled)");
    Fail("the next answer is for a dialog that runs by itself, not for: " + dialog.GetText());
    answer.reset();
  }
  if (!answer && told) return DialogAnswer{{&user::PressCancel}, false};
  return answer;
}

void HeadlessDisplay::Cancel(HWND dialog) {
  SendMessage(dialog, WM_CLOSE);
}

void HeadlessDisplay::RunLoop(CWnd& modal, const std::function<void()>& opened, const bool& done) {
  auto& dialog = static_cast<CDialog&>(modal);
  const std::string title = dialog.GetText();
  const HWND handle = dialog.GetHandle();
  Line("dialog: " + title);
  opened();
  const std::uint64_t until = m_now + kPatience;
  std::optional<DialogAnswer> answer = TakeForDialog(dialog);
  if (!answer) Cancel(handle);
  std::size_t next = 0;
  while (!done && answer) {
    if (post_queue::RunPosted()) continue;
    if (next < answer->steps.size()) {
      const DialogStep& step = answer->steps[next];
      if (!step.ready || step.ready(dialog)) {
        ++next;
        step.act(dialog);
        continue;
      }
    } else if (!answer->runs_by_itself) {
      Line("(cancelled)");
      if (m_unanswered == Unanswered::Fail) Fail("no step is left that ends: dialog: " + title);
      Cancel(handle);
      break;
    }
    if (post_queue::RunCall() || post_queue::WaitForThreads(true) || LetTimePass(until)) continue;
    Line("(cancelled)");
    Fail("nothing can end: dialog: " + title);
    Cancel(handle);
    break;
  }
  if (!done) Fail("the dialog refuses to be cancelled: " + title);
  if (answer && next < answer->steps.size()) Fail("steps are left over behind the end of: dialog: " + title);
}

void HeadlessDisplay::RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) {
  Line(MessageLine(request));
  opened();
  RunPosted();
}

std::optional<std::string> HeadlessDisplay::RunFileDialog(const FileDialogRequest& request,
                                                          const std::function<void()>& opened) {
  const std::string line = "file dialog: " + request.filter + ", " + request.directory + ", " + request.name;
  Line(line);
  opened();
  RunPosted();
  std::optional<FileAnswer> answer = Take<FileAnswer>(line);
  if (!answer) return std::nullopt;
  if (!request.default_extension.empty() && !HasExtension(answer->path)) {
    answer->path += '.' + request.default_extension;
  }
  return answer->path;
}

std::unique_ptr<Printer> HeadlessDisplay::RunPrintDialog(const std::function<void()>& opened) {
  Line("print dialog");
  opened();
  RunPosted();
  const std::optional<PrintAnswer> answer = Take<PrintAnswer>("print dialog");
  return answer ? std::make_unique<TextPrinter>(answer->native_path) : nullptr;
}

void HeadlessDisplay::MenuLines(const std::vector<PopupMenuItem>& items, const std::string& indent,
                                std::vector<const PopupMenuItem*>& lines) const {
  for (const PopupMenuItem& item : items) {
    lines.push_back(&item);
    const bool boxed = m_menu_boxes && item.items.empty() && !item.text.empty();
    const char* mark = item.checked ? "[x] " : boxed ? "[ ] " : "";
    Line(indent + (item.text.empty() ? "-" : mark + item.text));
    MenuLines(item.items, indent + "  ", lines);
  }
}

UINT HeadlessDisplay::RunPopupMenu(CWnd&, const std::vector<PopupMenuItem>& items, POINT,
                                   const std::function<void()>& opened) {
  Line("menu:");
  std::vector<const PopupMenuItem*> lines;
  MenuLines(items, "", lines);
  opened();
  RunPosted();
  const std::optional<MenuAnswer> answer = Take<MenuAnswer>("menu");
  if (!answer) return 0;
  const PopupMenuItem* item = answer->line < lines.size() ? lines[answer->line] : nullptr;
  if (item != nullptr && !item->text.empty() && item->items.empty() && item->enabled) return item->id;
  Fail("entry " + std::to_string(answer->line) + " of the menu can't be picked");
  return 0;
}

DragEffect HeadlessDisplay::RunDrag(CWnd&, const std::string& text, DragSource& drag) {
  drag.Begin();
  const std::optional<DragAnswer> answer = Take<DragAnswer>("drag");
  const bool takes = answer && *answer != DragAnswer::Nowhere;
  DragSource::Next next = DragSource::Next::Go;
  if (answer) {
    drag.Feedback(takes ? DragEffect::Copy : DragEffect::None);
    next = drag.QueryContinue(false, true, false);
  }
  if (next == DragSource::Next::Go) {
    const bool right = answer == DragAnswer::RightButton;
    const bool escape = !answer || answer == DragAnswer::Escape;
    next = drag.QueryContinue(escape, escape || right, right);
  }
  if (next != DragSource::Next::Drop) {
    Line("drag cancelled");
    return DragEffect::None;
  }
  Line(takes ? "drag: " + text.substr(0, text.find('\0')) : "drag refused");
  return takes ? DragEffect::Copy : DragEffect::None;
}

void HeadlessDisplay::StartTimer(HWND window, UINT id, UINT milliseconds) {
  StopTimer(window, id);
  const std::uint64_t period = std::max<UINT>(milliseconds, 1);
  m_timers.push_back({window, id, period, m_now + period});
}

void HeadlessDisplay::StopTimer(HWND window, UINT id) {
  std::erase_if(m_timers, [&](const Timer& timer) { return timer.window == window && timer.id == id; });
}

// Jumps to the next timer that comes due until then, and fires it.
bool HeadlessDisplay::LetTimePass(std::uint64_t until) {
  const auto next = std::min_element(m_timers.begin(), m_timers.end(),
                                     [](const Timer& a, const Timer& b) { return a.due < b.due; });
  if (next == m_timers.end() || next->due > until) return false;
  m_now = std::max(m_now, next->due);
  next->due = m_now + next->period;
  SendMessage(next->window, WM_TIMER, next->id);
  return true;
}

void HeadlessDisplay::Settle() {
  while (post_queue::RunPosted() || post_queue::RunCall() || post_queue::WaitForThreads(true)) {
  }
}

void HeadlessDisplay::Advance(UINT milliseconds) {
  const std::uint64_t until = m_now + milliseconds;
  do {
    Settle();
  } while (LetTimePass(until));
  m_now = std::max(m_now, until);
}

SIZE HeadlessDisplay::TextExtent(const LOGFONT& font, std::string_view text) {
  return MeasureText(font, text);
}

COLORREF HeadlessDisplay::GetColour(SystemColour colour) {
  switch (colour) {
    case SystemColour::Window:
    case SystemColour::HighlightText:
      return 0xFFFFFF;
    case SystemColour::WindowText:
      return 0x000000;
    case SystemColour::Highlight:
      return 0xD77800;
    case SystemColour::Face:
      return 0xF0F0F0;
  }
  return 0;
}

}  // namespace platform
