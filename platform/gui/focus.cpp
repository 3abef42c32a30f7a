#include "platform/gui/focus.h"

#include <utility>

#include "platform/gui/display.h"
#include "platform/gui/modal.h"
#include "platform/gui/window.h"

namespace platform {

namespace focus {

namespace {

struct State {
  HWND current = 0;
  unsigned moves = 0;
  bool active = true;
  std::vector<HWND> wanted;  // while the user is away
};
State g_state;

bool CanHaveFocus(HWND handle) {
  const CWnd* window = CWnd::FromHandle(handle);
  return window != nullptr && window->IsEnabled() && window->IsVisible();
}

HWND FirstOf(const std::vector<HWND>& chain) {
  for (const HWND handle : chain) {
    if (CanHaveFocus(handle)) return handle;
  }
  return 0;
}

void Move(HWND handle) {
  const HWND old = g_state.current;
  if (old == handle) return;
  g_state.current = handle;
  const unsigned move = ++g_state.moves;
  CWnd* told = CWnd::FromHandle(handle != 0 ? handle : old);
  if (told != nullptr) told->UpdatePeer(Part::Focus);
  SendMessage(old, WM_KILLFOCUS, static_cast<WPARAM>(handle));
  if (move == g_state.moves) SendMessage(handle, WM_SETFOCUS, static_cast<WPARAM>(old));
}

}  // namespace

std::vector<HWND> ChainOf(HWND handle) {
  std::vector<HWND> chain;
  for (const CWnd* window = CWnd::FromHandle(handle); window != nullptr; window = window->GetParent()) {
    chain.push_back(window->GetHandle());
  }
  return chain;
}

std::vector<HWND> CurrentChain() {
  return g_state.active ? ChainOf(g_state.current) : g_state.wanted;
}

void Restore(const std::vector<HWND>& chain) {
  SetFocus(FirstOf(chain));
}

void PassToParents(const CWnd& window) {
  const CWnd* inside = CWnd::FromHandle(g_state.current);
  while (inside != nullptr && inside != &window) inside = inside->GetParent();
  if (inside == nullptr) return;
  const CWnd* parent = window.GetParent();
  const HWND next = parent != nullptr ? FirstOf(ChainOf(parent->GetHandle())) : 0;
  if (next != 0 && !modal::Blocks(next)) {
    Move(next);
  } else {
    Move(0);
    SetFocus(next);
  }
}

void Reset() {
  g_state = State();
}

}  // namespace focus

void SetFocus(HWND handle) {
  const CWnd* window = CWnd::FromHandle(handle);
  if (handle != 0 && (window == nullptr || !window->IsEnabled())) return;
  if (handle != 0 && modal::Remember(handle)) return;
  if (focus::g_state.active) {
    focus::Move(handle);
  } else {
    focus::g_state.wanted = focus::ChainOf(handle);
  }
}

HWND GetFocus() {
  return IsWindow(focus::g_state.current) ? focus::g_state.current : 0;
}

void gui::Activate(bool active) {
  if (active == focus::g_state.active) return;
  if (active) {
    focus::g_state.active = true;
    focus::Restore(std::exchange(focus::g_state.wanted, {}));
  } else {
    focus::g_state.wanted = focus::ChainOf(focus::g_state.current);
    focus::g_state.active = false;
    focus::Move(0);
  }
}

}  // namespace platform
