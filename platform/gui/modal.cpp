#include "platform/gui/modal.h"

#include <utility>
#include <vector>

#include "platform/gui/display.h"
#include "platform/gui/focus.h"
#include "platform/gui/window.h"

namespace platform {

namespace modal {

namespace {

struct Entry {
  HWND window;         // 0: one of the display's own
  bool shows = false;  // it has taken the focus
  HWND first = 0;      // gets the focus when it shows
  HWND behind = 0;     // gets the focus when it is gone
};
std::vector<Entry> g_entries;
unsigned g_openings = 0;

// A dialog that was destroyed while it runs keeps nobody waiting any more.
Entry* Top() {
  for (auto entry = g_entries.rbegin(); entry != g_entries.rend(); ++entry) {
    if (entry->window == 0 || IsWindow(entry->window)) return &*entry;
  }
  return nullptr;
}

}  // namespace

bool Blocks(HWND handle) {
  const Entry* top = Top();
  if (top == nullptr) return false;
  CWnd* window = CWnd::FromHandle(handle);
  return window == nullptr || window->GetTopLevelParent()->GetHandle() != top->window;
}

unsigned Openings() {
  return g_openings;
}

HWND Wish() {
  const Entry* top = Top();
  return top != nullptr && IsWindow(top->first) ? top->first : 0;
}

void TakeFocus(HWND focus) {
  if (Entry* top = Top()) top->shows = true;
  SetFocus(focus);
}

bool Remember(HWND handle) {
  Entry* top = Top();
  if (top == nullptr) return false;
  if (Blocks(handle)) {
    top->behind = handle;
    return true;
  }
  if (!top->shows) top->first = handle;
  return !top->shows;
}

}  // namespace modal

gui::ModalScope::ModalScope(HWND window) : m_window(window), m_focus_chain(focus::CurrentChain()) {
  ++modal::g_openings;
  modal::g_entries.push_back({m_window});
}

gui::ModalScope::~ModalScope() {
  const HWND behind = modal::g_entries.back().behind;
  modal::g_entries.pop_back();
  std::vector<HWND> chain;
  if (modal::Blocks(behind)) {
    SetFocus(behind);  // waits on for the next modal thing to end
  } else {
    chain = focus::ChainOf(behind);
  }
  chain.insert(chain.end(), m_focus_chain.begin(), m_focus_chain.end());
  focus::Restore(chain);
}

}  // namespace platform
