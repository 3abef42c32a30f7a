#include "ioview/script/pane_focus.h"

#include <utility>

#include "platform/gui/list_edit.h"

namespace ioview {

ScriptPane ShownPane(ScriptRun& run, PaneIndex pane) {
  const platform::HWND window = run.Pane(pane).window.GetHandle();
  if (DockWindow* const view = run.Component().View()) {
    for (std::size_t page = 0; page < view->Pages().size(); ++page) {
      if (view->Pages()[page].window != window) continue;
      if (page != view->ActivePage()) run.Host().ui.ActivatePage(*view, page);
      break;
    }
  }
  return run.Pane(pane);
}

void FocusPane(const ScriptPane& pane) {
  for (const platform::CWnd* at = platform::CWnd::FromHandle(platform::GetFocus()); at != nullptr;
       at = at->GetParent()) {
    if (at == &pane.window) return;
  }
  const platform::SECListEdit* const edit = pane.grid.IsEditing() ? pane.grid.GetListEdit() : nullptr;
  platform::SetFocus(edit != nullptr ? edit->GetHandle() : pane.grid.GetHandle());
}

OwnAnswer::OwnAnswer(platform::HeadlessDisplay& display, platform::Answer answer)
    : display_(display), alone_(display.GetAnswerCount() == 0) {
  display_.Give(std::move(answer));
}

OwnAnswer::~OwnAnswer() {
  if (alone_) display_.DropAnswers();
}

}  // namespace ioview
