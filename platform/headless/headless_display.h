// A display without a screen: for tests, scripts and the command line.
//
// It has no peers, so controls handle their keys themselves. Its clock is virtual. A modal thing takes the
// next answer from a queue, and says what opened, line by line: "message: TEXT", "dialog: TITLE", "beep" and
// so on. While a dialog runs it serves, in this order: posted messages, the answer's steps, calls of threads,
// running threads, time.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/display.h"
#include "platform/headless/answers.h"

namespace platform {

class HeadlessDisplay : public Display {
 public:
  // What a modal thing does when no answer is left: count as a failure, or be cancelled as if the user did
  // it.
  enum class Unanswered { Fail, Cancel };

  // `line` gets what a user would see or hear, in the code page. `failure` gets a sentence for each thing
  // that the answers leave open: none is left, one doesn't fit, steps are left over, or nothing can end a
  // dialog.
  explicit HeadlessDisplay(Unanswered unanswered, std::function<void(const std::string& line)> line = {},
                           std::function<void(const std::string& text)> failure = {});

  // Appends an answer.
  void Give(Answer answer) { m_answers.push_back(std::move(answer)); }
  std::size_t GetAnswerCount() const { return m_answers.size(); }
  void DropAnswers() { m_answers.clear(); }
  // Dialogs, by template, that end without the user.
  void SetRunningByThemselves(std::vector<UINT> templates) { m_run_by_themselves = std::move(templates); }
  // Whether entries of a menu that aren't checked show an empty box, as in a list of columns.
  void SetMenuBoxes(bool shown) { m_menu_boxes = shown; }

  // Handles posted messages and what threads ask, until there is nothing left. No time passes.
  void Settle();
  // Lets time pass, with the timers that come due.
  void Advance(UINT milliseconds);

  Peer* CreatePeer(CWnd& window) override;
  void RunLoop(CWnd& modal, const std::function<void()>& opened, const bool& done) override;
  void LoopEnded() override {}
  void Wake() override {}
  void RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) override;
  std::optional<std::string> RunFileDialog(const FileDialogRequest& request,
                                           const std::function<void()>& opened) override;
  std::unique_ptr<Printer> RunPrintDialog(const std::function<void()>& opened) override;
  UINT RunPopupMenu(CWnd& owner, const std::vector<PopupMenuItem>& items, POINT at,
                    const std::function<void()>& opened) override;
  DragEffect RunDrag(CWnd& source, const std::string& text, DragSource& drag) override;
  void ShowHelp(CWnd&) override {}
  void SetDragCursor(const PictureResource&) override {}
  void StartTimer(HWND window, UINT id, UINT milliseconds) override;
  void StopTimer(HWND window, UINT id) override;
  UINT DoubleClickTime() override { return 500; }
  SIZE TextExtent(const LOGFONT& font, std::string_view text) override;
  COLORREF GetColour(SystemColour colour) override;
  void SetWaitCursor(bool) override {}
  void Beep() override { Line("beep"); }

 private:
  struct Timer {
    HWND window;
    UINT id;
    std::uint64_t period;
    std::uint64_t due;
  };

  void Line(const std::string& line) const;
  void Fail(const std::string& text) const;
  template <typename Wanted>
  std::optional<Wanted> Take(const std::string& what);
  std::optional<DialogAnswer> TakeForDialog(CDialog& dialog);
  bool LetTimePass(std::uint64_t until);
  void Cancel(HWND dialog);
  void MenuLines(const std::vector<PopupMenuItem>& items, const std::string& indent,
                 std::vector<const PopupMenuItem*>& lines) const;

  const Unanswered m_unanswered;
  const std::function<void(const std::string&)> m_line;
  const std::function<void(const std::string&)> m_failure;
  std::deque<Answer> m_answers;
  std::vector<UINT> m_run_by_themselves;
  bool m_menu_boxes = false;
  std::uint64_t m_now = 0;      // virtual milliseconds
  std::vector<Timer> m_timers;  // in order of their start
};

// "message: TEXT", with its icon and caption where it has them.
std::string MessageLine(const MessageBoxRequest& request);

}  // namespace platform
